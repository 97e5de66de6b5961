// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/Refine.h"

#include "Lists/ListRows.h"
#include "Platform/BackgroundTasks.h"
#include "Support/FakeClock.h"

#include <QObject>
#include <QTest>
#include <QThread>

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Bookmarks = SortComparator<Bookmark>;

namespace
{

/// Waits on the fake clock, and works when the test says so.
class StepByStep final : public RefineRunner
{
public:
    explicit StepByStep(FakeClock &clock) : m_clock(clock) {}

    void after(std::chrono::milliseconds duration, std::function<void()> action) override
    {
        m_clock.after(duration, &m_context, std::move(action));
    }
    void run(std::function<void()> work, std::function<void()> deliver) override
    {
        m_jobs.emplace_back([work = std::move(work), deliver = std::move(deliver)] {
            work();
            deliver();
        });
    }

    std::size_t jobs() const { return m_jobs.size(); }
    void work()
    {
        for (const auto &job : std::exchange(m_jobs, {}))
            job();
    }

private:
    FakeClock &m_clock;
    QObject m_context;
    std::vector<std::function<void()>> m_jobs;
};

/// On threads, as the program does it.
class OnThreads final : public RefineRunner
{
public:
    explicit OnThreads(FakeClock &clock) : m_clock(clock) {}

    void after(std::chrono::milliseconds duration, std::function<void()> action) override
    {
        m_clock.after(duration, &m_context, std::move(action));
    }
    void run(std::function<void()> work, std::function<void()> deliver) override
    {
        m_tasks.run(
            &m_context,
            [work = std::move(work)](const std::stop_token & /*stop*/) {
                work();
                return true;
            },
            [deliver = std::move(deliver)](bool /*done*/) { deliver(); });
    }

private:
    FakeClock &m_clock;
    QObject m_context;
    BackgroundTasks m_tasks;
};

const QList<Bookmark> someBookmarks{bookmark(u"Foo"_s, {}, {u"Bar"_s}), bookmark(u"foo only"_s),
                                    bookmark(u"bar, then foo"_s), bookmark(u"neither"_s)};

const QList<Bookmarks> byTitle{{Bookmarks::Column::Title, SortOrder::Forward}};

std::shared_ptr<const Collation> english()
{
    return std::make_shared<const Collation>(u"en_US"_s);
}

/// What refining with `search` gives, and how often it was delivered.
struct Refining {
    FakeClock clock;
    StepByStep runner{clock};
    std::vector<std::string> delivered;

    std::stop_source type(const QString &search, const QList<Bookmark> &rows = someBookmarks,
                          const QList<Bookmarks> &order = byTitle)
    {
        return refine(runner, rows, search, order, &Bookmark::searchKey, english(),
                      [this](const std::optional<QList<Bookmark>> &result) {
                          delivered.push_back(result ? titles(*result) : "cancelled");
                      });
    }
};

std::string found(const QString &search, const QList<Bookmark> &rows = someBookmarks)
{
    return titles(
        *refinedRows(rows, refineWords(refineText(search)), {}, &Bookmark::searchKey, Collation(u"en_US"_s)));
}

} // namespace

TEST(RefineText, dropsSpacesAndTabsAroundItButNotLineEnds)
{
    EXPECT_EQ(refineText(u"  \t Foo  Bar\t "), u"foo  bar");
    EXPECT_EQ(refineText(u"\u00a0\u3000x\u2003"), u"x");
    EXPECT_EQ(refineText(u"\nx\r\n"), u"\nx\r\n");
    EXPECT_EQ(refineText(u" \t "), u"");
    EXPECT_EQ(refineText({}), u"");
}

TEST(RefineText, isLowerCaseInEveryScript)
{
    EXPECT_EQ(refineText(u"ÄÖ ΣΑ Привет"), u"äö σα привет");
    EXPECT_EQ(refineText(u"ΣΊΣΥΦΟΣ ΟΔΟΣ"), u"σίσυφος οδος");
    EXPECT_EQ(refineText(u"I"), u"i") << "also for Turkish users: rows were lower-cased without their locale";
}

