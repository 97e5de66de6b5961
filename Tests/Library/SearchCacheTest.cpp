// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/SearchCache.h"

#include "Library/HistorySearch.h"
#include "Library/LibraryReading.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QFile>

#include <gmock/gmock.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class SearchCacheTest : public LibraryHome
{
protected:
    void SetUp() override
    {
        addChromium();
        sources = LibraryReading::allProfiles({}, home.context());
    }
    void TearDown() override
    {
        EXPECT_TRUE(waitUntil([this] { return home.leftovers().isEmpty(); }));
        LibraryHome::TearDown();
    }

    /// Expects a search and waits until all is built.
    void fill()
    {
        cache.expectSearch(sources);
        finish();
    }
    void finish()
    {
        EXPECT_TRUE(waitUntil([this] { return !cache.isBuilding(); }));
    }
    /// The ids of the sources that have a text.
    QStringList ready() const
    {
        QStringList result;
        for (auto text = cache.texts().cbegin(); text != cache.texts().cend(); ++text) {
            if (text->text)
                result.append(text.key());
        }
        return result;
    }
    void setLimit(const QString &mebibytes) { home.defaults.setString(SearchCache::limitKey, mebibytes); }
    /// So many rows with a title of so many bytes.
    void setLongHistory(const QString &profile, qsizetype rows, qsizetype titleSize)
    {
        change([&] {
            sample::writeHistory(chromeFile(profile % u"/History"),
                                 sample::Rows<sample::HistoryRow>::generated(rows, [titleSize](qsizetype i) {
                                     return sample::HistoryRow{.url = u"https://a.example/%1"_s.arg(i),
                                                               .title = QString(titleSize, u'x'),
                                                               .lastVisitTime =
                                                                   sample::chromiumTime(newest - i)};
                                 }));
        });
    }

    QList<Source> sources;
    SearchCache cache{home.platform()};
};

TEST_F(SearchCacheTest, isEmptyUntilASearchIsExpected)
{
    EXPECT_THAT(cache.texts(), IsEmpty());
    EXPECT_FALSE(cache.isBuilding());
    cache.setSearching(false, sources);
    EXPECT_FALSE(cache.isBuilding());
}

TEST_F(SearchCacheTest, everySourceHasItsText)
{
    recordReads();
    cache.expectSearch(sources);
    EXPECT_TRUE(cache.isBuilding());
    EXPECT_THAT(cache.texts(), IsEmpty()) << "nothing is built in the call itself";
    finish();
    EXPECT_THAT(ready(), UnorderedElementsAre(u"chrome/Default"_s, u"chrome/Profile 1"_s, u"edge/Default"_s));
    EXPECT_EQ(takeReads().size(), 3);
    const auto answer = cache.texts()[u"chrome/Default"_s].text->search(
        HistoryQuery::matching(u"a2"_s, {}, HistoryQuery::Order::Latest));
    ASSERT_TRUE(answer);
    EXPECT_EQ(titles(answer->results.items), QStringList{u"a2"_s});
}

TEST_F(SearchCacheTest, onlyWhatHasChangedIsReadAgain)
{
    fill();
    recordReads();
    fill();
    EXPECT_TRUE(takeReads().isEmpty());
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    fill();
    EXPECT_EQ(takeReads(), QStringList{u"chrome/Profile 1"_s});
    EXPECT_EQ(cache.texts()[u"chrome/Profile 1"_s].text->rowCount(), 1U);
}

TEST_F(SearchCacheTest, whatIsAskedForDuringTheBuildingIsLookedAtAfterIt)
{
    Gate gate;
    recordReads(&gate);
    cache.expectSearch(sources);
    EXPECT_TRUE(waitUntil([&gate] { return gate.readerHasCome(); }));
    cache.expectSearch({sources.last()});
    gate.open();
    finish();
    EXPECT_EQ(ready(), QStringList{u"edge/Default"_s}) << "the others are no longer asked for";
    EXPECT_EQ(takeReads().size(), 3) << "and it was not read twice";
}

