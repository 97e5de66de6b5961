// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Look.h"
#include "App/Tables/HistoryTable.h"
#include "App/Tables/SectionBand.h"
#include "App/Tables/TableHeader.h"
#include "App/Tables/TableTest.h"

#include <QHelpEvent>
#include <QImage>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// The bars in the headings of a history by day. It is 06:13:20, so there are seven hours today.
class VisitStripViewTest : public TableTest
{
protected:
    void SetUp() override
    {
        addChromium();
        QList<sample::HistoryRow> rows{page(u"now"_s, 1), page(u"early"_s, 6 * 3600),
                                       page(u"yesterday"_s, 86'400)};
        for (int i = 0; i < 60; ++i)
            rows.append(page(u"five %1"_s.arg(i), 3600 + i));
        setPages(u"Default"_s, rows);
        setPages(u"Profile 1"_s, {});
        loadNow(*library);
        show(table, {.grouping = Grouping::Day});
    }

    TableView &view() const { return table.view(); }
    /// Where the bar of an hour stands.
    QPoint bar(int hour, const QString &section = u"Today"_s) const
    {
        const QModelIndex index = find(table, section);
        const QRect row(0, view().visualRect(index).top(), view().viewport()->width(),
                        view().visualRect(index).height());
        const VisitStrip &visits = view().tableModel().tree()->visits(TableModel::numberOf(index));
        const Look look = Look::of(view());
        const int end = view().tableHeader().contentEnd(HistoryTable::LastVisited);
        for (int x = 0; x < row.width(); ++x) {
            // Behind each bar there is a gap that belongs to it.
            const QPoint point(view().isRightToLeft() ? row.right() - x : x, row.center().y());
            if (visitTickAt(visits, point, row, view().layoutDirection(), end, look) ==
                static_cast<std::size_t>(hour))
                return point;
        }
        return {};
    }
    QColor colorAt(const QPoint &point) const
    {
        return view().viewport()->grab().toImage().pixelColor(point);
    }
    /// The lower part of a bar is painted whatever its height is.
    QColor barColor(int hour) const
    {
        const QPoint point = bar(hour);
        const int height = Look::of(view()).measures.units(14.0 / 18);
        return colorAt(point + QPoint(0, height / 2 - 2));
    }
    void hover(const QPoint &point) const { QTest::mouseMove(view().viewport(), point); }
    QString toolTipAt(const QPoint &point) const
    {
        QHelpEvent event(QEvent::ToolTip, point, view().viewport()->mapToGlobal(point));
        QCoreApplication::sendEvent(view().viewport(), &event);
        return QToolTip::text();
    }

    HistoryTable table{services(), HistoryTable::Mode::Recent};
};

TEST_F(VisitStripViewTest, aBarSaysItsHourAndItsCount)
{
    EXPECT_EQ(toolTipAt(bar(5)), u"5:00 AM to 6:00 AM, 60");
    EXPECT_EQ(toolTipAt(bar(6)), u"6:00 AM to 7:00 AM, 2") << "one of them of another browser";
    EXPECT_EQ(toolTipAt(bar(3)), u"3:00 AM to 4:00 AM, 0");
}

TEST_F(VisitStripViewTest, aClickOnABarGoesToItsFirstRow)
{
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, bar(0));
    EXPECT_EQ(selectedTitles(table), QStringList{u"early"_s});
    EXPECT_TRUE(view().viewport()->rect().contains(view().visualRect(find(table, u"early"_s)).center()));
    EXPECT_TRUE(view().isExpanded(find(table, u"Today"_s)));
}

TEST_F(VisitStripViewTest, aClickOnABarOpensItsSection)
{
    view().setExpanded(find(table, u"Today"_s), false);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, bar(6));
    EXPECT_EQ(selectedTitles(table), QStringList{u"e1"_s});
    EXPECT_TRUE(view().isExpanded(find(table, u"Today"_s)));
}

TEST_F(VisitStripViewTest, aClickOnAnEmptyHourChangesNothing)
{
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, bar(3));
    EXPECT_TRUE(selectedTitles(table).isEmpty());
    EXPECT_TRUE(view().isExpanded(find(table, u"Today"_s)));
}

TEST_F(VisitStripViewTest, aClickBesideTheStripFolds)
{
    const QRect row = view().visualRect(find(table, u"Today"_s));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, QPoint(60, row.center().y()));
    EXPECT_FALSE(view().isExpanded(find(table, u"Today"_s)));
}

