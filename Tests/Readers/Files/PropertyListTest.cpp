// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/PropertyList.h"

#include "Readers/Files/BinaryPropertyList.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/PropertyLists.h"

#include <QStringEncoder>
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
bool isNoPropertyList(const QByteArray &bytes)
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

TEST(PropertyList, aTextIsWholeAndBrokenSequencesAreReplaced)
{
    const auto binary = [](auto add) {
        BinaryPropertyList list;
        add(list);
        return list.finish();
    };
    EXPECT_EQ(rootString(binary([](auto &list) { list.ascii(QByteArray("a\0b", 3)); })), u"a\0b"_s);
    EXPECT_EQ(rootString(binary([](auto &list) { list.utf16(QByteArray("\0a\0\0\0b", 6)); })), u"a\0b"_s);
    EXPECT_EQ(rootString(xml(QByteArray("<string>a\0b</string>", 20))), u"a\0b"_s);
    EXPECT_EQ(rootString(binary([](auto &list) { list.ascii("\xEF\xBB\xBFmarked"); })), u"\uFEFFmarked"_s);
    EXPECT_EQ(rootString(binary([](auto &list) { list.utf16(QByteArray("\xFE\xFF\0m", 4)); })), u"\uFEFFm"_s);
    EXPECT_EQ(rootString(binary([](auto &list) { list.utf16(QByteArray("\xFF\xFE\0m", 4)); })), u"\uFFFEm"_s);
    EXPECT_EQ(rootString(xml("<string>\xEF\xBB\xBFmarked</string>")), u"\uFEFFmarked"_s);
    EXPECT_EQ(rootString(binary([](auto &list) { list.utf16(QByteArray("\0Z\0\xEB", 4)); })), u"Zë"_s);
    EXPECT_EQ(rootString(binary([](auto &list) { list.utf16(QByteArray("\xD8\x3D\xDE\0", 4)); })), u"😀"_s);
    const std::optional<QString> latin = rootString(xml("<string>Z\xFC"
                                                        "rich</string>"));
    EXPECT_EQ(latin, u"Z\uFFFDrich"_s);
}

TEST(PropertyList, everyCharacterIsReadAlikeInBothFormats)
{
    QString text;
    for (char16_t code = 1; code < 0x180; ++code) {
        // XML has one end of a line only.
        if (code != u'\r')
            text += QChar(code);
    }
    text += u"\u2028\uFDCF\uFDF0\uFEFF\uFFFD\uFFFE\uFFFF\U0001F600\U0010FFFF"_s;
    for (const PropertyListFormat format : {PropertyListFormat::Binary, PropertyListFormat::Xml})
        EXPECT_EQ(rootString(sample::propertyList(text, format)), text);
}

TEST(PropertyList, anXmlListMayHaveAnyEncoding)
{
    const auto declaring = [](const QString &encoding) {
        return QString(u"<?xml version=\"1.0\" encoding=\"" % encoding %
                       u"\"?>\n<plist version=\"1.0\"><string>Zo\u00EB</string></plist>");
    };
    const auto encoded = [](QStringConverter::Encoding encoding, QStringConverter::Flags flags,
                            const QString &text) -> QByteArray {
        return QStringEncoder(encoding, flags)(text);
    };
    constexpr auto marked = QStringConverter::Flag::WriteBom;
    constexpr auto plain = QStringConverter::Flag::Default;
    for (const QByteArray &bytes :
         {encoded(QStringConverter::Utf8, marked, declaring(u"UTF-8"_s)),
          encoded(QStringConverter::Utf8, plain, declaring(u"utf-8"_s)),
          encoded(QStringConverter::Utf16LE, marked, declaring(u"UTF-16"_s)),
          encoded(QStringConverter::Utf16BE, marked, declaring(u"UTF-16"_s)),
          encoded(QStringConverter::Utf16LE, plain, declaring(u"UTF-16LE"_s)),
          encoded(QStringConverter::Utf16BE, plain, declaring(u"UTF-16BE"_s)),
          encoded(QStringConverter::Latin1, plain, declaring(u"ISO-8859-1"_s)),
          encoded(QStringConverter::Latin1, plain, declaring(u"windows-1252"_s)),
          encoded(QStringConverter::Utf16LE, marked, u"<plist><string>Zo\u00EB</string></plist>"_s),
          encoded(QStringConverter::Utf8, marked, u"<plist><string>Zo\u00EB</string></plist>"_s),
          encoded(QStringConverter::Utf8, plain, u"\n\n<plist><string>Zo\u00EB</string></plist>"_s)}) {
        EXPECT_EQ(rootString(bytes), u"Zoë"_s) << bytes.constData();
    }
    EXPECT_EQ(rootString(QByteArray(declaring(u"macintosh"_s).toLatin1()).replace("\xEB", "\x91")), u"Zoë"_s);
    EXPECT_TRUE(isNoPropertyList(declaring(u"no-such-encoding"_s).toUtf8()));
}

