// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/Json.h"

#include "Readers/ReaderTest.h"

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

Json::Value valueOf(const QByteArray &bytes)
{
    const auto json = Json::parse(bytes);
    EXPECT_TRUE(json.has_value()) << bytes.constData();
    return json.value_or(Json::Value());
}

/// Whether `bytes` is refused, with a reason.
bool isNoJson(const QByteArray &bytes)
{
    const auto json = Json::parse(bytes);
    return !json && !json.error().isEmpty();
}

} // namespace

TEST(Json, onlyOneCompleteTextIsAccepted)
{
    EXPECT_TRUE(Json::parse(" \t\r\n{\"a\": [1, 2.5, null, true, \"x\"]} \n").has_value());
    for (const char *text :
         {"", " ", "{", "{\"a\":", "[1, 2", "{} {}", "[1,]", "{\"a\":1,}", "{a: 1}", "'a'", "01", "nul",
          "// comment\n{}", "/* comment */ {}", "\"unfinished", "\"\\x\"", "NaN"}) {
        EXPECT_TRUE(isNoJson(text)) << text;
    }
}

TEST(Json, aByteOrderMarkIsRefused)
{
    EXPECT_TRUE(isNoJson("\xEF\xBB\xBF{}"));
}

TEST(Json, aNulIsRefusedWhereverItStands)
{
    EXPECT_TRUE(isNoJson(QByteArray("\0", 1)));
    EXPECT_TRUE(isNoJson(QByteArray("\0{}", 3)));
    EXPECT_TRUE(isNoJson(QByteArray("{\0}", 3)));
    EXPECT_TRUE(isNoJson(QByteArray("\"a\0b\"", 5)));
    EXPECT_TRUE(isNoJson(QByteArray("{}\0", 3)));
    EXPECT_TRUE(isNoJson(QByteArray("{}\0{\"a\": 1}", 11)));
}

TEST(Json, brokenEncodingsAreRefused)
{
    EXPECT_TRUE(isNoJson("\"\xC3\""));
    EXPECT_TRUE(isNoJson("\"\xC3(\""));
    EXPECT_TRUE(isNoJson("\"\xED\xA0\x80\""));
    EXPECT_TRUE(isNoJson("\"\xF8\x88\x80\x80\x80\""));
    EXPECT_TRUE(isNoJson("\"\\ud800\""));
    EXPECT_TRUE(isNoJson("\"Z\xFC"
                         "rich\""));
    EXPECT_TRUE(isNoJson(QByteArray("\xFF\xFE{\0}\0", 6)));
}

TEST(Json, aNumberThatNothingCanHoldIsRefusedAndNoCrash)
{
    EXPECT_TRUE(isNoJson("1e999"));
}

TEST(Json, membersOfWhatIsNoObjectAreNotThere)
{
    const Json::Value list = valueOf("[1]");
    EXPECT_EQ(Json::member(list, "a"), nullptr);
    const Json::Value object = valueOf(R"({"a": {"b": 1}, "c": null, "d": []})");
    EXPECT_NE(Json::member(object, "a"), nullptr);
    EXPECT_NE(Json::member(object, "c"), nullptr);
    EXPECT_EQ(Json::member(object, "x"), nullptr);
    EXPECT_NE(Json::objectMember(object, "a"), nullptr);
    EXPECT_EQ(Json::objectMember(object, "c"), nullptr);
    EXPECT_EQ(Json::objectMember(object, "d"), nullptr);
    EXPECT_EQ(Json::objectMember(object, "x"), nullptr);
}

TEST(Json, onlyStringsAreTexts)
{
    const Json::Value object = valueOf(R"({"s": "Zo\u00eb \ud83d\ude00", "n": 1, "b": true, "e": ""})");
    EXPECT_EQ(Json::text(Json::member(object, "s")), u"Zoë 😀"_s);
    EXPECT_EQ(Json::text(Json::member(object, "n")), std::nullopt);
    EXPECT_EQ(Json::text(Json::member(object, "b")), std::nullopt);
    EXPECT_EQ(Json::text(Json::member(object, "x")), std::nullopt);
    EXPECT_EQ(Json::text(Json::member(object, "e")), u""_s);
}

