// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Chromium/ChromiumReader.h"

#include "Readers/BrowserReader.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/PlainFiles.h"

#include <QJsonDocument>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::HistoryRow;

namespace
{

/// 2012-12-14 23:06:40 UTC in Chromium's microseconds.
constexpr qint64 someTime = 13'000'000'000'000'000;
constexpr double someTimeSince1970 = 1'355'526'400;

class ChromiumProfiles : public ReaderTest
{
protected:
    /// Lists the profiles in "Local State" and makes their folders.
    void writeChrome(const QJsonObject &infoCache) const
    {
        sample::writeLocalState(chromeFile(u"Local State"_s, {}), infoCache);
        for (const QString &folder : infoCache.keys())
            sample::makeFolder(chromeFile({}, folder));
    }

    void writeEdge(const QJsonObject &infoCache) const
    {
        sample::writeLocalState(edgeFile(u"Local State"_s, {}), infoCache);
        for (const QString &folder : infoCache.keys())
            sample::makeFolder(edgeFile({}, folder));
    }

    QList<Source> profiles(Source::Kind kind = Source::Kind::Chrome)
    {
        return BrowserReader::profiles(kind, context());
    }

    QStringList folders()
    {
        QStringList result;
        for (const Source &source : profiles())
            result.append(*source.profile);
        return result;
    }

    QStringList names(Source::Kind kind)
    {
        QStringList result;
        for (const Source &source : profiles(kind))
            result.append(source.name);
        return result;
    }

    static QJsonObject named(const QString &name) { return {{u"name"_s, name}}; }
};

class ChromiumHistory : public ReaderTest
{
protected:
    void write(const sample::Rows<HistoryRow> &rows) const
    {
        sample::writeHistory(chromeFile(u"History"_s), rows);
    }

    QList<HistoryItem> read(const HistoryQuery &query = HistoryQuery::recent(),
                            const Source &source = chrome())
    {
        const auto items = ChromiumReader::history(source, query, context());
        if (!items)
            ADD_FAILURE() << items.error();
        return items.value_or(QList<HistoryItem>());
    }

    QStringList found(const QString &text, const std::optional<QString> &site = {})
    {
        return titlesOf(read(HistoryQuery::matching(text, site, HistoryQuery::Order::Latest)));
    }
};

} // namespace

TEST_F(ChromiumProfiles, defaultComesFirstAndNumbersCountByValue)
{
    writeChrome({{u"Profile 10"_s, named(u"A"_s)},
                 {u"Default"_s, named(u"Z"_s)},
                 {u"Profile 2"_s, named(u"Q"_s)},
                 {u"profile 3"_s, named(u"B"_s)},
                 {u"another"_s, named(u"X"_s)}});
    EXPECT_EQ(folders(),
              (QStringList{u"Default"_s, u"another"_s, u"Profile 2"_s, u"profile 3"_s, u"Profile 10"_s}));
}

TEST_F(ChromiumProfiles, onlyExactlyDefaultComesFirst)
{
    writeChrome(
        {{u"default"_s, named(u"B"_s)}, {u"Alpha"_s, named(u"A"_s)}, {u"Default 1"_s, named(u"C"_s)}});
    EXPECT_EQ(folders(), (QStringList{u"Alpha"_s, u"default"_s, u"Default 1"_s}));
}

TEST_F(ChromiumProfiles, aProfileIsAWholeSource)
{
    writeChrome({{u"Profile 1"_s, named(u"Work"_s)}});
    EXPECT_EQ(profiles(), (QList<Source>{{.kind = Source::Kind::Chrome,
                                          .profile = u"Profile 1"_s,
                                          .name = u"Work"_s,
                                          .safariBookmarks = Source::AllExcept{}}}));
    EXPECT_EQ(ChromiumReader::folder(profiles().value(0), context()), chromeFile({}, u"Profile 1"_s));
}

TEST_F(ChromiumProfiles, aProfileWithoutItsFolderIsLeftOut)
{
    writeChrome({{u"Default"_s, named(u"A"_s)}});
    sample::writeLocalState(chromeFile(u"Local State"_s, {}),
                            {{u"Default"_s, named(u"A"_s)}, {u"Profile 404"_s, named(u"B"_s)}});
    EXPECT_EQ(folders(), QStringList{u"Default"_s});
}

TEST_F(ChromiumProfiles, aKeyThatIsNoNameOfAFolderIsNoProfile)
{
    writeChrome({{u"Default"_s, named(u"A"_s)}, {u"Another"_s, named(u"B"_s)}});
    QJsonObject cache{{u"Default"_s, named(u"A"_s)}, {u"..."_s, named(u"D"_s)}};
    for (const QString &key :
         QStringList{u""_s, u"."_s, u".."_s, u"/"_s, u"/etc"_s, u"Default/"_s, u"./Default"_s,
                     u"../Chrome/Default"_s, u"Another/.."_s, u"Default"_s % QChar(0)})
        cache.insert(key, named(u"C"_s));
    sample::makeFolder(chromeFile({}, u"..."_s));
    const QJsonObject state{{u"profile"_s, QJsonObject{{u"info_cache"_s, cache}}}};
    sample::writeFile(chromeFile(u"Local State"_s, {}), QJsonDocument(state).toJson());
    EXPECT_EQ(folders(), (QStringList{u"Default"_s, u"..."_s}));
}

