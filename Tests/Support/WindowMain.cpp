// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include <QApplication>

#include <clocale>
#include <gmock/gmock.h>

/// Tests of windows run without a display, with animations off, in plain C ways and a UTF-8 encoding,
/// whatever the machine's settings.
int main(int argc, char **argv)
{
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const Qt::UIEffect effect : {Qt::UI_AnimateMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip,
                                      Qt::UI_FadeMenu, Qt::UI_FadeTooltip})
        QApplication::setEffectEnabled(effect, false);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
