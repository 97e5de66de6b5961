// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/PropertyList.h"

#include "Readers/Files/BinaryPropertyList.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/PropertyLists.h"

#include <QTimeZone>

#include <cmath>
#include <limits>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using sample::PropertyListFormat;

QByteArray xml(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n" +
           content + "\n</plist>\n";
}

PropertyList parsed(const QByteArray &bytes)
{
    auto list = PropertyList::parse(bytes);
    if (!list)
        throw std::runtime_error(list.error().toStdString());
    return std::move(*list);
}

/// Whether the bytes are refused, with a reason.
bool isRefused(const QByteArray &bytes)
{
    const auto list = PropertyList::parse(bytes);
    return !list && !list.error().isEmpty();
}

/// The string that is the root of a list.
std::optional<QString> rootString(const QByteArray &bytes)
{
    return parsed(bytes).root().string();
}

std::optional<double> rootDate(const QByteArray &bytes)
{
    const auto date = parsed(bytes).root().date();
    return date ? std::optional(secondsSince1970(*date)) : std::nullopt;
}

QVariantMap someDictionary()
{
    return {{u"text"_s, u"Zoë 日本 😀"_s},
            {u"empty"_s, QString()},
            {u"number"_s, 7},
            {u"yes"_s, true},
            {u"real"_s, 0.5},
            {u"data"_s, QByteArray("\0\1", 2)},
            {u"date"_s, QDateTime(QDate(2026, 5, 9), QTime(6, 13, 20), Qt::UTC)},
            {u"inner"_s, QVariantMap{{u"key"_s, u"value"_s}}},
            {u"list"_s, QVariantList{QVariantMap{{u"n"_s, u"1"_s}}, QVariantMap{{u"n"_s, u"2"_s}}}},
            {u"mixed"_s, QVariantList{QVariantMap{{u"n"_s, u"1"_s}}, u"2"_s}},
            {u"none"_s, QVariantList()}};
}

} // namespace