TEST_F(ChromiumProfiles, aNameThatNoFileCanHaveIsLeftOut)
{
    writeChrome({{u"Default"_s, named(u"A"_s)}});
    sample::writeLocalState(chromeFile(u"Local State"_s, {}),
                            {{u"Default"_s, named(u"A"_s)}, {u"x"_s.repeated(5000), named(u"B"_s)}});
    EXPECT_EQ(folders(), QStringList{u"Default"_s});
}

TEST_F(ChromiumProfiles, whatStandsBehindANulIsNoSecondNameOfAFolder)
{
    writeChrome({{u"Default"_s, named(u"A"_s)}});
    sample::writeLocalState(chromeFile(u"Local State"_s, {}),
                            {{u"Default"_s, named(u"A"_s)}, {u"Default"_s % QChar(0) % u"x", named(u"B"_s)}});
    EXPECT_EQ(folders(), QStringList{u"Default"_s});
}

TEST_F(ChromiumProfiles, aFileInThePlaceOfTheFolderCounts)
{
    sample::writeLocalState(chromeFile(u"Local State"_s, {}), {{u"Default"_s, named(u"A"_s)}});
    sample::writeFile(chromeFile({}, u"Default"_s), "no folder");
    EXPECT_EQ(folders(), QStringList{u"Default"_s});
}

TEST_F(ChromiumProfiles, withoutANameTheFolderGivesOne)
{
    writeChrome({{u"a"_s, QJsonObject()},
                 {u"b"_s, QJsonObject{{u"name"_s, 5}}},
                 {u"c"_s, QJsonObject{{u"name"_s, QJsonValue::Null}}},
                 {u"d"_s, u"no object"_s},
                 {u"e"_s, QJsonArray{u"name"_s}},
                 {u"f"_s, named(u""_s)},
                 {u"g"_s, named(u"Zoë 日本"_s)}});
    EXPECT_EQ(names(Source::Kind::Chrome),
              (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u""_s, u"Zoë 日本"_s}));
}

TEST_F(ChromiumProfiles, edgesPersonalProfileIsNamedSo)
{
    const auto info = [](const QJsonValue &isDefault, const QJsonValue &type) {
        return QJsonObject{{u"name"_s, u"Profile 1"_s},
                           {u"is_using_default_name"_s, isDefault},
                           {u"edge_account_type"_s, type}};
    };
    QJsonObject withoutName = info(true, 1);
    withoutName.remove(u"name"_s);
    const QJsonObject infoCache{
        {u"a"_s, info(true, 1)},      {u"b"_s, info(false, 1)},   {u"c"_s, info(true, 2)},
        {u"d"_s, info(1, 1)},         {u"e"_s, info(true, true)}, {u"f"_s, info(true, u"1"_s)},
        {u"g"_s, info(u"true"_s, 1)}, {u"h"_s, withoutName},      {u"i"_s, info(true, 1.5)}};
    writeEdge(infoCache);
    const QString personal = u"Personal"_s;
    const QString other = u"Profile 1"_s;
    EXPECT_EQ(names(Source::Kind::Edge),
              (QStringList{personal, other, other, other, other, other, other, personal, other}));
    change([&] { writeChrome({{u"a"_s, info(true, 1)}}); });
    EXPECT_EQ(names(Source::Kind::Chrome), QStringList{other});
}

TEST_F(ChromiumProfiles, aByteOrderMarkIsPartOfAName)
{
    writeChrome({{u"\uFEFFmarked"_s, named(u"\uFEFFMarked"_s)}});
    EXPECT_EQ(folders(), QStringList{u"\uFEFFmarked"_s});
    EXPECT_EQ(names(Source::Kind::Chrome), QStringList{u"\uFEFFMarked"_s});
}

TEST_F(ChromiumProfiles, anIntegerMayBeWrittenWithAFraction)
{
    sample::writeFile(edgeFile(u"Local State"_s, {}),
                      R"({"profile": {"info_cache": {"Default": {"name": "x", "is_using_default_name": true,
                          "edge_account_type": 1.0}}}})");
    sample::makeFolder(edgeFile({}));
    EXPECT_EQ(names(Source::Kind::Edge), QStringList{u"Personal"_s});
}

