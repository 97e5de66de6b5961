// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/FoldedNeedle.h"

#include "SampleHome/SampleText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace roamlet::testing
{

namespace
{

using sample::Random;

char plainCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character | 0x20) : character;
}

/// The same search, one place after the other.
size_t firstPlace(std::string_view needle, std::string_view text, size_t from, size_t to)
{
    for (size_t place = from; place < to && place + needle.size() <= text.size(); ++place) {
        if (std::ranges::equal(needle, text.substr(place, needle.size()), {}, plainCase, plainCase))
            return place;
    }
    return FoldedNeedle::nowhere;
}

} // namespace

TEST(FoldedNeedleTest, findsTheFirstPlaceAtEveryAlignmentAndLength)
{
    // Nothing may be read before or behind a text; the sanitizer watches this one's ends.
    Random random(1);
    for (size_t length = 0; length <= 200; ++length) {
        for (size_t alignment = 0; alignment < 16; ++alignment) {
            const auto bytes = std::make_unique<char[]>(alignment + length);
            for (size_t i = 0; i < length; ++i)
                bytes[alignment + i] = "abAB"[random.below(4)];
            const std::string_view text(bytes.get() + alignment, length);
            for (const std::string_view needle :
                 {"a", "ab", "Bab", "aabb", "babaab", "bbbbbbbb", "aabbabbabab"}) {
                const size_t from = static_cast<size_t>(random.below(qint64(length) + 1));
                const size_t to = static_cast<size_t>(random.below(qint64(length) + 2));
                const FoldedNeedle folded(needle);
                ASSERT_EQ(folded.find(text, 0, length), firstPlace(needle, text, 0, length))
                    << needle << " in " << text;
                ASSERT_EQ(folded.find(text, from, to), firstPlace(needle, text, from, to))
                    << needle << " in " << text << " from " << from << " to " << to;
            }
        }
    }
}

TEST(FoldedNeedleTest, findsEachPlaceOfASingleOccurrence)
{
    for (const size_t size : {1U, 2U, 3U, 8U, 15U, 16U, 17U, 63U, 64U, 65U}) {
        const std::string needle = 'q' + std::string(size - 1, 'W');
        const FoldedNeedle folded(needle);
        for (size_t length = size; length <= size + 140; ++length) {
            for (size_t place = 0; place + size <= length; ++place) {
                std::string text(length, '-');
                text.replace(place, size, needle);
                ASSERT_EQ(folded.find(text, 0, length), place);
                ASSERT_EQ(folded.find(text, place + 1, length), FoldedNeedle::nowhere);
                ASSERT_EQ(folded.find(text, 0, place), FoldedNeedle::nowhere);
            }
        }
    }
}

TEST(FoldedNeedleTest, ignoresTheCaseOfAsciiLettersAlone)
{
    for (int wanted = 1; wanted < 256; ++wanted) {
        for (int byte = 0; byte < 256; ++byte) {
            const std::string needle(1, static_cast<char>(wanted));
            const std::string text = std::string(70, '\0') + static_cast<char>(byte);
            const bool isFound = FoldedNeedle(needle).find(text, 0, text.size()) == 70;
            ASSERT_EQ(isFound, plainCase(needle[0]) == plainCase(text[70])) << wanted << ' ' << byte;
        }
    }
}

TEST(FoldedNeedleTest, takesBothSigmasForOneWhereThatIsWanted)
{
    const std::string text = "σίσυφος";
    EXPECT_EQ(FoldedNeedle("φοσ", FoldedNeedle::Sigmas::AsOne).find(text, 0, text.size()), 8U);
    EXPECT_EQ(FoldedNeedle("φοσ").find(text, 0, text.size()), FoldedNeedle::nowhere);
    // The same second byte after another first one is another letter.
    EXPECT_EQ(FoldedNeedle("σ", FoldedNeedle::Sigmas::AsOne).find("\xCE\x82\xCE\x83", 0, 4),
              FoldedNeedle::nowhere);
}

TEST(FoldedNeedleTest, isMadeOfPatternsWithALiteralTextOnly)
{
    const auto textOf = [](std::string_view pattern) -> size_t {
        const auto needle = FoldedNeedle::ofPattern(pattern, '\\');
        return needle ? needle->size() : 0;
    };
    EXPECT_EQ(textOf("%ab%"), 2U);
    EXPECT_EQ(textOf("%a\\%b%"), 3U);
    EXPECT_EQ(textOf("%é%"), 2U);
    for (const char *other : {"", "%", "%%", "ab", "%ab", "ab%", "%a%b%", "%a_b%", "%ab\\%"})
        EXPECT_EQ(textOf(other), 0U) << other;
    EXPECT_EQ(textOf(std::string_view("%a\0b%", 5)), 0U);
}

} // namespace roamlet::testing