TEST(PropertyList, bothFormatsGiveTheSameValues)
{
    for (const PropertyListFormat format : {PropertyListFormat::Binary, PropertyListFormat::Xml}) {
        const PropertyList list = parsed(sample::propertyList(someDictionary(), format));
        const PropertyListValue root = list.root();
        ASSERT_TRUE(root.isDictionary());
        EXPECT_EQ(root.member("text").string(), u"Zoë 日本 😀"_s);
        EXPECT_EQ(root.member("empty").string(), u""_s);
        EXPECT_EQ(root.member("inner").member("key").string(), u"value"_s);
        ASSERT_TRUE(root.member("date").date().has_value());
        EXPECT_EQ(secondsSince1970(*root.member("date").date()), 1'778'307'200);
        const auto elements = root.member("list").dictionaries();
        ASSERT_EQ(elements.size(), 2U);
        EXPECT_EQ(elements[0].member("n").string(), u"1"_s);
        EXPECT_EQ(elements[1].member("n").string(), u"2"_s);
    }
}

TEST(PropertyList, aValueOfAnotherTypeIsNotThere)
{
    for (const PropertyListFormat format : {PropertyListFormat::Binary, PropertyListFormat::Xml}) {
        const PropertyList list = parsed(sample::propertyList(someDictionary(), format));
        const PropertyListValue root = list.root();
        for (const char *key : {"number", "yes", "real", "data", "date", "inner", "list", "missing"})
            EXPECT_EQ(root.member(key).string(), std::nullopt) << key;
        for (const char *key : {"text", "number", "real", "inner", "missing"})
            EXPECT_FALSE(root.member(key).date().has_value()) << key;
        for (const char *key : {"text", "inner", "mixed", "none", "missing"})
            EXPECT_TRUE(root.member(key).dictionaries().empty()) << key;
        EXPECT_FALSE(root.member("list").isDictionary());
        EXPECT_EQ(root.member("list").member("n").string(), std::nullopt);
        EXPECT_EQ(root.member("text").member("n").member("m").string(), std::nullopt);
    }
}

TEST(PropertyList, stringsKeepTheirWhiteSpace)
{
    EXPECT_EQ(rootString(xml("<string>  two \n\tlines  </string>")), u"  two \n\tlines  "_s);
    EXPECT_EQ(rootString(xml("<string> </string>")), u" "_s);
    EXPECT_EQ(rootString(sample::propertyList(u"  two \n lines "_s, PropertyListFormat::Xml)),
              u"  two \n lines "_s);
}

TEST(PropertyList, charactersAreUnescaped)
{
    EXPECT_EQ(rootString(xml("<string>&lt;a&gt; &amp;&quot;&apos; &#233;&#x1F600;</string>")),
              u"<a> &\"' é😀"_s);
    EXPECT_EQ(rootString(xml("<string>a<![CDATA[<b> &amp;]]>c</string>")), u"a<b> &amp;c"_s);
    EXPECT_EQ(rootString(xml("<string></string>")), u""_s);
    EXPECT_EQ(rootString(xml("<string/>")), u""_s);
}

TEST(PropertyList, aTextEndsAtANulAndBrokenSequencesAreReplaced)
{
    const auto binary = [](auto add) {
        BinaryPropertyList list;
        add(list);
        return list.finish();
    };
    EXPECT_EQ(rootString(binary([](auto &list) { list.ascii(QByteArray("a\0b", 3)); })), u"a"_s);
    EXPECT_EQ(rootString(binary([](auto &list) { list.utf16(QByteArray("\0a\0\0\0b", 6)); })), u"a"_s);
    EXPECT_EQ(rootString(binary([](auto &list) { list.utf16(QByteArray("\0Z\0\xEB", 4)); })), u"Zë"_s);
    EXPECT_EQ(rootString(binary([](auto &list) { list.utf16(QByteArray("\xD8\x3D\xDE\0", 4)); })), u"😀"_s);
    const std::optional<QString> latin = rootString(xml("<string>Z\xFC"
                                                        "rich</string>"));
    EXPECT_EQ(latin, u"Z\uFFFDrich"_s);
}

TEST(PropertyList, halfASurrogatePairIsNoCrash)
{
    for (const QByteArray &text : {QByteArray("\xD8\x3D", 2), QByteArray("\xDE\0", 2),
                                   QByteArray("\xD8\x3D\0a", 4), QByteArray("\xDE\0\xD8\x3D", 4)}) {
        BinaryPropertyList list;
        list.utf16(text);
        const auto result = PropertyList::parse(list.finish());
        EXPECT_TRUE(!result || result->root().string().has_value());
    }
}

TEST(PropertyList, datesKeepTheirFractionsAndReachFarBeyondThisCentury)
{
    const auto binary = [](double seconds) {
        BinaryPropertyList list;
        list.date(seconds);
        return list.finish();
    };
    EXPECT_EQ(rootDate(binary(0)), 978'307'200);
    EXPECT_EQ(rootDate(binary(800'000'000.25)), 1'778'307'200.25);
    EXPECT_EQ(rootDate(binary(-978'307'201.5)), -1.5);
    // 2201-01-01
    EXPECT_EQ(rootDate(binary(6'311'347'200)), 7'289'654'400);
    EXPECT_EQ(rootDate(xml("<date>2026-05-09T06:13:20Z</date>")), 1'778'307'200);
    EXPECT_EQ(rootDate(xml("<date>1969-12-31T23:59:58Z</date>")), -2);
    EXPECT_EQ(rootDate(xml("<date>2201-01-01T00:00:00Z</date>")), 7'289'654'400);
}

TEST(PropertyList, whatCannotBeADateIsNone)
{
    using Limits = std::numeric_limits<double>;
    for (const double seconds :
         {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(), 1e300}) {
        BinaryPropertyList list;
        list.date(seconds);
        EXPECT_EQ(rootDate(list.finish()), std::nullopt) << seconds;
    }
}

TEST(PropertyList, foreignBytesAreRefused)
{
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray(" "), QByteArray("\0", 1), QByteArray("bplist00"), QByteArray("bplist01"),
          QByteArray("bplist00").append(QByteArray(32, '\0')),
          QByteArray("bplist00").append(QByteArray(32, '\xFF')), QByteArray("{\"json\": true}"),
          QByteArray("SQLite format 3\0", 16), QByteArray("<html><body></body></html>"),
          QByteArray("<?xml version=\"1.0\"?>"), QByteArray("<plist>"), QByteArray("<plist></plist>"),
          QByteArray("<plist><dict></array></plist>"), QByteArray("<plist><unknown/></plist>"),
          QByteArray("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><string>&a;"
                     "</string></plist>"),
          QByteArray(1'000'000, '<'), QByteArray(1'000'000, 'a')}) {
        EXPECT_TRUE(isRefused(bytes)) << bytes.left(60).constData();
    }
}

TEST(PropertyList, aTruncatedListIsRefused)
{
    const QByteArray binary = sample::propertyList(someDictionary(), PropertyListFormat::Binary);
    for (qsizetype length = 0; length < binary.size(); ++length)
        EXPECT_TRUE(isRefused(binary.first(length))) << length;
    const QByteArray text = sample::propertyList(someDictionary(), PropertyListFormat::Xml);
    const qsizetype end = text.lastIndexOf("</dict>");
    ASSERT_GT(end, 0);
    for (qsizetype length = 0; length < end; ++length)
        EXPECT_TRUE(isRefused(text.first(length))) << length;
}

TEST(PropertyList, longTextsAreRead)
{
    const QString megabyte = u"ä"_s.repeated(1'000'000);
    for (const PropertyListFormat format : {PropertyListFormat::Binary, PropertyListFormat::Xml})
        EXPECT_EQ(rootString(sample::propertyList(megabyte, format)), megabyte);
}

} // namespace roamlet::testing