TEST(Json, aTextIsWhole)
{
    const Json::Value list =
        valueOf("[\"a\\u0000b\", \"\\u0000\", \"\\ufeffmarked\", \"\xEF\xBB\xBFmarked\"]");
    EXPECT_EQ(Json::text(&list[0]), u"a\0b"_s);
    EXPECT_EQ(Json::text(&list[1]), u"\0"_s);
    EXPECT_EQ(Json::text(&list[2]), u"\uFEFFmarked"_s);
    EXPECT_EQ(Json::text(&list[3]), u"\uFEFFmarked"_s);
}

TEST(Json, anIntegerMayBeWrittenWithAFraction)
{
    const auto isOne = [](const char *text) {
        const Json::Value value = valueOf(text);
        return Json::isInteger(&value, 1);
    };
    EXPECT_TRUE(isOne("1"));
    EXPECT_TRUE(isOne("1.0"));
    EXPECT_TRUE(isOne("1e0"));
    for (const char *text : {"0", "-1", "1.5", "true", "\"1\"", "null", "[1]", "18446744073709551615"})
        EXPECT_FALSE(isOne(text)) << text;
    EXPECT_FALSE(Json::isInteger(nullptr, 1));
}

TEST(Json, onlyTrueIsTrue)
{
    const auto isTrue = [](const char *text) {
        const Json::Value value = valueOf(text);
        return Json::isTrue(&value);
    };
    EXPECT_TRUE(isTrue("true"));
    for (const char *text : {"false", "1", "1.0", "\"true\"", "null", "[]", "{}"})
        EXPECT_FALSE(isTrue(text)) << text;
    EXPECT_FALSE(Json::isTrue(nullptr));
}

TEST(Json, nestingNeedsNoStack)
{
    for (const qsizetype depth : {5'000, 30'000}) {
        EXPECT_TRUE(Json::parse(QByteArray(depth, '[') + QByteArray(depth, ']')).has_value());
        EXPECT_TRUE(
            Json::parse(QByteArray("{\"a\":").repeated(depth) + "1" + QByteArray(depth, '}')).has_value());
        EXPECT_TRUE(isNoJson(QByteArray(depth, '[')));
    }
}

TEST(Json, whatIsNothingButNestingIsRefusedBeforeItIsRead)
{
    for (const qsizetype depth : {30'001, 50'000'000}) {
        const QByteArray open(depth, '[');
        for (const QByteArray &text : QByteArrayList{open, open + QByteArray(depth, ']'),
                                                     QByteArray("{\"a\":").repeated(depth / 10 + 30'000)}) {
            const auto json = Json::parse(text);
            ASSERT_FALSE(json.has_value());
            EXPECT_EQ(json.error(), u"it is nested too deeply"_s);
        }
    }
}

TEST(Json, bracketsInTextsAndBesideEachOtherAreNoNesting)
{
    const QByteArray brackets = QByteArray(100'000, '[') + R"(\"\\)" + QByteArray(100'000, '{');
    EXPECT_EQ(Json::text(&valueOf("[\"" + brackets + "\"]")[0])->size(), 200'002);
    EXPECT_EQ(valueOf('[' + QByteArray("[],{},").repeated(50'000) + "1]").size(), 100'001U);
    EXPECT_TRUE(isNoJson(QByteArray(100'000, ']') + QByteArray(100'000, '[')));
    for (const char *cut : {"[\"", "[\"a\\", "[\"a\\\""})
        EXPECT_TRUE(isNoJson(cut)) << cut;
}

TEST(Json, moreValuesThanAnybodyHasAreRefusedBeforeTheyFillTheMemory)
{
    for (const char *value : {"[],", "1,"}) {
        const auto json = Json::parse('[' + QByteArray(value).repeated(32'000'000) + "1]");
        ASSERT_FALSE(json.has_value());
        EXPECT_EQ(json.error(), u"it is too large"_s);
    }
}

} // namespace roamlet::testing