TEST(PropertyList, theLastOfTheValuesUnderOneKeyCounts)
{
    BinaryPropertyList binary;
    const int key = binary.ascii("key");
    binary.dictionary({{key, binary.ascii("first")}, {key, binary.ascii("last")}});
    for (const QByteArray &bytes :
         {binary.finish(),
          xml("<dict><key>key</key><string>first</string><key>key</key><string>last</string></dict>")})
        EXPECT_EQ(parsed(bytes).root().member("key").string(), u"last"_s);
}

TEST(PropertyList, aKeyIsAText)
{
    BinaryPropertyList list;
    const int number = list.integer(1);
    const int wide = list.utf16(QByteArray("\0k\0e\0y", 6));
    list.dictionary({{number, number}, {wide, list.ascii("value")}});
    EXPECT_EQ(parsed(list.finish()).root().member("key").string(), u"value"_s);
    EXPECT_EQ(parsed(xml("<dict><key>k<!-- -->&#101;<![CDATA[y]]></key><string>value</string></dict>"))
                  .root()
                  .member("key")
                  .string(),
              u"value"_s);
}

TEST(PropertyList, aLastKeyWithoutAValueIsNone)
{
    const PropertyList list = parsed(xml("<dict><key>a</key><string>1</string><key>b</key></dict>"));
    EXPECT_EQ(list.root().member("a").string(), u"1"_s);
    EXPECT_EQ(list.root().member("b").string(), std::nullopt);
}

TEST(PropertyList, whatIsOfAnUnknownKindIsNoValue)
{
    BinaryPropertyList list;
    const QByteArray objects[]{
        QByteArray("\0", 1), "\x09", "\x0F", "\x80\x01", "\x70", "\xF0", "\x22", "\x31", "\x4F"};
    QList<std::pair<int, int>> entries;
    const int key = list.ascii("odd");
    for (const QByteArray &object : objects)
        entries.append({key, list.raw(object)});
    const int set = list.raw(QByteArray("\xC1\0\0\0\0", 5));
    entries.append({list.ascii("set"), set});
    entries.append({list.ascii("text"), list.ascii("value")});
    list.dictionary(entries);
    const PropertyList parsedList = parsed(list.finish());
    const PropertyListValue root = parsedList.root();
    EXPECT_EQ(root.member("text").string(), u"value"_s);
    for (const char *name : {"odd", "set"}) {
        EXPECT_EQ(root.member(name).string(), std::nullopt);
        EXPECT_FALSE(root.member(name).date().has_value());
        EXPECT_FALSE(root.member(name).isDictionary());
        EXPECT_TRUE(root.member(name).dictionaries().empty());
    }
}

