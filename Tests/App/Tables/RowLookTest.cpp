// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Contrast.h"
#include "App/Look/Look.h"
#include "App/Look/Motion.h"
#include "App/Look/StillStyle.h"
#include "App/Tables/HistoryTable.h"
#include "App/Tables/RowBubble.h"
#include "App/Tables/RowDelegate.h"
#include "App/Tables/TableHeader.h"
#include "App/Tables/TableTest.h"
#include "Support/Waiting.h"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <algorithm>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// What rows look like, and what they say of themselves.
class RowLookTest : public TableTest
{
protected:
    void SetUp() override
    {
        addChromium();
        setPages(u"Default"_s, {page(u"Garden"_s, 1, 1, u"https://www.allotment.example/guides/garden?q=1"_s),
                                page(u"Trams"_s, 2, 1, u"https://trams.example/news/garden-line"_s),
                                page(u"Clocks"_s, 3, 1, u"https://clocks.example/"_s), page(u"Last"_s, 4)});
        setPages(u"Profile 1"_s, {});
        loadNow(*library);
        show(table);
    }

    TableView &view() const { return table.view(); }
    QRect cell(const QString &title, int column = HistoryTable::Title) const
    {
        return view().visualRect(find(table, title).siblingAtColumn(column));
    }
    QImage picture() const { return view().viewport()->grab().toImage(); }
    /// Whether a pixel of the cell has this colour.
    bool has(const QRect &place, const QColor &color) const
    {
        const QImage image = picture();
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= std::min(place.right(), image.width() - 1); ++x) {
                if (image.pixelColor(x, y) == color)
                    return true;
            }
        }
        return false;
    }
    void search(const QString &text)
    {
        awaitList(table, [&] {
            table.setWish({.search = text});
            home.clock.advance(ListLoader::searchDelay);
        });
    }
    RowBubble &bubble() const
    {
        return dynamic_cast<RowBubble &>(*view().viewport()->findChild<QWidget *>(u"rowBubble"_s));
    }
    QString toolTipAt(const QPoint &point) const
    {
        QHelpEvent event(QEvent::ToolTip, point, view().viewport()->mapToGlobal(point));
        QCoreApplication::sendEvent(view().viewport(), &event);
        return QToolTip::text();
    }
    QString companion(const QString &title, int width = 400) const
    {
        const auto &delegate = dynamic_cast<const RowDelegate &>(*view().itemDelegate());
        return delegate.companion(view().tableModel().rowAt(find(table, title)), width);
    }

    HistoryTable table{services(), HistoryTable::Mode::Recent};
};

TEST_F(RowLookTest, aTitleIsFollowedByItsSite)
{
    EXPECT_EQ(companion(u"Garden"_s), u"allotment.example");
    EXPECT_TRUE(has(cell(u"Garden"_s), Look::of(view()).list.quiet));
    const QImage image = picture();
    int darkest = 255;
    const QRect place = cell(u"Garden"_s);
    for (int x = place.left(); x < place.right(); ++x)
        darkest = std::min(darkest, image.pixelColor(x, place.center().y()).lightness());
    EXPECT_LT(darkest, Look::of(view()).list.quiet.lightness()) << "the title is not quiet";
}

TEST_F(RowLookTest, aWideColumnHasRoomForTheAddress)
{
    EXPECT_EQ(companion(u"Garden"_s, view().tableHeader().widestTitle()),
              u"allotment.example/guides/garden?q=1");
}

TEST_F(RowLookTest, anAddressThatWasFoundIsShown)
{
    search(u"garden"_s);
    EXPECT_EQ(companion(u"Trams"_s), u"trams.example/news/garden-line");
    const Look look = Look::of(view());
    EXPECT_TRUE(has(cell(u"Trams"_s), look.match)) << "the match in the address is marked";
    EXPECT_TRUE(has(cell(u"Garden"_s), look.match));
    click(table, u"Garden"_s);
    EXPECT_TRUE(has(cell(u"Garden"_s), look.matchSelected));
}

