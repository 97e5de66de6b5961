// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/Sidebar.h"

#include "App/Look/Look.h"
#include "App/Look/StillStyle.h"
#include "App/Window/SidebarModel.h"
#include "App/Window/WindowTest.h"
#include "Support/Waiting.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <gmock/gmock.h>
#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// The sections and their rows, from the top.
QModelIndexList lines(const QAbstractItemModel &model)
{
    QModelIndexList result;
    for (int number = 0; number < model.rowCount(); ++number) {
        const QModelIndex section = model.index(number, 0);
        result.append(section);
        for (int row = 0; row < model.rowCount(section); ++row)
            result.append(model.index(row, 0, section));
    }
    return result;
}

/// Their texts, those of sections in brackets.
QStringList texts(const QAbstractItemModel &model)
{
    QStringList result;
    for (const QModelIndex &index : lines(model)) {
        const QString text = index.data().toString();
        result.append(index.data(SidebarModel::IsHeadingRole).toBool() ? u'[' % text % u']' : text);
    }
    return result;
}

} // namespace

class SidebarTest : public WindowTest
{
protected:
    SidebarTest() { sidebar.resize(220, 600); }

    /// A row or a section, counted from the top.
    static QModelIndex line(const QAbstractItemModel &model, int number) { return lines(model)[number]; }
    QPoint middleOf(int number) const { return sidebar.visualRect(line(*sidebar.model(), number)).center(); }
    void click(int number, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(sidebar.viewport(), button, {}, middleOf(number));
    }
    bool isFolded(int section) const { return !sidebar.isExpanded(sidebar.model()->index(section, 0)); }

    Sidebar sidebar{services()};
};

TEST_F(SidebarTest, isDrawnWithItsEdgeAsSoonAsItLiesOverAList)
{
    class Drawings final : public QObject
    {
    public:
        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    Drawings drawings;
    sidebar.show();
    sidebar.viewport()->installEventFilter(&drawings);
    sidebar.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return sidebar.isActiveWindow(); }));
    // Until nothing else has to be drawn.
    int drawn = 0;
    ASSERT_TRUE(
        waitUntil([&] { return std::exchange(drawn, drawings.count) == drawings.count && drawn > 0; }));
    const QPoint edge(sidebar.viewport()->width() - 1, sidebar.viewport()->height() - 1);
    const auto atTheEdge = [&] { return sidebar.viewport()->grab().toImage().pixelColor(edge); };
    const QColor line = Look::of(sidebar).sidebar.hairline;
    EXPECT_NE(atTheEdge(), line);
    const int before = drawings.count;
    sidebar.setIsOverList(true);
    EXPECT_TRUE(waitUntil([&] { return drawings.count > before; }));
    EXPECT_EQ(atTheEdge(), line);
}

TEST_F(SidebarTest, listsAllSourcesTogetherAndThenEachOne)
{
    addChromium();
    SidebarModel model(*library);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(texts(model),
              QStringList({u"[Library]"_s, u"Recent History"_s, u"Most Visited"_s, u"All Bookmarks"_s}));
    loadNow(*library);
    EXPECT_EQ(texts(model), QStringList({u"[Library]"_s, u"Recent History"_s, u"Most Visited"_s,
                                         u"All Bookmarks"_s, u"[Chrome - Personal]"_s, u"History"_s,
                                         u"Bookmarks"_s, u"[Chrome - Work]"_s, u"History"_s, u"Bookmarks"_s,
                                         u"[Edge - Office]"_s, u"History"_s, u"Bookmarks"_s}));
    EXPECT_EQ(model.pane(line(model, 5)), Pane(HistoryPane{u"chrome/Default"_s}));
    EXPECT_EQ(model.pane(line(model, 2)), Pane(MostVisitedPane()));
    EXPECT_EQ(model.pane(line(model, 4)), std::nullopt);
    EXPECT_EQ(line(model, 5).data(Qt::AccessibleTextRole), u"Chrome - Personal: History"_s);
}

