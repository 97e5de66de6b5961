// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableModel.h"

#include "Lists/SiteGroups.h"
#include "Model/UserCalendar.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

class TableModelTest : public ::testing::Test
{
protected:
    static constexpr PointInTime now = pointInTime(1'778'307'200);

    static QList<TableColumn> columns()
    {
        using Content = TableColumn::Content;
        return {{u"title"_s, u"Title"_s, Content::Title, 40},
                {u"date"_s, u"Date"_s, Content::Date, 10},
                {u"visits"_s, u"Visits"_s, Content::Visits, 10},
                {u"source"_s, u"Source"_s, Content::Source, 10}};
    }

    static HistoryItem item(qint64 number, const QString &title, const QString &url)
    {
        return HistoryItem::ofRow(number, title, url, now, 1234, Source::safari());
    }

    void setRows(const QList<HistoryItem> &rows)
    {
        model.setTree(std::make_shared<RowTree>(RowTree::ofRows(allRows(rows))));
    }
    void setGroups(const QList<HistoryItem> &rows)
    {
        model.setTree(std::make_shared<RowTree>(
            RowTree::ofGroups(siteGroups(allRows(rows), &HistoryItem::site, Collation(u"en_US"_s)))));
    }
    QVariant cell(int row, int column, int role = Qt::DisplayRole) const
    {
        return model.index(row, column).data(role);
    }

    TableModel model{columns(), LocalText(UserCalendar{u"UTC"_s, u"en_US"_s}, now)};
    const QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(TableModelTest, isEmptyAtFirst)
{
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.columnCount(), 4);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal), u"Date"_s);
    EXPECT_EQ(model.headerData(4, Qt::Horizontal), QVariant());
}

TEST_F(TableModelTest, aRowHasItsTexts)
{
    setRows({item(1, u"Page"_s, u"https://example.org/"_s)});
    EXPECT_EQ(cell(0, 0), u"Page"_s);
    EXPECT_EQ(cell(0, 1), u"6:13 AM"_s);
    EXPECT_EQ(cell(0, 2), u"1,234"_s);
    EXPECT_EQ(cell(0, 3), u"Safari"_s);
    EXPECT_EQ(model.index(0, 0).flags(),
              Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren);
}

TEST_F(TableModelTest, aListReplacesTheOneBefore)
{
    setGroups({item(1, u"a"_s, u"https://a.example/"_s), item(2, u"b"_s, u"https://b.example/"_s)});
    setRows({item(3, u"c"_s, u"https://c.example/"_s)});
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(cell(0, 0), u"c"_s);
    setRows({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(TableModelTest, sectionsHaveRowsAndOnlyAHeading)
{
    setGroups({item(1, u"a"_s, u"https://a.example/"_s), item(2, u"b"_s, u"https://b.example/"_s),
               item(3, u"c"_s, u"https://b.example/c"_s)});
    const QModelIndex section = model.index(1, 0);
    EXPECT_EQ(section.data(), u"b.example"_s);
    EXPECT_EQ(cell(1, 1), QVariant());
    EXPECT_EQ(cell(1, 3, Qt::ToolTipRole), QVariant());
    EXPECT_EQ(model.rowCount(section), 2);
    EXPECT_EQ(model.index(1, 2, section).data(), u"1,234"_s);
    EXPECT_EQ(model.index(1, 0, section).parent(), section);
    EXPECT_EQ(section.flags(), Qt::ItemIsEnabled);
    EXPECT_EQ(section.data(Qt::AccessibleTextRole), u"b.example, 2 items"_s);
    EXPECT_EQ(cell(0, 0, Qt::AccessibleTextRole), u"a.example, 1 item"_s);
}

TEST_F(TableModelTest, aBookmarkWithoutANameShowsItsAddress)
{
    BookmarkNode node;
    node.id = u"1"_s;
    node.url = u"https://example.org/"_s;
    BookmarkNode folder;
    folder.id = u"2"_s;
    folder.title = u"Things"_s;
    folder.children = QList<BookmarkNode>{node};
    model.setTree(std::make_shared<RowTree>(*RowTree::ofBookmarks({folder}, {}, Collation(u"en_US"_s))));
    EXPECT_EQ(model.index(0, 0, model.index(0, 0)).data(), u"https://example.org/"_s);
    EXPECT_EQ(model.index(0, 1, model.index(0, 0)).data(), QString());
    EXPECT_EQ(cell(0, 0, Qt::AccessibleTextRole), u"Things, folder, 1 item"_s);
    EXPECT_EQ(cell(0, 2), QVariant());
    EXPECT_EQ(model.index(0, 0).flags(), Qt::ItemIsEnabled | Qt::ItemIsSelectable);
}

TEST_F(TableModelTest, theToolTipShowsTheAddress)
{
    setRows({item(1, u"Page & more"_s, u"https://example.org/"_s), item(2, {}, u"https://b.example/"_s)});
    EXPECT_EQ(cell(0, 0, Qt::ToolTipRole),
              u"<p style='white-space:pre'>Page &amp; more<br>https://example.org/</p>"_s);
    EXPECT_EQ(cell(1, 0, Qt::ToolTipRole), u"<p style='white-space:pre'>https://b.example/</p>"_s);
    EXPECT_EQ(cell(0, 1, Qt::ToolTipRole), u"Saturday, May 9, 2026 6:13 AM"_s);
}

TEST_F(TableModelTest, noTextIsLongerThanAnybodyReads)
{
    const QString million(1'000'000, u'x');
    setRows({item(1, million, u"https://example.org/"_s % million)});
    for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole})
        EXPECT_LT(cell(0, 0, role).toString().size(), 2500) << role;
}

TEST_F(TableModelTest, withoutIconsThereAreNone)
{
    setRows({item(1, u"Page"_s, u"https://example.org/"_s)});
    EXPECT_EQ(cell(0, 0, Qt::DecorationRole), QVariant());
}

} // namespace roamlet::testing