TEST_F(SearchCacheTest, aMinuteAfterTheLastExpectationAllIsLetGo)
{
    fill();
    home.clock.advance(59s);
    fill();
    home.clock.advance(59s);
    EXPECT_EQ(cache.texts().size(), 3);
    home.clock.advance(1s);
    EXPECT_THAT(cache.texts(), IsEmpty());
}

TEST_F(SearchCacheTest, whileSomebodySearchesAllIsKeptAndForAMinuteAfterThat)
{
    cache.setSearching(true, sources);
    finish();
    home.clock.advance(1h);
    fill();
    home.clock.advance(1h);
    EXPECT_EQ(cache.texts().size(), 3);
    cache.setSearching(false, sources);
    home.clock.advance(30s);
    cache.setSearching(false, sources);
    home.clock.advance(29s);
    EXPECT_EQ(cache.texts().size(), 3);
    home.clock.advance(1s);
    EXPECT_THAT(cache.texts(), IsEmpty());
    EXPECT_EQ(home.clock.waiting(), 0U);
}

TEST_F(SearchCacheTest, aSearchWithinTheMinuteKeepsThem)
{
    cache.setSearching(true, sources);
    finish();
    cache.setSearching(false, sources);
    home.clock.advance(59s);
    cache.setSearching(true, sources);
    finish();
    home.clock.advance(1h);
    EXPECT_EQ(cache.texts().size(), 3);
}

TEST_F(SearchCacheTest, clearingEndsTheBuilding)
{
    Gate gate;
    recordReads(&gate);
    cache.setSearching(true, sources);
    EXPECT_TRUE(waitUntil([&gate] { return gate.readerHasCome(); }));
    cache.clear();
    EXPECT_FALSE(cache.isBuilding());
    gate.open();
    EXPECT_TRUE(waitUntil([this] { return home.leftovers().isEmpty(); }));
    EXPECT_THAT(cache.texts(), IsEmpty());
    home.files.failure = {};
    fill();
    EXPECT_EQ(cache.texts().size(), 3) << "and it can begin again";
    home.clock.advance(1min);
    EXPECT_THAT(cache.texts(), IsEmpty()) << "nobody searches any more";
}

TEST_F(SearchCacheTest, goingDuringTheBuildingLeavesNothing)
{
    Gate gate;
    recordReads(&gate);
    {
        SearchCache other(home.platform());
        other.expectSearch(sources);
        EXPECT_TRUE(waitUntil([&gate] { return gate.readerHasCome(); }));
        gate.open();
    }
    EXPECT_TRUE(home.leftovers().isEmpty());
}

TEST_F(SearchCacheTest, nothingIsRenewedForNobody)
{
    cache.renew(sources);
    EXPECT_FALSE(cache.isBuilding());
    fill();
    cache.clear();
    cache.renew(sources);
    EXPECT_FALSE(cache.isBuilding());
    cache.setSearching(true, sources);
    finish();
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    cache.renew(sources);
    EXPECT_TRUE(cache.isBuilding());
    finish();
    EXPECT_EQ(ready().size(), 3);
}

TEST_F(SearchCacheTest, sourcesThatAreGoneLoseTheirTexts)
{
    fill();
    sources.removeFirst();
    fill();
    EXPECT_THAT(ready(), UnorderedElementsAre(u"chrome/Profile 1"_s, u"edge/Default"_s));
}

TEST_F(SearchCacheTest, theFirstSourcesHaveTextsAsFarAsTheMemoryAllows)
{
    setLongHistory(u"Default"_s, 700, 1000);
    setLongHistory(u"Profile 1"_s, 700, 1000);
    setLimit(u"1"_s);
    fill();
    EXPECT_THAT(ready(), UnorderedElementsAre(u"chrome/Default"_s, u"edge/Default"_s))
        << "what is too large leaves its room to the smaller ones";
    sources.move(1, 0);
    cache.clear();
    fill();
    EXPECT_THAT(ready(), UnorderedElementsAre(u"chrome/Profile 1"_s, u"edge/Default"_s));
    recordReads();
    fill();
    EXPECT_TRUE(takeReads().isEmpty()) << "what is too large is not tried again";
    setLongHistory(u"Default"_s, 100, 1000);
    fill();
    EXPECT_EQ(ready().size(), 3) << "until its file is another one";
}

