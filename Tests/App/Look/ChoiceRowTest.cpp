// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/ChoiceRow.h"

#include "App/Look/Look.h"

#include <QFontMetrics>
#include <QImage>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(ChoiceRowTest, anEnglishSentenceBeginsWithItsFirstLetterInBothDirections)
{
    ChoiceRow row(u"Markdown"_s, u"Headings and lists, for notes and documents."_s);
    row.resize(row.sizeHint() + QSize(60, 0));
    const Look look = Look::of(row);
    const int indent = look.measures.boxPadding + look.measures.radioSide + look.measures.gapAfterIcon;
    // How many pixels of the first column of letters are inked: a full stop is lower than an "H".
    const auto firstColumn = [&](int left, int right) {
        const QImage image = row.grab().toImage();
        const QColor ground = image.pixelColor(left, row.height() - 1);
        for (int x = left; x < right; ++x) {
            int inked = 0;
            for (int y = row.height() / 2; y < row.height(); ++y)
                inked += image.pixelColor(x, y) == ground ? 0 : 1;
            if (inked > 0)
                return inked;
        }
        return 0;
    };
    const int letter = firstColumn(indent, row.width());
    ASSERT_GT(letter, look.measures.unit / 3);
    row.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(firstColumn(0, row.width() - indent), letter / 2);
}

TEST(ChoiceRowTest, aNoteThatIsTooLongGoesOnInAnotherLine)
{
    ChoiceRow row(u"Markdown"_s, u"Headings and lists, for notes and documents."_s);
    const Look look = Look::of(row);
    const int usual = row.sizeHint().width();
    EXPECT_EQ(row.heightForWidth(usual), look.measures.exportChoiceHeight);
    const int narrow = usual * 2 / 3;
    EXPECT_EQ(row.heightForWidth(narrow),
              look.measures.exportChoiceHeight + QFontMetrics(look.smallFont).height());
    row.resize(narrow, row.heightForWidth(narrow));
    // The lowest line has words.
    const QImage image = row.grab().toImage();
    const int start = look.measures.boxPadding + look.measures.radioSide + look.measures.gapAfterIcon;
    const int free = (look.measures.exportChoiceHeight - row.fontMetrics().height() -
                      QFontMetrics(look.smallFont).height()) /
                     2;
    bool isInked = false;
    for (int y = row.height() - free - QFontMetrics(look.smallFont).height(); y < row.height() - free; ++y) {
        for (int x = start; x < row.width(); ++x)
            isInked = isInked || image.pixelColor(x, y) != image.pixelColor(0, 0);
    }
    EXPECT_TRUE(isInked);
}

} // namespace roamlet::testing