TEST_F(ChromiumProfiles, anUnusableLocalStateMeansNoProfiles)
{
    sample::makeFolder(chromeFile({}));
    EXPECT_EQ(profiles(), QList<Source>());
    for (const char *text : {"", "{", "[]", "null", "{}", R"({"profile": []})", R"({"profile": {}})",
                             R"({"profile": {"info_cache": []}})", R"({"info_cache": {"Default": {}}})",
                             "\xEF\xBB\xBF{\"profile\": {\"info_cache\": {\"Default\": {}}}}",
                             R"({"profile": {"info_cache": {"Default": {}}})"}) {
        change([&] { sample::writeFile(chromeFile(u"Local State"_s, {}), text); });
        EXPECT_EQ(profiles(), QList<Source>()) << text;
    }
    change([&] { writeChrome({{u"Default"_s, named(u"A"_s)}}); });
    EXPECT_EQ(profiles().size(), 1);
    refuse(chromeFile(u"Local State"_s, {}), std::errc::permission_denied);
    EXPECT_EQ(profiles(), QList<Source>());
}

TEST_F(ChromiumProfiles, eachBrowserHasItsOwnAndSafariNone)
{
    writeChrome({{u"Default"_s, named(u"A"_s)}});
    writeEdge({{u"Default"_s, named(u"B"_s)}});
    EXPECT_EQ(names(Source::Kind::Chrome), QStringList{u"A"_s});
    EXPECT_EQ(names(Source::Kind::Edge), QStringList{u"B"_s});
    EXPECT_EQ(profiles(Source::Kind::Safari), QList<Source>());
}

TEST_F(ChromiumHistory, aRowIsAWholeItem)
{
    write({{.id = 4711,
            .url = u"HTTPS://www.Example.com:8443/Path?Q=1"_s,
            .title = u"ÄTitle"_s,
            .visitCount = 5'000'000'000,
            .lastVisitTime = someTime}});
    EXPECT_EQ(read(), (QList<HistoryItem>{{.id = u"chrome/Default/4711"_s,
                                           .title = u"ÄTitle"_s,
                                           .url = u"HTTPS://www.Example.com:8443/Path?Q=1"_s,
                                           .lastVisit = pointInTime(someTimeSince1970),
                                           .visitCount = 5'000'000'000,
                                           .source = chrome(),
                                           .site = u"example.com"_s}}));
}

TEST_F(ChromiumHistory, eachProfileHasItsOwnFile)
{
    write({{.id = 1, .url = u"https://a.example/"_s, .title = u"Default"_s, .lastVisitTime = someTime}});
    sample::writeHistory(
        chromeFile(u"History"_s, u"Profile 2"_s),
        {{.id = 1, .url = u"https://a.example/"_s, .title = u"second"_s, .lastVisitTime = someTime}});
    sample::writeHistory(
        edgeFile(u"History"_s),
        {{.id = 1, .url = u"https://a.example/"_s, .title = u"edge"_s, .lastVisitTime = someTime}});
    EXPECT_EQ(titlesOf(read()), QStringList{u"Default"_s});
    EXPECT_EQ(read({}, chrome(u"Profile 2"_s)).value(0).id, u"chrome/Profile 2/1"_s);
    EXPECT_EQ(read({}, edge()).value(0).id, u"edge/Default/1"_s);
    EXPECT_EQ(titlesOf(read({}, edge())), QStringList{u"edge"_s});
}

TEST_F(ChromiumHistory, microsecondsAreKept)
{
    write({{.url = u"https://a.example/"_s, .title = u"first"_s, .lastVisitTime = someTime + 1},
           {.url = u"https://b.example/"_s, .title = u"second"_s, .lastVisitTime = someTime + 2},
           {.url = u"https://c.example/"_s, .title = u"oldest"_s, .lastVisitTime = 1}});
    const QList<HistoryItem> items = read();
    ASSERT_EQ(titlesOf(items), (QStringList{u"second"_s, u"first"_s, u"oldest"_s}));
    EXPECT_GT(items[0].lastVisit, items[1].lastVisit);
    EXPECT_DOUBLE_EQ(secondsSince1970(items[2].lastVisit), 0.000001 - 11'644'473'600);
}

TEST_F(ChromiumHistory, rowsThatWereNeverVisitedAreDroppedAfterTheLimit)
{
    write({{.url = u"https://a.example/"_s, .title = u"never"_s, .visitCount = 9, .lastVisitTime = 0},
           {.url = u"https://b.example/"_s, .title = u"before"_s, .visitCount = 8, .lastVisitTime = -5},
           {.url = u"https://c.example/"_s, .title = u"visited"_s, .visitCount = 1, .lastVisitTime = 1}});
    EXPECT_EQ(titlesOf(read()), QStringList{u"visited"_s});
    EXPECT_EQ(read(listing(HistoryQuery::Order::MostVisited, 2)), QList<HistoryItem>());
}

TEST_F(ChromiumHistory, aRowWithoutTitleMatchesNoWord)
{
    write({{.url = u"https://a.example/"_s, .lastVisitTime = 2},
           {.url = u"https://a.example/"_s, .title = u""_s, .lastVisitTime = 1},
           {.title = u"example"_s, .lastVisitTime = 3}});
    EXPECT_EQ(found(u"example"_s).size(), 1);
    EXPECT_EQ(found({}, u"a.example"_s).size(), 2);
}

} // namespace roamlet::testing