TEST_F(SearchCacheTest, theLimitIsASetting)
{
    setLimit(u"0"_s);
    recordReads();
    fill();
    EXPECT_THAT(ready(), IsEmpty());
    EXPECT_FALSE(cache.hasTexts());
    EXPECT_TRUE(takeReads().isEmpty()) << "nothing is read for nothing";
    setLimit(u"256"_s);
    fill();
    EXPECT_EQ(ready().size(), 3) << "there is room now";
    cache.clear();
    for (const QString &setting : {u""_s, u"lots"_s, u"1.5"_s, u"99999999999999999999"_s}) {
        setLimit(setting);
        fill();
        EXPECT_EQ(ready().size(), 3) << qPrintable(setting) << ": as if it were absent";
        cache.clear();
    }
    setLimit(u"-5"_s);
    fill();
    EXPECT_THAT(ready(), IsEmpty());
    cache.clear();
    setLimit(u"9000000000000000000"_s);
    fill();
    EXPECT_EQ(ready().size(), 3);
}

TEST_F(SearchCacheTest, whatCannotBeReadIsTriedAgainTheNextTime)
{
    fail(chromeFile(u"Default/History"_s), std::errc::io_error);
    fill();
    EXPECT_THAT(ready(), UnorderedElementsAre(u"chrome/Profile 1"_s, u"edge/Default"_s));
    recordReads();
    cache.renew(sources);
    finish();
    EXPECT_TRUE(takeReads().isEmpty()) << "not for each letter";
    fill();
    EXPECT_EQ(takeReads(), QStringList{u"chrome/Default"_s});
    EXPECT_EQ(ready().size(), 3);
}

TEST_F(SearchCacheTest, aSourceThatVanishesWhileItIsReadHasNothing)
{
    // Whoever reads may not do it.
    QObject mainThread;
    home.files.afterCopy = [this, &mainThread](const QString &path) {
        if (path == edgeFile(u"Default/History"_s))
            QMetaObject::invokeMethod(
                &mainThread, [path] { QFile::remove(path); }, Qt::BlockingQueuedConnection);
    };
    change([this] { fill(); });
    home.files.afterCopy = {};
    fill();
    ASSERT_TRUE(cache.texts()[u"edge/Default"_s].text);
    EXPECT_EQ(cache.texts()[u"edge/Default"_s].text->rowCount(), 0U);
}

TEST_F(SearchCacheTest, threeHundredSourcesAreReadOneAfterTheOther)
{
    change([this] {
        for (int i = 0; i < 300; ++i) {
            sample::writeHistory(chromeFile(u"Profile %1/History"_s.arg(i + 10)),
                                 {sample::HistoryRow{.url = u"https://%1.example/"_s.arg(i),
                                                     .title = QString::number(i),
                                                     .lastVisitTime = sample::chromiumTime(newest)}});
        }
    });
    sources.clear();
    for (int i = 0; i < 300; ++i)
        sources.append({.kind = Source::Kind::Chrome,
                        .profile = u"Profile %1"_s.arg(i + 10),
                        .name = QString::number(i),
                        .safariBookmarks = Source::None{}});
    cache.expectSearch(sources);
    EXPECT_TRUE(waitUntil([this] { return !cache.isBuilding(); }, 60s));
    EXPECT_EQ(ready().size(), 300);
    const HistorySearch search(HistoryQuery::matching(u"example"_s, {}, HistoryQuery::Order::Latest), sources,
                               {}, cache.texts(), home.context());
    ASSERT_TRUE(search.known());
    EXPECT_EQ(search.known()->results.items.size(), 300);
}

} // namespace
} // namespace roamlet::testing
