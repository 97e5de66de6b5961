// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include <QCoreApplication>

#include <clocale>
#include <gmock/gmock.h>

/// Tests run with Qt's event loop at hand, in plain C ways and a UTF-8 encoding, whatever the machine's
/// settings.
int main(int argc, char **argv)
{
    qputenv("LC_ALL", "C.UTF-8");
    const QCoreApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