TEST(RefineWords, areSeparatedBySpacesOnly)
{
    EXPECT_THAT(refineWords(u"a  b   c"_s), ElementsAre(u"a"_s, u"b"_s, u"c"_s));
    EXPECT_THAT(refineWords(u"a\tb\nc d"_s), ElementsAre(u"a\tb\nc"_s, u"d"_s));
    EXPECT_THAT(refineWords(u""_s), IsEmpty());
}

TEST(RefinedRows, holdEveryWordInAnyOrder)
{
    EXPECT_EQ(found(u"  Foo   Bar "_s), "Foo bar, then foo");
    EXPECT_EQ(found(u"bar foo"_s), "Foo bar, then foo");
    EXPECT_EQ(found(u"foo"_s), "Foo foo only bar, then foo");
    EXPECT_EQ(found(u"foo foo"_s), "Foo foo only bar, then foo") << "one place may serve both";
    EXPECT_EQ(found(u"foo nowhere"_s), "");
}

TEST(RefinedRows, holdTheWordsAnywhere)
{
    EXPECT_EQ(found(u"eith"_s), "neither");
    EXPECT_EQ(found(u"example.org/page"_s), "Foo foo only bar, then foo neither");
    EXPECT_EQ(found(u"o\nhttps"_s), "Foo bar, then foo") << "the text is one piece";
}

TEST(RefinedRows, compareCodeByCode)
{
    const QList<Bookmark> rows{bookmark(u"caf\u00e9"_s), bookmark(u"cafe\u0301"_s), bookmark(u"cafe"_s),
                               bookmark(u"a%b"_s), bookmark(u"a_b"_s)};
    EXPECT_EQ(found(u"caf\u00e9"_s, rows), "caf\u00e9");
    EXPECT_EQ(found(u"cafe"_s, rows), "cafe\u0301 cafe") << "a letter matches although an accent follows";
    EXPECT_EQ(found(u"a%b"_s, rows), "a%b");
    EXPECT_EQ(found(u"a_b"_s, rows), "a_b");
    EXPECT_EQ(found(u"a.b"_s, rows), "");
}

TEST(RefinedRows, holdASigmaWhereverItStandsInAWord)
{
    const QList<Bookmark> rows{bookmark(u"σίσυφος"_s), bookmark(u"ΣΊΣΥΦΟΣ"_s), bookmark(u"ΟΔΟΣΤΡΩΤΉΡΑΣ"_s)};
    EXPECT_EQ(found(u"ΣΊΣΥΦΟΣ"_s, rows), "σίσυφος ΣΊΣΥΦΟΣ");
    EXPECT_EQ(found(u"ΣΊΣ"_s, rows), "σίσυφος ΣΊΣΥΦΟΣ")
        << "a final sigma in the word, another one in the title";
    EXPECT_EQ(found(u"ΟΔΟΣ"_s, rows), "ΟΔΟΣΤΡΩΤΉΡΑΣ");
    EXPECT_EQ(found(u"ος"_s, rows), "σίσυφος ΣΊΣΥΦΟΣ ΟΔΟΣΤΡΩΤΉΡΑΣ");
}

TEST(RefinedRows, areMatchedByTheKeyThatIsGiven)
{
    const QList<Bookmark> rows{bookmark(u"a"_s, {}, {u"inside"_s}), bookmark(u"inside"_s)};
    EXPECT_EQ(titles(*refinedRows(rows, {u"inside"_s}, {}, &Bookmark::title, Collation(u"en_US"_s))),
              "inside");
    EXPECT_EQ(
        titles(*refinedRows(
            rows, {u"inside"_s}, {}, [](const Bookmark &row) { return row.folder; }, Collation(u"en_US"_s))),
        "a");
}

TEST(RefinedRows, areSorted)
{
    EXPECT_EQ(
        titles(*refinedRows(someBookmarks, {u"foo"_s}, byTitle, &Bookmark::searchKey, Collation(u"en_US"_s))),
        "bar, then foo Foo foo only");
    EXPECT_EQ(titles(*refinedRows(someBookmarks, {}, {{Bookmarks::Column::Title, SortOrder::Reverse}},
                                  &Bookmark::searchKey, Collation(u"en_US"_s))),
              "neither foo only Foo bar, then foo");
}