TEST_F(RowLookTest, onOneSiteThePathIsEnough)
{
    awaitList(table, [this] { table.setWish({.site = u"allotment.example"_s}); });
    EXPECT_EQ(companion(u"Garden"_s), u"/guides/garden?q=1");
}

TEST_F(RowLookTest, withoutASearchNothingIsMarked)
{
    search(u"garden"_s);
    awaitList(table, [this] { table.setWish({}); });
    EXPECT_FALSE(has(cell(u"Garden"_s), Look::of(view()).match));
}

TEST_F(RowLookTest, theRowUnderThePointerHasAGroundOfItsOwn)
{
    const Look look = Look::of(view());
    // Where no text is.
    const auto ground = [this](const QString &title) {
        return picture().pixelColor(cell(title).right() - 2, cell(title).center().y());
    };
    EXPECT_EQ(ground(u"Trams"_s), look.list.base);
    QTest::mouseMove(view().viewport(), cell(u"Trams"_s).center());
    EXPECT_NE(ground(u"Trams"_s), look.list.hover) << "it takes its moment";
    EXPECT_TRUE(waitUntil([&] { return ground(u"Trams"_s) == look.list.hover; }));
    EXPECT_EQ(ground(u"Garden"_s), look.list.base);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view().viewport(), &leave);
    EXPECT_EQ(ground(u"Trams"_s), look.list.base);
}

TEST_F(RowLookTest, whereNothingMovesTheRowUnderThePointerIsLitAtOnce)
{
    setMotionAllowed(false);
    QTest::mouseMove(view().viewport(), cell(u"Clocks"_s).center());
    QTest::mouseMove(view().viewport(), cell(u"Trams"_s).center());
    const QRect place = cell(u"Trams"_s);
    EXPECT_EQ(picture().pixelColor(place.right() - 2, place.center().y()), Look::of(view()).list.hover);
    setMotionAllowed(true);
}

TEST_F(RowLookTest, theArrowOfASectionTurnsByAndBy)
{
    awaitList(table, [this] { table.setWish({.grouping = Grouping::Day}); });
    const QModelIndex band = find(table, u"Today"_s);
    const Measures measures = Look::of(view()).measures;
    const auto arrow = [&] {
        const QRect row = view().visualRect(band);
        return picture().copy(measures.gutter, row.top(), measures.chevronSide, row.height());
    };
    setMotionAllowed(false);
    const QImage open = arrow();
    view().setExpanded(band, false);
    const QImage closed = arrow();
    EXPECT_NE(closed, open);
    view().setExpanded(band, true);
    EXPECT_EQ(arrow(), open);
    setMotionAllowed(true);
    view().setExpanded(band, false);
    EXPECT_NE(arrow(), closed);
    EXPECT_TRUE(waitUntil([&] { return arrow() == closed; }));
}

TEST_F(RowLookTest, aSelectedRowHasAGroundThatTellsWhetherItsWindowIsActive)
{
    const Look look = Look::of(view());
    click(table, u"Clocks"_s);
    EXPECT_TRUE(has(cell(u"Clocks"_s), look.list.selected.base));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_TRUE(has(cell(u"Clocks"_s), look.list.selectedInactive.base));
}

TEST_F(RowLookTest, aGlobeIsSeenInASelectedRowOfEveryTheme)
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, QColor(0x71, 0x71, 0x71));
    palette.setColor(QPalette::Highlight, QColor(0, 0, 0x80));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    table.setPalette(palette);
    click(table, u"Clocks"_s);
    const Look look = Look::of(view());
    ASSERT_EQ(look.list.selected.base, QColor(0, 0, 0x80));
    const int side = look.measures.iconSide;
    QRect place = cell(u"Clocks"_s);
    place.setLeft(look.measures.alignmentLine);
    place.setWidth(side);
    const QImage image = picture();
    double most = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            most = std::max(most, contrastRatio(image.pixelColor(x, y), look.list.selected.base));
    }
    EXPECT_GT(most, contrastRatio(look.list.quiet, look.list.selected.base) + 0.5);
}

