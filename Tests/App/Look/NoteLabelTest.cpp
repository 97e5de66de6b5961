// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/NoteLabel.h"

#include "App/Look/Contrast.h"
#include "App/Look/PlainPalette.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

double contrast(const NoteLabel &label)
{
    return contrastRatio(label.palette().color(QPalette::WindowText),
                         label.parentWidget()->palette().color(QPalette::Window));
}

class NoteLabelTest : public ::testing::Test
{
protected:
    QWidget window;
    NoteLabel *label = new NoteLabel(&window);
};

TEST_F(NoteLabelTest, isReadableAndQuieterThanTheTextInEveryTheme)
{
    for (const QPalette &palette : {paletteOf(Qt::white, Qt::black), paletteOf(Qt::black, Qt::white)}) {
        window.setPalette(palette);
        for (const NoteLabel::Tone tone : {NoteLabel::Tone::Secondary, NoteLabel::Tone::Problem}) {
            label->setTone(tone);
            EXPECT_GE(contrast(*label), 4.5);
            EXPECT_LT(contrast(*label), 20);
        }
    }
}

TEST_F(NoteLabelTest, followsAThemeThatChanges)
{
    window.setPalette(paletteOf(Qt::white, Qt::black));
    const QColor onLight = label->palette().color(QPalette::WindowText);
    window.setPalette(paletteOf(Qt::black, Qt::white));
    const QColor onDark = label->palette().color(QPalette::WindowText);
    EXPECT_GT(onDark.lightness(), onLight.lightness());
    window.setPalette(paletteOf(Qt::white, Qt::black));
    EXPECT_EQ(label->palette().color(QPalette::WindowText), onLight);
}

TEST_F(NoteLabelTest, takesTheColoursOfTheWindowThatItIsPutInto)
{
    window.setPalette(paletteOf(Qt::black, Qt::white));
    auto *added = new NoteLabel;
    added->setParent(&window);
    EXPECT_EQ(added->palette().color(QPalette::WindowText), label->palette().color(QPalette::WindowText));
}

TEST_F(NoteLabelTest, aProblemIsRed)
{
    label->setTone(NoteLabel::Tone::Problem);
    const QColor color = label->palette().color(QPalette::WindowText);
    EXPECT_GT(color.red(), color.green() + 80);
    EXPECT_GT(color.red(), color.blue() + 80);
}

TEST_F(NoteLabelTest, isSmallerThanTheTextAndNoMarkup)
{
    EXPECT_LT(label->font().pointSizeF(), window.font().pointSizeF());
    EXPECT_TRUE(label->wordWrap());
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

} // namespace
} // namespace roamlet::testing
