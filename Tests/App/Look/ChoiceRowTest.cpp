// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/ChoiceRow.h"

#include "App/Look/Look.h"

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

} // namespace roamlet::testing