TEST_F(RowLookTest, theKeyboardsRowHasARingUntilTheMouseIsUsed)
{
    const QColor accent = Look::of(view()).accent;
    click(table, u"Garden"_s);
    EXPECT_FALSE(has(cell(u"Garden"_s), accent));
    press(table, Qt::Key_Down);
    EXPECT_TRUE(has(cell(u"Trams"_s), accent));
    click(table, u"Trams"_s);
    EXPECT_FALSE(has(cell(u"Trams"_s), accent));
}

TEST_F(RowLookTest, aKeyThatIsHeldDownForAnotherBringsNoRing)
{
    const QColor accent = Look::of(view()).accent;
    click(table, u"Garden"_s);
    for (const Qt::Key key : {Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta})
        press(table, key);
    EXPECT_FALSE(has(cell(u"Garden"_s), accent));
    EXPECT_FALSE(bubble().isVisible());
}

TEST_F(RowLookTest, numbersEndOnOneLine)
{
    const auto lastInk = [this](const QString &title) {
        const QRect place = cell(title, HistoryTable::Visits);
        const QImage image = picture();
        for (int x = place.right(); x >= place.left(); --x) {
            for (int y = place.top() + 2; y <= place.bottom() - 2; ++y) {
                if (image.pixelColor(x, y) != Look::of(view()).list.base)
                    return x;
            }
        }
        return -1;
    };
    EXPECT_GT(lastInk(u"Garden"_s), 0);
    EXPECT_EQ(lastInk(u"Garden"_s), lastInk(u"Trams"_s));
}

TEST_F(RowLookTest, theBubbleTellsWholeAddressAndDateOfTheKeyboardsRow)
{
    click(table, u"Garden"_s);
    press(table, Qt::Key_Down);
    ASSERT_TRUE(bubble().isVisible());
    EXPECT_EQ(bubble().address(), u"https://trams.example/news/garden-line");
    EXPECT_EQ(bubble().date(), u"Saturday, May 9, 2026 6:13 AM");
    press(table, Qt::Key_Down, Qt::ShiftModifier);
    press(table, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_FALSE(bubble().isVisible()) << "of three rows there is no one to tell about";
}

TEST_F(RowLookTest, theBubbleTellsOfTheRowOnWhichThePointerRests)
{
    // From somewhere else: a pointer that stays where it is does not move.
    QTest::mouseMove(view().viewport(), cell(u"Clocks"_s).center());
    QTest::mouseMove(view().viewport(), cell(u"Trams"_s).center());
    EXPECT_FALSE(bubble().isVisible());
    EXPECT_TRUE(waitUntil([this] { return bubble().isVisible(); }));
    EXPECT_EQ(bubble().address(), u"https://trams.example/news/garden-line");
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view().viewport(), &leave);
    EXPECT_FALSE(bubble().isVisible());
}