TEST_F(VisitStripViewTest, theHourOfTheRowUnderThePointerIsLit)
{
    const Look look = Look::of(view());
    EXPECT_EQ(barColor(5), look.strip);
    hover(view().visualRect(find(table, u"five 3"_s)).center());
    EXPECT_EQ(barColor(5), look.accent);
    const QColor small = barColor(6);
    hover(view().visualRect(find(table, u"now"_s)).center());
    EXPECT_EQ(barColor(5), look.strip);
    EXPECT_NE(barColor(6), small);
}

TEST_F(VisitStripViewTest, theHourOfTheKeyboardsRowIsLit)
{
    for (int i = 0; i < 4; ++i)
        press(table, Qt::Key_Down);
    ASSERT_TRUE(currentTitle(table).startsWith(u"five"_s)) << qPrintable(currentTitle(table));
    EXPECT_EQ(barColor(5), Look::of(view()).accent);
}

TEST_F(VisitStripViewTest, theBarUnderThePointerIsLit)
{
    hover(bar(5));
    EXPECT_EQ(barColor(5), Look::of(view()).accent);
}

TEST_F(VisitStripViewTest, theBarThatIsScrolledUnderThePointerIsLit)
{
    QScrollBar *scroll = view().verticalScrollBar();
    scroll->setValue(scroll->maximum());
    const QPoint point = bar(6, u"Yesterday"_s);
    ASSERT_NE(point, QPoint());
    const int height = Look::of(view()).measures.units(14.0 / 18);
    const QPoint lower = point + QPoint(0, height / 2 - 2);
    scroll->setValue(0);
    ASSERT_NE(view().indexAt(point), find(table, u"Yesterday"_s));
    hover(point);
    scroll->setValue(scroll->maximum());
    EXPECT_EQ(colorAt(lower), Look::of(view()).accent);
    scroll->setValue(0);
    const QModelIndex row = view().indexAt(point);
    ASSERT_TRUE(row.isValid());
    EXPECT_EQ(barColor(5), Look::of(view()).accent) << "the row's hour again";
}

TEST_F(VisitStripViewTest, itIsMirroredWhereOneReadsFromRightToLeft)
{
    EXPECT_LT(bar(5).x(), bar(6).x());
    table.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(bar(5).x(), bar(6).x());
    EXPECT_EQ(toolTipAt(bar(5)), u"5:00 AM to 6:00 AM, 60");
    EXPECT_EQ(barColor(5), Look::of(view()).strip);
}

TEST_F(VisitStripViewTest, itEndsWhereTheTimesEnd)
{
    const QRect cell = view().visualRect(find(table, u"now"_s).siblingAtColumn(HistoryTable::LastVisited));
    const int end = view().tableHeader().contentEnd(HistoryTable::LastVisited);
    EXPECT_GT(end, cell.left());
    EXPECT_LT(end, cell.right());
    EXPECT_LE(bar(23).x(), end);
    EXPECT_GT(bar(23).x(), end - 6);
}

TEST_F(VisitStripViewTest, whereTheDatesComeFirstTheTitleKeepsItsPlace)
{
    const QPoint place = bar(5);
    view().tableHeader().moveSection(HistoryTable::LastVisited, 0);
    for (int x = 0; x < view().viewport()->width(); ++x)
        EXPECT_FALSE(toolTipAt(QPoint(x, place.y())).contains(u" to "_s));
}

TEST_F(VisitStripViewTest, withoutItsColumnThereIsNone)
{
    const QPoint place = bar(5);
    view().tableHeader().setColumnShown(HistoryTable::LastVisited, false);
    EXPECT_FALSE(toolTipAt(place).startsWith(u"5:00"_s));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(view().isExpanded(find(table, u"Today"_s))) << "the band folds";
}

TEST_F(VisitStripViewTest, sectionsBySiteHaveNone)
{
    awaitList(table, [this] { table.setWish({.grouping = Grouping::Site}); });
    const QModelIndex section = find(table, u"now.example"_s);
    ASSERT_TRUE(section.isValid());
    EXPECT_TRUE(view().tableModel().tree()->visits(TableModel::numberOf(section)).ticks.empty());
}

TEST_F(VisitStripViewTest, underADaysHeadingTheTimeAloneIsSaid)
{
    const auto date = [this](const QString &title) {
        return find(table, title).siblingAtColumn(HistoryTable::LastVisited).data().toString();
    };
    EXPECT_EQ(date(u"now"_s), u"6:13 AM");
    EXPECT_EQ(date(u"yesterday"_s), u"6:13 AM");
    awaitList(table, [this] { table.setWish({}); });
    EXPECT_EQ(date(u"yesterday"_s), u"Fri 6:13 AM");
}

} // namespace roamlet::testing