TEST_F(SidebarTest, everyInstallationOfABrowserHasItsRows)
{
    addChromium();
    addChromeBeta();
    addFirefox(snapFirefox);
    loadNow(*library);
    const auto headings = [this] { return texts(*sidebar.model()).filter(u"["_s); };
    EXPECT_EQ(headings(),
              (QStringList{u"[Library]"_s, u"[Chrome - Personal]"_s, u"[Chrome - Work]"_s,
                           u"[Chrome Beta - Trial]"_s, u"[Edge - Office]"_s, u"[Firefox - default]"_s}));
    sidebar.select(HistoryPane{u"chrome@beta/Default"_s});
    EXPECT_EQ(sidebar.currentIndex().data(Qt::AccessibleTextRole), u"Chrome Beta - Trial: History"_s);
    QTest::keyClick(&sidebar, Qt::Key_End);
    const Pane ofFirefox = BookmarksPane{u"firefox@snap/abc.default"_s};
    EXPECT_EQ(sidebar.pane(), ofFirefox);
    // Another Firefox comes: from now on the first one has to be told apart, and is still the one shown.
    addFirefox();
    loadNow(*library);
    EXPECT_EQ(headings().last(2), (QStringList{u"[Firefox - default]"_s, u"[Firefox (Snap) - default]"_s}));
    EXPECT_EQ(sidebar.pane(), ofFirefox);
    EXPECT_EQ(sidebar.currentIndex().data(Qt::AccessibleTextRole), u"Firefox (Snap) - default: Bookmarks"_s);
}

TEST_F(SidebarTest, aHeadingIsShownAsItIsAndNotAsMarkUp)
{
    addChromium();
    change([this] {
        sample::writeLocalState(chromeFile(u"Local State"_s),
                                {{u"Default"_s, QJsonObject{{u"name"_s, u"<h1>Big</h1>"_s}}},
                                 {u"Profile 1"_s, QJsonObject{{u"name"_s, QString(1'000'000, u'x')}}}});
    });
    loadNow(*library);
    const SidebarModel model(*library);
    EXPECT_EQ(line(model, 4).data(), u"Chrome - <h1>Big</h1>"_s);
    EXPECT_TRUE(line(model, 4).data(Qt::ToolTipRole).toString().contains(u"&lt;h1&gt;Big&lt;/h1&gt;"));
    EXPECT_LT(line(model, 7).data().toString().size(), 2000);
    EXPECT_LT(line(model, 7).data(Qt::ToolTipRole).toString().size(), 2000);
}

TEST_F(SidebarTest, followsTheUsersOrder)
{
    addChromium();
    SidebarModel model(*library);
    loadNow(*library);
    library->moveProfiles({2}, 0);
    EXPECT_EQ(texts(model)[4], u"[Edge - Office]");
}

TEST_F(SidebarTest, aReloadThatChangesNoSourceMovesNothing)
{
    addChromium();
    SidebarModel model(*library);
    loadNow(*library);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    loadNow(*library);
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(SidebarTest, theKeyboardGoesFromRowToRowAndSkipsTheHeadings)
{
    addChromium();
    loadNow(*library);
    sidebar.select(BookmarksPane());
    QTest::keyClick(&sidebar, Qt::Key_Down);
    EXPECT_EQ(sidebar.pane(), Pane(HistoryPane{u"chrome/Default"_s}));
    QTest::keyClick(&sidebar, Qt::Key_Up);
    EXPECT_EQ(sidebar.pane(), Pane(BookmarksPane()));
}

TEST_F(SidebarTest, homeAndEndGoToTheOutermostRows)
{
    addChromium();
    loadNow(*library);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_PageUp}) {
        sidebar.select(BookmarksPane());
        QTest::keyClick(&sidebar, key);
        EXPECT_EQ(sidebar.pane(), Pane(HistoryPane()));
    }
    QTest::keyClick(&sidebar, Qt::Key_End);
    EXPECT_EQ(sidebar.pane(), Pane(BookmarksPane{u"edge/Default"_s}));
}

