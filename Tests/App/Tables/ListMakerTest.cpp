// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/ListMaker.h"

#include "App/Tables/SortedTable.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// Does one thing at a time, when the test says so.
class Steps final : public RefineRunner
{
public:
    void after(std::chrono::milliseconds /*duration*/, std::function<void()> action) override
    {
        m_steps.push_back(std::move(action));
    }
    void run(std::function<void()> work, std::function<void()> deliver) override
    {
        m_steps.emplace_back([work = std::move(work), deliver = std::move(deliver)] {
            work();
            deliver();
        });
    }

    void step()
    {
        const auto next = std::move(m_steps.front());
        m_steps.pop_front();
        next();
    }
    void finish()
    {
        while (!m_steps.empty())
            step();
    }

private:
    std::deque<std::function<void()>> m_steps;
};

using Key = RefineKey<HistoryItem>;

class ListMakerTest : public ::testing::Test
{
protected:
    static Key key(const QString &sourceID, int generation = 1)
    {
        Key result;
        result.sourceID = sourceID;
        result.generation = generation;
        return result;
    }

    void make(const Key &asked, const QString &title)
    {
        maker.make(
            asked,
            {HistoryItem::ofRow(1, title, u"https://example.org/"_s, pointInTime(0), 1, Source::safari())},
            {}, [](const QList<HistoryItem> &rows) { return RowTree::ofRows(rows); },
            [this](const SharedRowTree &tree, ListChange change) {
                delivered += tree->row(1).title.toStdString();
                delivered += change == ListChange::Reloaded ? "(reloaded) " : " ";
                last = tree;
            });
    }

    Steps steps;
    ListMaker<HistoryItem> maker{steps, std::make_shared<Collation>(u"en_US"_s)};
    std::string delivered;
    SharedRowTree last;
};

} // namespace

TEST_F(ListMakerTest, aListIsNeededUntilItIsOnItsWay)
{
    EXPECT_TRUE(maker.needs(key(u"a"_s)));
    make(key(u"a"_s), u"A"_s);
    EXPECT_FALSE(maker.needs(key(u"a"_s)));
    steps.finish();
    EXPECT_EQ(delivered, "A ");
    EXPECT_EQ(maker.shown(), key(u"a"_s));
    EXPECT_FALSE(maker.needs(key(u"a"_s)));
    EXPECT_TRUE(maker.needs(key(u"b"_s)));
}

TEST_F(ListMakerTest, aNewerListSupersedesOneThatIsOnItsWay)
{
    make(key(u"a"_s), u"A"_s);
    make(key(u"b"_s), u"B"_s);
    steps.finish();
    EXPECT_EQ(delivered, "B ");
}

TEST_F(ListMakerTest, ofOtherRowsTheSameListIsMadeAnewAndCountsAsReloaded)
{
    make(key(u"a"_s), u"A"_s);
    steps.finish();
    maker.outdate();
    EXPECT_TRUE(maker.needs(key(u"a"_s)));
    make(key(u"a"_s), u"B"_s);
    steps.finish();
    EXPECT_EQ(delivered, "A B(reloaded) ");
}

TEST_F(ListMakerTest, returningToTheShownListDropsWhatIsOnItsWay)
{
    make(key(u"a"_s), u"A"_s);
    steps.finish();
    make(key(u"b"_s), u"B"_s);
    EXPECT_FALSE(maker.needs(key(u"a"_s)));
    steps.finish();
    EXPECT_EQ(delivered, "A ");
}

TEST_F(ListMakerTest, anotherGenerationIsAReload)
{
    make(key(u"a"_s, 1), u"A"_s);
    steps.finish();
    make(key(u"a"_s, 2), u"B"_s);
    steps.finish();
    make(key(u"b"_s, 3), u"C"_s);
    steps.finish();
    EXPECT_EQ(delivered, "A B(reloaded) C ");
}

TEST_F(ListMakerTest, anEqualListIsTheOneBefore)
{
    make(key(u"a"_s, 1), u"A"_s);
    steps.finish();
    const SharedRowTree first = last;
    make(key(u"a"_s, 2), u"A"_s);
    steps.finish();
    EXPECT_EQ(last, first);
}

TEST_F(ListMakerTest, whatIsInvalidIsNeededAgain)
{
    make(key(u"a"_s), u"A"_s);
    steps.finish();
    maker.invalidate();
    EXPECT_TRUE(maker.needs(key(u"a"_s)));
}

TEST(OrderAfterClickTest, theColumnClickedLastDecidesFirst)
{
    using Column = SortColumns<HistoryItem>::Column;
    using Order = QList<SortComparator<HistoryItem>>;
    const Order byTitle = orderAfterClick<HistoryItem>({}, Column::Title, SortOrder::Forward);
    EXPECT_EQ(byTitle, (Order{{Column::Title, SortOrder::Forward}}));
    const Order byVisits = orderAfterClick(byTitle, Column::VisitCount, SortOrder::Reverse);
    EXPECT_EQ(byVisits,
              (Order{{Column::VisitCount, SortOrder::Reverse}, {Column::Title, SortOrder::Forward}}));
    const Order reversed = orderAfterClick(byVisits, Column::VisitCount, SortOrder::Reverse);
    EXPECT_EQ(reversed,
              (Order{{Column::VisitCount, SortOrder::Forward}, {Column::Title, SortOrder::Forward}}));
    EXPECT_EQ(orderAfterClick(reversed, Column::Title, SortOrder::Forward),
              (Order{{Column::Title, SortOrder::Forward}, {Column::VisitCount, SortOrder::Forward}}));
}

} // namespace roamlet::testing