TEST(RefinedRows, areNothingOnceAStopIsRequested)
{
    const auto source = std::make_unique<std::stop_source>();
    int asked = 0;
    const auto key = [&](const Bookmark &row) {
        if (++asked == 2)
            source->request_stop();
        return row.searchKey;
    };
    EXPECT_FALSE(
        refinedRows(someBookmarks, {u"foo"_s}, byTitle, key, Collation(u"en_US"_s), source->get_token()));
    EXPECT_EQ(asked, 2) << "the rest is not looked at";
}

TEST(Refine, waitsForTheTextToStand)
{
    Refining refining;
    refining.type(u"foo"_s);
    refining.clock.advance(149ms);
    EXPECT_EQ(refining.runner.jobs(), 0U);
    refining.clock.advance(1ms);
    EXPECT_EQ(refining.runner.jobs(), 1U);
    refining.runner.work();
    EXPECT_THAT(refining.delivered, ElementsAre("bar, then foo Foo foo only"));
}

TEST(Refine, doesNotWaitWithoutWords)
{
    for (const QString &search : {u""_s, u"   "_s, u" \t "_s}) {
        Refining refining;
        refining.type(search);
        EXPECT_EQ(refining.clock.waiting(), 0U);
        refining.runner.work();
        EXPECT_THAT(refining.delivered, ElementsAre("bar, then foo Foo foo only neither"));
    }
}

TEST(Refine, threeQuickKeysDeliverOneList)
{
    Refining refining;
    std::stop_source current(std::nostopstate);
    for (const QString &search : {u"f"_s, u"fo"_s, u"foo o"_s}) {
        current.request_stop();
        current = refining.type(search);
        refining.clock.advance(100ms);
    }
    refining.clock.advance(1s);
    EXPECT_EQ(refining.runner.jobs(), 1U) << "the others have not even begun";
    refining.runner.work();
    EXPECT_THAT(refining.delivered, ElementsAre("cancelled", "cancelled", "bar, then foo Foo foo only"));
}

TEST(Refine, slowKeysDeliverAListEach)
{
    Refining refining;
    std::stop_source current(std::nostopstate);
    for (const QString &search : {u"foo"_s, u"foo only"_s}) {
        current.request_stop();
        current = refining.type(search);
        refining.clock.advance(150ms);
        refining.runner.work();
    }
    EXPECT_THAT(refining.delivered, ElementsAre("bar, then foo Foo foo only", "foo only"));
}

TEST(Refine, deliversNothingWhenItIsStoppedBeforeTheWorkOrDuringIt)
{
    Refining refining;
    refining.type(u"foo"_s).request_stop();
    refining.clock.advance(150ms);
    EXPECT_THAT(refining.delivered, ElementsAre("cancelled"));
    EXPECT_EQ(refining.runner.jobs(), 0U);

    const std::stop_source late = refining.type(u"foo"_s);
    refining.clock.advance(150ms);
    std::stop_source(late).request_stop();
    refining.runner.work();
    EXPECT_THAT(refining.delivered, ElementsAre("cancelled", "cancelled"));
}

TEST(Refine, keepsWhatItWasGivenUntilItIsDone)
{
    Refining refining;
    {
        QList<Bookmark> rows = someBookmarks;
        refining.type(u"foo"_s, rows);
        rows.clear();
    }
    refining.clock.advance(150ms);
    refining.runner.work();
    EXPECT_THAT(refining.delivered, ElementsAre("bar, then foo Foo foo only"));
}

TEST(Refine, worksAwayFromTheMainThreadAndDeliversOnIt)
{
    FakeClock clock;
    OnThreads runner(clock);
    std::optional<QList<Bookmark>> result;
    const QThread *worker = nullptr;
    const QThread *receiver = nullptr;
    const auto key = [&worker](const Bookmark &row) {
        worker = QThread::currentThread();
        return row.searchKey;
    };
    refine(runner, someBookmarks, u"foo"_s, byTitle, key, english(),
           [&](std::optional<QList<Bookmark>> refined) {
               receiver = QThread::currentThread();
               result = std::move(refined);
           });
    clock.advance(refineDelay);
    ASSERT_TRUE(QTest::qWaitFor([&result] { return result.has_value(); }));
    EXPECT_EQ(titles(*result), "bar, then foo Foo foo only");
    EXPECT_EQ(receiver, QThread::currentThread());
    EXPECT_NE(worker, receiver);
}

} // namespace roamlet::testing