TEST_F(SidebarTest, theSelectionTellsWhetherTheKeyboardIsInIt)
{
    QWidget window;
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    sidebar.setParent(&window);
    sidebar.select(HistoryPane());
    window.show();
    window.activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return window.isActiveWindow(); }));
    // Wherever the pointer is.
    const auto image = [this] {
        QHoverEvent leave(QEvent::HoverLeave, QPointF(), QPointF(), QPointF());
        QCoreApplication::sendEvent(sidebar.viewport(), &leave);
        return sidebar.viewport()->grab().toImage();
    };
    const auto ground = [&] {
        const QRect row = sidebar.visualRect(sidebar.currentIndex());
        return image().pixelColor(row.right() - 16, row.center().y());
    };
    other.setFocus();
    QTest::keyClick(&other, Qt::Key_Tab);
    ASSERT_TRUE(sidebar.hasFocus());
    const QColor selected = Look::of(sidebar).sidebar.selected.base;
    const QImage withFocus = image();
    EXPECT_EQ(ground(), selected);
    other.setFocus();
    const QImage withoutFocus = image();
    EXPECT_NE(withoutFocus, withFocus);
    EXPECT_EQ(ground(), selected) << "it is still seen";
    // Whoever clicks sees where; the ring comes with the first key.
    sidebar.setFocus(Qt::MouseFocusReason);
    click(1);
    EXPECT_EQ(image(), withoutFocus);
    QTest::keyClick(&sidebar, Qt::Key_Up);
    EXPECT_EQ(image(), withFocus);
    sidebar.setParent(nullptr);
}

TEST_F(SidebarTest, aClickSelectsARowWhenTheButtonIsLetGoOnIt)
{
    addChromium();
    loadNow(*library);
    sidebar.show();
    int changes = 0;
    QObject::connect(&sidebar, &Sidebar::paneSelected, [&changes] { ++changes; });
    QTest::mousePress(sidebar.viewport(), Qt::LeftButton, {}, middleOf(2));
    EXPECT_EQ(sidebar.pane(), std::nullopt);
    QTest::mouseRelease(sidebar.viewport(), Qt::LeftButton, {}, middleOf(2));
    EXPECT_EQ(sidebar.pane(), Pane(MostVisitedPane()));
    EXPECT_EQ(changes, 1);
    QTest::mousePress(sidebar.viewport(), Qt::LeftButton, {}, middleOf(1));
    QTest::mouseRelease(sidebar.viewport(), Qt::LeftButton, {}, middleOf(3));
    EXPECT_EQ(sidebar.pane(), Pane(MostVisitedPane()));
    EXPECT_EQ(changes, 1);
}

TEST_F(SidebarTest, aClickOnASectionFoldsItAndAnotherOpensItAgain)
{
    addChromium();
    loadNow(*library);
    sidebar.show();
    sidebar.select(HistoryPane{u"chrome/Default"_s});
    click(4);
    EXPECT_TRUE(isFolded(1));
    EXPECT_EQ(sidebar.pane(), Pane(HistoryPane{u"chrome/Default"_s}));
    EXPECT_EQ(home.defaults.stringList(u"sidebar.folded"_s), QStringList{u"chrome/Default"_s});
    click(4);
    EXPECT_FALSE(isFolded(1));
    EXPECT_EQ(home.defaults.stringList(u"sidebar.folded"_s), QStringList());
}

TEST_F(SidebarTest, whatIsFoldedStaysSoAfterAReloadAndInTheNextWindow)
{
    addChromium();
    loadNow(*library);
    sidebar.show();
    click(4);
    sidebar.select(HistoryPane{u"chrome/Default"_s});
    EXPECT_TRUE(isFolded(1));
    library->moveProfiles({0}, 3);
    EXPECT_TRUE(isFolded(3));
    EXPECT_FALSE(isFolded(1));
    const Sidebar next(services());
    EXPECT_FALSE(next.isExpanded(next.model()->index(3, 0)));
    EXPECT_TRUE(next.isExpanded(next.model()->index(0, 0)));
}

TEST_F(SidebarTest, theArrowKeysFoldAndOpenASection)
{
    addChromium();
    loadNow(*library);
    sidebar.select(BookmarksPane{u"chrome/Default"_s});
    QTest::keyClick(&sidebar, Qt::Key_Left);
    EXPECT_TRUE(isFolded(1));
    EXPECT_EQ(sidebar.pane(), Pane(BookmarksPane{u"chrome/Default"_s})) << "it is still shown";
    // A folded section is gone to, so that it can be opened.
    QTest::keyClick(&sidebar, Qt::Key_Up);
    EXPECT_EQ(sidebar.pane(), Pane(BookmarksPane()));
    QTest::keyClick(&sidebar, Qt::Key_Down);
    EXPECT_EQ(sidebar.currentIndex(), sidebar.model()->index(1, 0));
    EXPECT_EQ(sidebar.pane(), Pane(BookmarksPane()));
    QTest::keyClick(&sidebar, Qt::Key_Right);
    EXPECT_FALSE(isFolded(1));
    QTest::keyClick(&sidebar, Qt::Key_Down);
    EXPECT_EQ(sidebar.pane(), Pane(HistoryPane{u"chrome/Default"_s}));
    sidebar.setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(&sidebar, Qt::Key_Right);
    EXPECT_TRUE(isFolded(1));
    QTest::keyClick(&sidebar, Qt::Key_Space);
    EXPECT_FALSE(isFolded(1));
}