TEST_F(RowLookTest, theBubbleComesInByAndBy)
{
    RowBubble own(view().viewport());
    const auto ground = [&own] {
        QImage image(own.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        own.render(&image, {}, {}, QWidget::DrawChildren);
        return image.pixelColor(own.width() / 2, 3);
    };
    own.showRow(u"https://a.example/"_s, {});
    ASSERT_TRUE(own.isVisible());
    EXPECT_LT(ground().alpha(), 255);
    EXPECT_TRUE(waitUntil([&ground] { return ground().alpha() == 255; }));
    own.dismiss();
    StillStyle style;
    own.setStyle(&style);
    own.showRow(u"https://a.example/"_s, {});
    EXPECT_EQ(ground().alpha(), 255);
    own.setStyle(nullptr);
}

TEST_F(RowLookTest, theBubbleMakesWayForThePointer)
{
    press(table, Qt::Key_Down);
    press(table, Qt::Key_Down);
    const int left = bubble().x();
    bubble().avoid(bubble().geometry().center());
    EXPECT_GT(bubble().x(), left);
    EXPECT_EQ(bubble().geometry().right(), view().viewport()->rect().right());
    EXPECT_TRUE(bubble().testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(RowLookTest, theBubbleDoesNotFleeAPointerThatIsGone)
{
    press(table, Qt::Key_Down);
    press(table, Qt::Key_Down);
    ASSERT_TRUE(bubble().isVisible());
    const int left = bubble().x();
    const QPoint corner = bubble().geometry().center();
    QTest::mouseMove(view().viewport(), corner + QPoint(1, 0));
    QTest::mouseMove(view().viewport(), corner);
    ASSERT_TRUE(waitUntil([&] { return bubble().x() > left; }));
    press(table, Qt::Key_Up);
    ASSERT_TRUE(bubble().isVisible());
    EXPECT_EQ(bubble().x(), left) << "the keys are used now";

    QTest::mouseMove(view().viewport(), corner + QPoint(1, 0));
    ASSERT_TRUE(waitUntil([&] { return bubble().x() > left; }));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view().viewport(), &leave);
    ASSERT_FALSE(bubble().isVisible());
    view().clearFocus();
    view().setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(bubble().isVisible());
    EXPECT_EQ(bubble().x(), left) << "the pointer is somewhere else";
}

TEST_F(RowLookTest, theBubbleGoesWhenSeveralRowsAreSelected)
{
    QTest::mouseMove(view().viewport(), cell(u"Clocks"_s).center());
    QTest::mouseMove(view().viewport(), cell(u"Trams"_s).center());
    ASSERT_TRUE(waitUntil([this] { return bubble().isVisible(); }));
    click(table, u"Garden"_s);
    click(table, u"Trams"_s, Qt::ControlModifier);
    EXPECT_TRUE(bubble().isVisible());
    click(table, u"Clocks"_s, Qt::ControlModifier);
    EXPECT_FALSE(bubble().isVisible());
}

TEST_F(RowLookTest, aTooltipSaysOnlyWhatCannotBeRead)
{
    EXPECT_EQ(toolTipAt(cell(u"Clocks"_s).center()), QString());
    EXPECT_TRUE(toolTipAt(cell(u"Clocks"_s, HistoryTable::LastVisited).center())
                    .contains(u"Saturday, May 9, 2026"_s));
    // It fades away.
    EXPECT_TRUE(
        waitUntil([this] { return toolTipAt(cell(u"Clocks"_s, HistoryTable::Visits).center()).isEmpty(); }));
    view().tableHeader().resizeSection(HistoryTable::Title, 40);
    EXPECT_TRUE(toolTipAt(cell(u"Clocks"_s).center()).contains(u"Clocks"_s));
}

TEST_F(RowLookTest, linksCanBeDraggedOut)
{
    click(table, u"Trams"_s);
    click(table, u"Garden"_s, Qt::ControlModifier);
    const QModelIndexList selected = view().selectionModel()->selectedIndexes();
    const std::unique_ptr<QMimeData> data(view().model()->mimeData(selected));
    ASSERT_TRUE(data);
    EXPECT_EQ(data->urls(), (QList<QUrl>{QUrl(u"https://www.allotment.example/guides/garden?q=1"_s),
                                         QUrl(u"https://trams.example/news/garden-line"_s)}));
    EXPECT_EQ(data->html(), u"<a href=\"https://www.allotment.example/guides/garden?q=1\">Garden</a><br>\n"
                            u"<a href=\"https://trams.example/news/garden-line\">Trams</a>");
    EXPECT_EQ(data->text(), u"https://www.allotment.example/guides/garden?q=1\n"
                            u"https://trams.example/news/garden-line");
    EXPECT_TRUE(view().dragEnabled());
}

TEST_F(RowLookTest, aDraggedTitleIsNoMarkUp)
{
    setPages(u"Default"_s, {page(u"<b>&\"x\""_s, 1, 1, u"https://x.example/?a=\"&b"_s)});
    reload(table);
    const std::unique_ptr<QMimeData> data(view().model()->mimeData({find(table, u"<b>&\"x\""_s)}));
    EXPECT_EQ(data->html(), u"<a href=\"https://x.example/?a=&quot;&amp;b\">&lt;b&gt;&amp;&quot;x&quot;</a>");
}

TEST_F(RowLookTest, aSectionIsNotDraggedOut)
{
    awaitList(table, [this] { table.setWish({.grouping = Grouping::Day}); });
    EXPECT_EQ(view().model()->mimeData({find(table, u"Today"_s)}), nullptr);
    EXPECT_FALSE(find(table, u"Today"_s).flags().testFlag(Qt::ItemIsDragEnabled));
}

TEST_F(RowLookTest, aSitesHeadingOffersThatSiteAlone)
{
    awaitList(table, [this] { table.setWish({.grouping = Grouping::Site}); });
    QSignalSpy wanted(&table, &LinkTable::onlySiteRequested);
    rightClick(table, u"trams.example"_s);
    EXPECT_EQ(entries(menu(table, u"siteMenu"_s)), QStringList{u"Show Only trams.example"_s});
    choose(table, u"siteMenu"_s, u"Show Only trams.example"_s);
    ASSERT_EQ(wanted.size(), 1);
    EXPECT_EQ(wanted[0][0], u"trams.example"_s);
}

TEST_F(RowLookTest, whatABrowserCannotDoHereIsOffAndSaysWhy)
{
    workspace.missing = Source::Kind::Chrome;
    rightClick(table, u"Trams"_s);
    const QMenu *shown = menu(table, u"linkMenu"_s);
    const auto action = [shown](const QString &title) {
        const QList<QAction *> all = shown->actions();
        const auto found = std::ranges::find(all, title, &QAction::text);
        return found == all.end() ? nullptr : *found;
    };
    ASSERT_NE(action(u"Show Chrome History"_s), nullptr);
    EXPECT_FALSE(action(u"Show Chrome History"_s)->isEnabled());
    EXPECT_EQ(action(u"Show Chrome History"_s)->toolTip(), u"Chrome does not exist on this system.");
    EXPECT_TRUE(action(u"Open in Chrome"_s)->isEnabled());
    EXPECT_EQ(action(u"Open in Chrome"_s)->toolTip(),
              u"Opens in this desktop’s own browser: Chrome does not exist on this system.");
    EXPECT_TRUE(shown->toolTipsVisible());
}

TEST_F(RowLookTest, aBrowserThatThisSystemKnowsShowsItsHistory)
{
    rightClick(table, u"Trams"_s);
    for (const QAction *action : menu(table, u"linkMenu"_s)->actions())
        EXPECT_TRUE(action->isEnabled()) << qPrintable(action->text());
}

TEST_F(RowLookTest, aDaysHeadingHasNoMenu)
{
    awaitList(table, [this] { table.setWish({.grouping = Grouping::Day}); });
    rightClick(table, u"Today"_s);
    EXPECT_EQ(menu(table, u"siteMenu"_s), nullptr);
    EXPECT_EQ(menu(table, u"linkMenu"_s), nullptr);
}

TEST_F(RowLookTest, deleteDoesNothing)
{
    click(table, u"Trams"_s);
    const std::string before = text(table);
    press(table, Qt::Key_Delete);
    press(table, Qt::Key_Backspace);
    EXPECT_EQ(text(table), before);
    EXPECT_TRUE(workspace.requests.isEmpty());
    EXPECT_EQ(selectedTitles(table), QStringList{u"Trams"_s});
}

TEST_F(RowLookTest, aPressOnABandDragsNothing)
{
    awaitList(table, [this] { table.setWish({.grouping = Grouping::Day}); });
    click(table, u"Trams"_s);
    const QPoint band = view().visualRect(find(table, u"Today"_s)).center();
    QTest::mousePress(view().viewport(), Qt::LeftButton, {}, band);
    QMouseEvent move(QEvent::MouseMove, QPointF(band + QPoint(200, 60)),
                     view().viewport()->mapToGlobal(QPointF(band + QPoint(200, 60))), Qt::LeftButton,
                     Qt::LeftButton, {});
    // A drag would not come back from here.
    QCoreApplication::sendEvent(view().viewport(), &move);
    QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, band);
    EXPECT_TRUE(selectedTitles(table).isEmpty()) << "nothing is selected that cannot be seen";
    EXPECT_FALSE(view().isExpanded(find(table, u"Today"_s)));
}

TEST_F(RowLookTest, theBubbleGoesWithTheKeyboard)
{
    press(table, Qt::Key_Down);
    press(table, Qt::Key_Down);
    ASSERT_TRUE(bubble().isVisible());
    view().clearFocus();
    EXPECT_FALSE(bubble().isVisible());
}

TEST_F(RowLookTest, theBubbleStaysInItsCornerWhileTheListScrolls)
{
    QList<sample::HistoryRow> rows;
    for (int i = 0; i < 100; ++i)
        rows.append(page(u"p%1"_s.arg(i), i));
    setPages(u"Default"_s, rows);
    reload(table);
    press(table, Qt::Key_Down);
    press(table, Qt::Key_Down);
    const QRect before = bubble().geometry();
    view().verticalScrollBar()->setValue(3);
    EXPECT_EQ(bubble().geometry(), before);
}

TEST_F(RowLookTest, aTooltipSaysWhatTheSiteLeavesNoRoomFor)
{
    setPages(u"Default"_s, {page(u"A title of many words that needs almost all of its column by itself"_s, 1,
                                 1, u"https://a-site-with-a-long-name.example/"_s)});
    reload(table);
    const QString title = u"A title of many words that needs almost all of its column by itself"_s;
    const int words = QFontMetrics(view().font()).horizontalAdvance(title);
    view().tableHeader().resizeSection(HistoryTable::Title, words + 80);
    EXPECT_EQ(toolTipAt(cell(title).center()), QString()) << "the site gives way";
    view().tableHeader().resizeSection(HistoryTable::Title, words - 20);
    EXPECT_TRUE(toolTipAt(cell(title).center()).contains(u"A title of"_s));
}

TEST_F(RowLookTest, aMatchInTheSchemeIsShown)
{
    search(u"https"_s);
    EXPECT_EQ(companion(u"Trams"_s), u"https://trams.example/news/garden-line");
}

TEST_F(RowLookTest, aScreenReaderHearsTheWholeDate)
{
    EXPECT_EQ(find(table, u"Trams"_s)
                  .siblingAtColumn(HistoryTable::LastVisited)
                  .data(Qt::AccessibleTextRole)
                  .toString(),
              u"Saturday, May 9, 2026 6:13 AM");
}

TEST_F(RowLookTest, bandsAreHigherThanRows)
{
    awaitList(table, [this] { table.setWish({.grouping = Grouping::Day}); });
    const Measures measures = Look::of(view()).measures;
    EXPECT_EQ(view().visualRect(find(table, u"Today"_s)).height(), measures.sectionHeight);
    EXPECT_EQ(cell(u"Trams"_s).height(), measures.rowHeight);
}

TEST_F(RowLookTest, largerTextsHaveHigherRows)
{
    const int before = cell(u"Trams"_s).height();
    QFont font = table.font();
    font.setPointSizeF(24);
    table.setFont(font);
    QCoreApplication::processEvents();
    EXPECT_GT(cell(u"Trams"_s).height(), before * 3 / 2);
    font.setPixelSize(30);
    table.setFont(font);
    QCoreApplication::processEvents();
    EXPECT_GT(cell(u"Trams"_s).height(), 40);
}

TEST_F(RowLookTest, digitsAreAsWideAsEachOther)
{
    const QFont font;
    EXPECT_EQ(tabularWidth(font, u"1,111"_s), tabularWidth(font, u"8,888"_s));
    EXPECT_EQ(tabularWidth(font, u"14:02"_s), tabularWidth(font, u"11:11"_s));
    EXPECT_GT(tabularWidth(font, u"١٢٣"_s), 0);
    EXPECT_EQ(tabularWidth(font, QString()), 0);
}

} // namespace roamlet::testing
