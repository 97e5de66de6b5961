// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableHeader.h"

#include "App/Look/Look.h"
#include "App/Tables/HistoryTable.h"
#include "App/Tables/RowDelegate.h"
#include "App/Tables/TableTest.h"
#include "Lists/RowTree.h"
#include "SampleHome/ChromiumFiles.h"

#include <QMenu>
#include <QTest>

#include <memory>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

class TableHeaderTest : public TableTest
{
protected:
    void SetUp() override
    {
        addChromium();
        loadNow(*library);
        build();
    }

    /// Starts again with what is stored.
    void build(HistoryTable::Mode mode = HistoryTable::Mode::Recent)
    {
        table = std::make_unique<HistoryTable>(services(), mode);
        show(*table);
    }
    TableHeader &header() const { return table->view().tableHeader(); }
    /// Presses the mouse at one place of the header, moves it and lets go at another.
    void drag(int from, int to) const
    {
        QWidget *viewport = header().viewport();
        const int y = header().height() / 2;
        const auto send = [&](QEvent::Type type, int x, Qt::MouseButton button, Qt::MouseButtons buttons) {
            const QPointF place(x, y);
            QMouseEvent event(type, place, viewport->mapToGlobal(place), button, buttons, Qt::NoModifier);
            QCoreApplication::sendEvent(viewport, &event);
        };
        send(QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        for (const int x : {from + (to - from) / 3, from + (to - from) * 2 / 3, to})
            send(QEvent::MouseMove, x, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    }
    int rightEdge(int column) const
    {
        return header().sectionViewportPosition(column) + header().sectionSize(column) - 1;
    }
    QStringList shownColumns() const
    {
        QStringList result;
        for (int place = 0; place < header().count(); ++place) {
            const int column = header().logicalIndex(place);
            if (!header().isSectionHidden(column))
                result.append(header().model()->headerData(column, Qt::Horizontal).toString());
        }
        return result;
    }
    void openMenu() const { QTest::keyClick(&header(), Qt::Key_Space); }

    std::unique_ptr<HistoryTable> table;
};

const QStringList defaultColumns{u"Title"_s, u"Last Visited"_s, u"Visits"_s, u"Source"_s};

} // namespace

TEST_F(TableHeaderTest, atFirstTheTitleFillsTheWidth)
{
    EXPECT_EQ(shownColumns(), defaultColumns);
    EXPECT_EQ(header().length(), header().viewport()->width());
    table->resize(700, table->height());
    const int title = header().sectionSize(0);
    table->resize(table->width() + 100, table->height());
    EXPECT_EQ(header().sectionSize(0), title + 100);
    EXPECT_FALSE(home.defaults.contains(u"columns.history"_s)) << "nobody has arranged anything";
}

TEST_F(TableHeaderTest, whatNoTitleNeedsGoesToTheLastColumn)
{
    table->resize(3000, table->height());
    EXPECT_EQ(header().sectionSize(0), header().widestTitle());
    EXPECT_EQ(header().length(), header().viewport()->width()) << "there is no hole";
    EXPECT_GT(header().sectionSize(HistoryTable::Source), header().widestTitle());
    EXPECT_FALSE(home.defaults.contains(u"columns.history"_s));
}

TEST_F(TableHeaderTest, aNarrowListHasIconsForBrowsers)
{
    table->resize(800, 300);
    EXPECT_FALSE(header().isNarrow());
    const int wide = header().sectionSize(HistoryTable::Source);
    table->resize(Look::of(*table).measures.units(36) - 2, 300);
    EXPECT_TRUE(header().isNarrow());
    EXPECT_LT(header().sectionSize(HistoryTable::Source), wide);
    EXPECT_EQ(header().length(), header().viewport()->width());
}

TEST_F(TableHeaderTest, theTitlesGetNarrowBeforeOneHasToScroll)
{
    const Measures measures = Look::of(*table).measures;
    table->resize(measures.units(20), 300);
    const int others = header().length() - header().sectionSize(HistoryTable::Title);
    ASSERT_GT(header().length(), header().viewport()->width());
    table->resize(others + measures.units(9), 300);
    EXPECT_EQ(header().length(), header().viewport()->width());
    EXPECT_GE(header().sectionSize(HistoryTable::Title), measures.units(8));
}

TEST_F(TableHeaderTest, longNamesOfSourcesAreNotCutWhileTitlesHaveRoom)
{
    const Measures measures = Look::of(*table).measures;
    const auto widthIn = [this](int list) {
        table->resize(list, 300);
        return header().sectionSize(HistoryTable::Source);
    };
    const int tight = measures.units(37);
    const int roomy = measures.units(56);
    const int usual = widthIn(roomy);
    const QString name = u"Firefox - default-release-of-mine"_s;
    header().setSourceLabels({u"Chrome"_s, name});
    header().fitColumns();
    const int label = header().fontMetrics().horizontalAdvance(name);
    EXPECT_GE(widthIn(roomy), label + measures.iconSide + measures.gapAfterIcon);
    EXPECT_GT(widthIn(roomy), usual);
    EXPECT_EQ(header().length(), header().viewport()->width());
    ASSERT_LT(widthIn(tight), widthIn(roomy));
    EXPECT_FALSE(header().isNarrow());
    EXPECT_GE(header().sectionSize(HistoryTable::Title), measures.units(12));
    EXPECT_LE(header().sectionSize(HistoryTable::Source), usual) << "names give way to them";
    // Where the names want more than is left, the titles have what they need.
    const int most = widthIn(roomy);
    int between = tight;
    while (between < roomy && widthIn(between) <= usual)
        ++between;
    ASSERT_LT(widthIn(between), most);
    EXPECT_EQ(header().sectionSize(HistoryTable::Title), measures.units(16));

    header().setSourceLabels({name.repeated(20)});
    header().fitColumns();
    EXPECT_LT(widthIn(measures.units(60)), measures.units(22)) << "nor does one push the titles away";
}

TEST_F(TableHeaderTest, aProfileWithANewNameHasRoomForIt)
{
    // So narrow that the column gets nothing that others leave.
    table->resize(Look::of(*table).measures.units(60), 300);
    const int before = header().sectionSize(HistoryTable::Source);
    change([this] {
        sample::writeLocalState(chromeFile(u"Local State"_s),
                                {{u"Default"_s, sample::profileInfo(u"Everybody in this house"_s)}});
    });
    setPages(u"Default"_s, {page(u"Garden"_s, 1)});
    reload(*table);
    const auto &delegate = dynamic_cast<const RowDelegate &>(*table->view().itemDelegate());
    const QModelIndex cell = find(*table, u"Garden"_s).siblingAtColumn(HistoryTable::Source);
    ASSERT_GT(delegate.naturalWidth(cell), before);
    EXPECT_FALSE(delegate.isCut(cell, header().sectionSize(HistoryTable::Source)));
}

TEST_F(TableHeaderTest, aColumnThatGetsNarrowerLeavesNoHole)
{
    table->resize(700, 300);
    const int edge = rightEdge(HistoryTable::Title);
    drag(edge, edge - 60);
    EXPECT_EQ(header().length(), header().viewport()->width());
    build();
    table->resize(700, 300);
    EXPECT_EQ(header().length(), header().viewport()->width());
    EXPECT_EQ(rightEdge(HistoryTable::Title), edge - 60);
}

TEST_F(TableHeaderTest, largeNumbersOfVisitsAreNotCut)
{
    const int before = header().sectionSize(HistoryTable::Visits);
    HistoryItem item;
    item.visitCount = 123'456'789'012;
    const QList<HistoryItem> rows{item};
    table->view().showTree(std::make_shared<RowTree>(RowTree::ofRows(allRows(rows))),
                           TableView::Scrolling::ToTop);
    EXPECT_GT(header().sectionSize(HistoryTable::Visits), before);
}

TEST_F(TableHeaderTest, theTitleDoesNotVanishInANarrowWindow)
{
    table->resize(200, 300);
    EXPECT_GT(header().sectionSize(0), 80);
}

TEST_F(TableHeaderTest, aResizedColumnKeepsItsWidth)
{
    const int width = header().sectionSize(HistoryTable::Visits);
    const int edge = rightEdge(HistoryTable::Visits);
    drag(edge, edge + 30);
    EXPECT_EQ(header().sectionSize(HistoryTable::Visits), width + 30);
    EXPECT_EQ(header().length(), header().viewport()->width()) << "the title makes room";
    build();
    EXPECT_EQ(header().sectionSize(HistoryTable::Visits), width + 30);
    EXPECT_EQ(header().length(), header().viewport()->width());
}

TEST_F(TableHeaderTest, aResizedTitleKeepsItsWidth)
{
    const int width = header().sectionSize(HistoryTable::Title);
    const int edge = rightEdge(HistoryTable::Title);
    drag(edge, edge - 50);
    EXPECT_EQ(header().sectionSize(HistoryTable::Title), width - 50);
    build();
    EXPECT_EQ(header().sectionSize(HistoryTable::Title), width - 50);
}

TEST_F(TableHeaderTest, aMovedColumnKeepsItsPlace)
{
    const int from = header().sectionViewportPosition(HistoryTable::Source) + 40;
    drag(from, header().sectionViewportPosition(HistoryTable::LastVisited) + 10);
    const QStringList moved{u"Title"_s, u"Source"_s, u"Last Visited"_s, u"Visits"_s};
    EXPECT_EQ(shownColumns(), moved);
    EXPECT_EQ(table->view().header()->sortIndicatorSection(), HistoryTable::LastVisited)
        << "moving does not sort";
    build();
    EXPECT_EQ(shownColumns(), moved);
}

TEST_F(TableHeaderTest, theArrowKeysMoveAndResizeColumns)
{
    const int width = header().sectionSize(HistoryTable::LastVisited);
    QTest::keyClick(&header(), Qt::Key_Left);
    QTest::keyClick(&header(), Qt::Key_Right);
    EXPECT_FALSE(home.defaults.contains(u"columns.history"_s)) << "going there arranges nothing";
    QTest::keyClick(&header(), Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(&header(), Qt::Key_Right, Qt::ShiftModifier);
    const QStringList moved{u"Title"_s, u"Visits"_s, u"Last Visited"_s, u"Source"_s};
    EXPECT_EQ(shownColumns(), moved);
    EXPECT_GT(header().sectionSize(HistoryTable::LastVisited), width);
    EXPECT_EQ(header().length(), header().viewport()->width()) << "the title makes room";
    build();
    EXPECT_EQ(shownColumns(), moved);
    EXPECT_GT(header().sectionSize(HistoryTable::LastVisited), width);
}

TEST_F(TableHeaderTest, whereOneReadsFromRightToLeftTheArrowKeysAreMirrored)
{
    table->setLayoutDirection(Qt::RightToLeft);
    const int width = header().sectionSize(HistoryTable::LastVisited);
    const int place = header().sectionViewportPosition(HistoryTable::LastVisited);
    QTest::keyClick(&header(), Qt::Key_Left);
    QTest::keyClick(&header(), Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(shownColumns(), (QStringList{u"Title"_s, u"Visits"_s, u"Last Visited"_s, u"Source"_s}));
    EXPECT_LT(header().sectionViewportPosition(HistoryTable::LastVisited), place);
    QTest::keyClick(&header(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_GT(header().sectionSize(HistoryTable::LastVisited), width);
    QTest::keyClick(&header(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(header().sectionSize(HistoryTable::LastVisited), width);
    QTest::keyClick(&header(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(shownColumns(), defaultColumns);
}

TEST_F(TableHeaderTest, theArrowKeysPassHiddenColumns)
{
    openMenu();
    choose(*table, u"columnMenu"_s, u"Visits"_s);
    QTest::keyClick(&header(), Qt::Key_Right);
    QTest::keyClick(&header(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(shownColumns(), (QStringList{u"Title"_s, u"Source"_s, u"Last Visited"_s}));
    table->resize(700, table->height());
    for (int i = 0; i < 50; ++i)
        QTest::keyClick(&header(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(header().sectionSize(HistoryTable::LastVisited), header().minimumSectionSize());
}

TEST_F(TableHeaderTest, aHiddenColumnStaysHidden)
{
    openMenu();
    choose(*table, u"columnMenu"_s, u"Visits"_s);
    const QStringList fewer{u"Title"_s, u"Last Visited"_s, u"Source"_s};
    EXPECT_EQ(shownColumns(), fewer);
    EXPECT_EQ(header().length(), header().viewport()->width());
    build();
    EXPECT_EQ(shownColumns(), fewer);
    openMenu();
    choose(*table, u"columnMenu"_s, u"Visits"_s);
    EXPECT_EQ(shownColumns(), defaultColumns);
}

TEST_F(TableHeaderTest, hidingAColumnWithTheMouseChoosesNoWidth)
{
    // The menu takes the release of the button that opened it.
    QTest::mousePress(header().viewport(), Qt::RightButton, {}, {5, 5});
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(header().viewport(), &event);
    choose(*table, u"columnMenu"_s, u"Visits"_s);
    EXPECT_TRUE(ColumnLayout::load(home.defaults, u"columns.history"_s).widths.isEmpty());
    table->resize(700, table->height());
    const int title = header().sectionSize(HistoryTable::Title);
    table->resize(table->width() + 100, table->height());
    EXPECT_EQ(header().sectionSize(HistoryTable::Title), title + 100);
    build();
    EXPECT_EQ(shownColumns(), (QStringList{u"Title"_s, u"Last Visited"_s, u"Source"_s}));
}

TEST_F(TableHeaderTest, theTitleCannotBeHidden)
{
    openMenu();
    EXPECT_FALSE(menu(*table, u"columnMenu"_s)->actions().first()->isEnabled());
    ColumnLayout layout;
    layout.hidden = {u"title"_s, u"source"_s};
    header().setColumnLayout(layout);
    EXPECT_EQ(shownColumns(), (QStringList{u"Title"_s, u"Last Visited"_s, u"Visits"_s}));
}

TEST_F(TableHeaderTest, eachTableHasItsOwnLayout)
{
    openMenu();
    choose(*table, u"columnMenu"_s, u"Source"_s);
    build(HistoryTable::Mode::MostVisited);
    EXPECT_EQ(shownColumns(), defaultColumns);
    openMenu();
    choose(*table, u"columnMenu"_s, u"Visits"_s);
    EXPECT_TRUE(home.defaults.contains(u"columns.mostVisited"_s));
    EXPECT_EQ(ColumnLayout::load(home.defaults, u"columns.history"_s).hidden, QSet{u"source"_s});
}

TEST_F(TableHeaderTest, aLayoutThatNoLongerDecodesIsTheDefault)
{
    home.defaults.setBytes(u"columns.history"_s, "{\"order\":");
    build();
    EXPECT_EQ(shownColumns(), defaultColumns);
    EXPECT_EQ(header().length(), header().viewport()->width());
}

TEST_F(TableHeaderTest, columnsThatALayoutDoesNotKnowStandBehindTheirNeighbours)
{
    home.defaults.setBytes(u"columns.history"_s,
                           R"({"order":["source","gone","title"],"hidden":["gone"],"widths":{"gone":5}})");
    build();
    EXPECT_EQ(shownColumns(), (QStringList{u"Source"_s, u"Title"_s, u"Last Visited"_s, u"Visits"_s}));
}

TEST_F(TableHeaderTest, theDefaultColumnsComeBack)
{
    const int edge = rightEdge(HistoryTable::Title);
    drag(edge, edge - 50);
    openMenu();
    choose(*table, u"columnMenu"_s, u"Source"_s);
    openMenu();
    choose(*table, u"columnMenu"_s, u"Default Columns"_s);
    EXPECT_EQ(shownColumns(), defaultColumns);
    EXPECT_EQ(header().length(), header().viewport()->width());
    EXPECT_TRUE(ColumnLayout::load(home.defaults, u"columns.history"_s).widths.isEmpty());
}

TEST_F(TableHeaderTest, aRightClickOpensTheMenuToo)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(header().viewport(), &event);
    EXPECT_EQ(entries(menu(*table, u"columnMenu"_s)),
              (QStringList{u"Title"_s, u"Last Visited"_s, u"Visits"_s, u"Source"_s, u"-"_s, u"Sort By"_s,
                           u"Default Order"_s, u"-"_s, u"Default Columns"_s}));
}

} // namespace roamlet::testing