TEST_F(SidebarTest, theArrowOfASectionTurnsAndRowsAreLitByAndBy)
{
    addChromium();
    loadNow(*library);
    sidebar.show();
    sidebar.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return sidebar.isActiveWindow(); }));
    sidebar.setFocus();
    const auto image = [this](const QModelIndex &index) {
        return sidebar.viewport()->grab(sidebar.visualRect(index)).toImage();
    };
    const QModelIndex section = sidebar.model()->index(1, 0);
    sidebar.setCurrentIndex(section);
    StillStyle style;
    sidebar.viewport()->setStyle(&style);
    QTest::keyClick(&sidebar, Qt::Key_Left);
    const QImage folded = image(section);
    QTest::keyClick(&sidebar, Qt::Key_Right);
    const QImage open = image(section);
    EXPECT_NE(folded, open);
    sidebar.viewport()->setStyle(nullptr);
    QTest::keyClick(&sidebar, Qt::Key_Left);
    const QImage onTheWay = image(section);
    EXPECT_NE(onTheWay, open);
    EXPECT_NE(onTheWay, folded);
    EXPECT_TRUE(waitUntil([&] { return image(section) == folded; }));

    const QModelIndex row = line(*sidebar.model(), 2);
    const auto ground = [&] {
        return image(row).pixelColor(image(row).width() - 20, image(row).height() / 2);
    };
    const auto point = [&] {
        const QPointF place = sidebar.visualRect(row).center();
        QHoverEvent move(QEvent::HoverMove, place, place, QPointF());
        QCoreApplication::sendEvent(sidebar.viewport(), &move);
    };
    const RowGround colors = Look::of(sidebar).sidebar;
    point();
    EXPECT_NE(ground(), colors.hover);
    EXPECT_TRUE(waitUntil([&] { return ground() == colors.hover; }));
    QHoverEvent leave(QEvent::HoverLeave, QPointF(), QPointF(), QPointF());
    QCoreApplication::sendEvent(sidebar.viewport(), &leave);
    EXPECT_EQ(ground(), colors.base);

    sidebar.viewport()->setStyle(&style);
    point();
    EXPECT_EQ(ground(), colors.hover);
    sidebar.viewport()->setStyle(nullptr);
}