TEST(PropertyList, halfASurrogatePairIsReplaced)
{
    const std::vector<std::pair<QByteArray, QString>> texts{
        {QByteArray("\xD8\x3D", 2), u"\uFFFD"_s},
        {QByteArray("\xDE\0", 2), u"\uFFFD"_s},
        {QByteArray("\xD8\x3D\0a", 4), u"\uFFFDa"_s},
        {QByteArray("\xDE\0\xD8\x3D", 4), u"\uFFFD\uFFFD"_s}};
    for (const auto &[bytes, text] : texts) {
        BinaryPropertyList list;
        list.utf16(bytes);
        EXPECT_EQ(rootString(list.finish()), text) << bytes.toHex().constData();
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
    EXPECT_EQ(rootDate(xml("<date>\n 2026-05-09T06:13:20Z </date>")), 1'778'307'200);
    EXPECT_EQ(rootDate(xml("<date>2026-05-09T06:13:20.25Z</date>")), 1'778'307'200.25);
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
    for (const char *text : {"", "Z", "now", "2026-05-09", "2026-99-09T06:13:20Z", "2026-05-09T06:13:20",
                             "2026-05-09T06:13:20+02:00", "800000000"}) {
        EXPECT_EQ(rootDate(xml(QByteArray("<date>") + text + "</date>")), std::nullopt) << text;
    }
}

TEST(PropertyList, foreignBytesAreRefused)
{
    for (const QByteArray &bytes :
         {QByteArray(),
          QByteArray(" "),
          QByteArray("\0", 1),
          QByteArray("bplist00"),
          QByteArray("bplist01"),
          QByteArray("bplist00").append(QByteArray(32, '\0')),
          QByteArray("bplist00").append(QByteArray(32, '\xFF')),
          QByteArray("{\"json\": true}"),
          QByteArray("SQLite format 3\0", 16),
          QByteArray("<html><body></body></html>"),
          QByteArray("<?xml version=\"1.0\"?>"),
          QByteArray("<plist>"),
          QByteArray("<plist></plist>"),
          QByteArray("<plist><dict></array></plist>"),
          QByteArray("<plist><unknown/></plist>"),
          QByteArray("<plist><plist><string/></plist></plist>"),
          QByteArray("<plist><dict><string>value</string></dict></plist>"),
          QByteArray("<plist><dict><key>a</key><key>b</key></dict></plist>"),
          QByteArray("<plist><dict>text<key>a</key><true/></dict></plist>"),
          QByteArray("<plist><string>a<b>c</b></string></plist>"),
          QByteArray("<plist><string>&unknown;</string></plist>"),
          QByteArray("<!DOCTYPE plist PUBLIC \"a\" \"b\"><plist><string>&unknown;</string></plist>"),
          QByteArray("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><string>&a;"
                     "</string></plist>"),
          QByteArray(1'000'000, '<'),
          QByteArray(1'000'000, 'a')}) {
        EXPECT_TRUE(isNoPropertyList(bytes)) << bytes.left(60).constData();
    }
}

TEST(PropertyList, aTruncatedListIsRefused)
{
    const QByteArray binary = sample::propertyList(someDictionary(), PropertyListFormat::Binary);
    for (qsizetype length = 0; length < binary.size(); ++length)
        EXPECT_TRUE(isNoPropertyList(binary.first(length))) << length;
    const QByteArray text = sample::propertyList(someDictionary(), PropertyListFormat::Xml);
    const qsizetype end = text.lastIndexOf("</dict>");
    ASSERT_GT(end, 0);
    for (qsizetype length = 0; length < end; ++length)
        EXPECT_TRUE(isNoPropertyList(text.first(length))) << length;
}

TEST(PropertyList, longTextsAreRead)
{
    const QString megabyte = u"ä"_s.repeated(1'000'000);
    for (const PropertyListFormat format : {PropertyListFormat::Binary, PropertyListFormat::Xml})
        EXPECT_EQ(rootString(sample::propertyList(megabyte, format)), megabyte);
}

} // namespace roamlet::testing