TEST_F(SidebarTest, aProblemStandsAtItsSource)
{
    addChromium();
    fail(chromeFile(u"Default/History"_s), std::errc::io_error);
    loadNow(*library);
    const QString problem = library->snapshot().problems.value(u"chrome/Default"_s);
    ASSERT_FALSE(problem.isEmpty());
    const QModelIndex section = sidebar.model()->index(1, 0);
    EXPECT_EQ(section.data(Qt::AccessibleDescriptionRole), problem);
    EXPECT_TRUE(section.data(Qt::ToolTipRole).toString().contains(u"Input/output error"));
    EXPECT_EQ(sidebar.model()->index(2, 0).data(SidebarModel::ProblemRole), QString());
    const auto hasSign = [this](const QModelIndex &index) {
        const QRect row = sidebar.visualRect(index);
        const QImage image = sidebar.viewport()->grab(row).toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = image.width() - image.height(); x < image.width(); ++x) {
                if (image.pixelColor(x, y) != Look::of(sidebar).sidebar.base)
                    return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(hasSign(section));
    EXPECT_FALSE(hasSign(sidebar.model()->index(2, 0)));
}

TEST_F(SidebarTest, aRowIsToldWholeWhereItsWordsAreCut)
{
    sidebar.show();
    const QModelIndex row = line(*sidebar.model(), 1);
    const auto tip = [&] {
        const QPoint place = sidebar.visualRect(row).center();
        QHelpEvent event(QEvent::ToolTip, place, sidebar.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(sidebar.viewport(), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(tip(), QString()) << "who can read it needs no tip";
    QFont large = sidebar.font();
    large.setPointSize(40);
    sidebar.setFont(large);
    EXPECT_TRUE(tip().contains(u"Recent History"));
    QToolTip::hideText();
}

TEST_F(SidebarTest, aSourceIsDraggedToAnotherPlace)
{
    addChromium();
    home.defaults.setStringList(u"disabledProfiles"_s, {u"chrome/Profile 1"_s});
    library = std::make_unique<Library>(home.platform());
    loadNow(*library);
    Sidebar shown(services());
    shown.resize(220, 600);
    const auto sections = [&shown] { return texts(*shown.model()).filter(u"["_s); };
    ASSERT_EQ(sections(), (QStringList{u"[Library]"_s, u"[Chrome - Personal]"_s, u"[Edge - Office]"_s}));
    const auto drag = [&shown](int section, int y) {
        QWidget *viewport = shown.viewport();
        const QPoint start = shown.visualRect(shown.model()->index(section, 0)).center();
        QTest::mousePress(viewport, Qt::LeftButton, {}, start);
        for (const QPoint &place : {start + QPoint(0, 20), QPoint(start.x(), y)}) {
            QMouseEvent move(QEvent::MouseMove, place, viewport->mapToGlobal(place), Qt::NoButton,
                             Qt::LeftButton, {});
            QCoreApplication::sendEvent(viewport, &move);
        }
    };
    const auto letGo = [&shown](int y) {
        QTest::mouseRelease(shown.viewport(), Qt::LeftButton, {}, QPoint(100, y));
    };
    drag(1, 590);
    QTest::keyClick(&shown, Qt::Key_Escape);
    letGo(590);
    EXPECT_EQ(sections().last(), u"[Edge - Office]") << "it was given up";
    drag(1, 590);
    letGo(590);
    EXPECT_EQ(sections(), (QStringList{u"[Library]"_s, u"[Edge - Office]"_s, u"[Chrome - Personal]"_s}));
    // The one that is switched off is where it was, between the two.
    EXPECT_EQ(ids(library->ordered(library->snapshot().browserProfiles)),
              (QStringList{u"chrome/Profile 1"_s, u"edge/Default"_s, u"chrome/Default"_s}));
    drag(2, 0);
    letGo(0);
    EXPECT_EQ(sections(), (QStringList{u"[Library]"_s, u"[Chrome - Personal]"_s, u"[Edge - Office]"_s}));
    EXPECT_TRUE(shown.isExpanded(shown.model()->index(1, 0))) << "a drag folds nothing";
}

TEST_F(SidebarTest, aSourceIsCarriedToAnotherPlaceByKey)
{
    addChromium();
    loadNow(*library);
    const auto sections = [this] { return texts(*sidebar.model()).filter(u"["_s).mid(1); };
    const QStringList before{u"[Chrome - Personal]"_s, u"[Chrome - Work]"_s, u"[Edge - Office]"_s};
    ASSERT_EQ(sections(), before);
    sidebar.select(BookmarksPane{u"chrome/Default"_s});
    QTest::keyClick(&sidebar, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(sections(), before) << "nothing comes before the library";
    QTest::keyClick(&sidebar, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(&sidebar, Qt::Key_Down, Qt::ControlModifier);
    const QStringList carried{u"[Chrome - Work]"_s, u"[Edge - Office]"_s, u"[Chrome - Personal]"_s};
    EXPECT_EQ(sections(), carried);
    QTest::keyClick(&sidebar, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(sections(), carried) << "it is the last one";
    EXPECT_EQ(sidebar.pane(), Pane(BookmarksPane{u"chrome/Default"_s}));
    EXPECT_EQ(sidebar.currentIndex().data(Qt::AccessibleTextRole), u"Chrome - Personal: Bookmarks"_s);

    // A folded section is carried as a whole, while another one is shown.
    QTest::keyClick(&sidebar, Qt::Key_Left);
    sidebar.select(HistoryPane());
    sidebar.setCurrentIndex(sidebar.model()->index(3, 0));
    QTest::keyClick(&sidebar, Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(&sidebar, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(sections(), before);
    EXPECT_EQ(sidebar.currentIndex(), sidebar.model()->index(1, 0));
    EXPECT_TRUE(isFolded(1));
    EXPECT_EQ(sidebar.pane(), Pane(HistoryPane()));

    sidebar.select(MostVisitedPane());
    QTest::keyClick(&sidebar, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(sections(), before) << "the library stays";
    EXPECT_EQ(sidebar.pane(), Pane(MostVisitedPane()));
}

TEST_F(SidebarTest, slidingOverRowsWithAButtonDownSelectsNoneOfThem)
{
    addChromium();
    loadNow(*library);
    sidebar.show();
    sidebar.select(HistoryPane());
    const QSignalSpy choices(&sidebar, &Sidebar::paneSelected);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        QTest::mousePress(sidebar.viewport(), button, {}, middleOf(1));
        for (const int number : {2, 3, 5, 6}) {
            QMouseEvent move(QEvent::MouseMove, middleOf(number),
                             sidebar.viewport()->mapToGlobal(middleOf(number)), Qt::NoButton, button, {});
            QCoreApplication::sendEvent(sidebar.viewport(), &move);
        }
        QTest::mouseRelease(sidebar.viewport(), button, {}, middleOf(6));
        EXPECT_EQ(sidebar.pane(), Pane(HistoryPane())) << button;
    }
    EXPECT_EQ(choices.size(), 0);
}

TEST_F(SidebarTest, theSelectionOutlivesAReloadAndASourceThatIsGoneForAWhile)
{
    addChromium();
    loadNow(*library);
    int changes = 0;
    QObject::connect(&sidebar, &Sidebar::paneSelected, [&changes] { ++changes; });
    const Pane pane = BookmarksPane{u"chrome/Profile 1"_s};
    sidebar.select(pane);
    const auto selectedText = [this] {
        const QModelIndexList rows = sidebar.selectionModel()->selectedIndexes();
        return rows.isEmpty() ? QString() : rows.first().data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(selectedText(), u"Chrome - Work: Bookmarks");
    library->setEnabled(false, *library->source(u"chrome/Profile 1"_s));
    ASSERT_TRUE(waitUntil([this] { return !library->isLoading(); }));
    EXPECT_EQ(selectedText(), u"");
    const auto &profiles = library->snapshot().browserProfiles;
    const auto work = std::ranges::find(profiles, u"chrome/Profile 1"_s, &Source::id);
    ASSERT_NE(work, profiles.end());
    library->setEnabled(true, *work);
    ASSERT_TRUE(waitUntil([this] { return !library->isLoading(); }));
    EXPECT_EQ(selectedText(), u"Chrome - Work: Bookmarks");
    EXPECT_EQ(changes, 0);
}

TEST_F(SidebarTest, theContextMenuExportsABookmarksRowThatHasSome)
{
    addChromium();
    loadNow(*library);
    sidebar.show();
    std::optional<std::optional<QString>> exported;
    QObject::connect(&sidebar, &Sidebar::exportRequested,
                     [&exported](const std::optional<QString> &id) { exported = id; });
    const auto openMenu = [this](int row) -> QMenu * {
        const QPoint place = middleOf(row);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, sidebar.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(sidebar.viewport(), &event);
        return sidebar.findChild<QMenu *>(u"sidebarMenu"_s);
    };
    EXPECT_EQ(openMenu(5), nullptr);

    QMenu *ofAll = openMenu(3);
    ASSERT_NE(ofAll, nullptr);
    EXPECT_EQ(ofAll->actions().first()->text(), u"Export Bookmarks…");
    EXPECT_TRUE(ofAll->actions().first()->isEnabled());
    ofAll->actions().first()->trigger();
    EXPECT_EQ(exported, std::optional<std::optional<QString>>(std::optional<QString>()));
    delete ofAll;

    QMenu *ofOne = openMenu(6);
    ASSERT_NE(ofOne, nullptr);
    ofOne->actions().first()->trigger();
    EXPECT_EQ(exported, std::optional<std::optional<QString>>(u"chrome/Default"_s));
    delete ofOne;

    QMenu *withoutBookmarks = openMenu(12);
    ASSERT_NE(withoutBookmarks, nullptr);
    EXPECT_FALSE(withoutBookmarks->actions().first()->isEnabled());
}

TEST_F(SidebarTest, onlyTheLeftButtonChooses)
{
    addChromium();
    loadNow(*library);
    sidebar.show();
    sidebar.select(HistoryPane());
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        click(3, button);
        EXPECT_EQ(sidebar.pane(), Pane(HistoryPane()));
    }
    click(3);
    EXPECT_EQ(sidebar.pane(), Pane(BookmarksPane()));
}

} // namespace roamlet::testing
