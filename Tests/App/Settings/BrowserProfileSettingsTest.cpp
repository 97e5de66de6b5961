// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/BrowserProfileSettings.h"

#include "App/Look/Look.h"
#include "App/Look/NoteLabel.h"
#include "App/Look/StillStyle.h"
#include "App/Settings/ProfileList.h"
#include "App/Settings/ProfileListModel.h"
#include "Opening/Opener.h"
#include "Support/FakeWorkspace.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QAbstractItemModelTester>
#include <QTest>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// Safari, Safari's profile "Travel", Chrome's "Personal" and "Work", Edge's "Office".
class BrowserProfileSettingsTest : public LibraryHome
{
protected:
    void SetUp() override
    {
        addSafari();
        addSafariProfile();
        addChromium();
        loadNow(library);
        tab.resize(420, 320);
        tab.show();
        tab.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tab));
    }

    ProfileList &list() { return *tab.findChild<ProfileList *>(); }
    QAbstractItemModel &model() { return *list().model(); }
    QModelIndex row(int number) { return model().index(number, 0); }
    QStringList labels()
    {
        QStringList result;
        for (int i = 0; i < model().rowCount(); ++i)
            result.append(row(i).data().toString());
        return result;
    }
    QPoint center(int number) { return list().visualRect(row(number)).center(); }
    void clickSwitch(int number)
    {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().switchRect(row(number)).center());
    }
    bool isOn(int number)
    {
        return row(number).data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    }
    /// Drags a row by its handle, until its middle is so far below another's.
    void drag(int from, int to, int offset)
    {
        const QPoint start(12, center(from).y());
        QTest::mousePress(list().viewport(), Qt::LeftButton, {}, start);
        moveMouse(start + QPoint(0, 20));
        moveMouse(QPoint(30, center(to).y() + offset));
        QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, QPoint(30, center(to).y() + offset));
    }
    void moveMouse(QPoint position)
    {
        // With the button held down; the test library's own has none.
        QMouseEvent event(QEvent::MouseMove, position, list().viewport()->mapToGlobal(position), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(list().viewport(), &event);
    }

    Library library{home.platform()};
    FakeWorkspace workspace;
    Opener opener{workspace};
    BrowserProfileSettings tab{library, opener};
    const QStringList all{u"Safari - Personal"_s, u"Safari - Travel"_s, u"Chrome - Personal"_s,
                          u"Chrome - Work"_s, u"Edge - Office"_s};
};

TEST_F(BrowserProfileSettingsTest, listsEveryProfileInTheUsersOrderAndSaysWhatForBelow)
{
    EXPECT_EQ(labels(), all);
    const auto *note = tab.findChild<NoteLabel *>();
    EXPECT_EQ(note->text(),
              u"Drag profiles to change their order in the sidebar. Roamlet only reads the profiles that "
              "are on, and new ones are on automatically."_s);
    EXPECT_TRUE(note->wordWrap());
    EXPECT_GT(note->y(), list().geometry().bottom());
}

TEST_F(BrowserProfileSettingsTest, saysThatChangesAreSeenLateWhereTheSystemHasNoMoreWatches)
{
    library.start();
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    const auto *note = tab.findChild<NoteLabel *>(u"watchNote"_s);
    EXPECT_FALSE(note->isVisible());
    home.fileEvents.isLimitReached = true;
    home.fileEvents.report({});
    EXPECT_TRUE(note->isVisible());
    EXPECT_EQ(note->tone(), NoteLabel::Tone::Problem);
    EXPECT_TRUE(note->text().startsWith(u"The system has no more watches for files"));
    const BrowserProfileSettings openedLater(library, opener);
    EXPECT_FALSE(openedLater.findChild<NoteLabel *>(u"watchNote"_s)->isHidden());
}

TEST_F(BrowserProfileSettingsTest, aSwitchTurnsItsProfileOffAndOnAgain)
{
    clickSwitch(3);
    EXPECT_FALSE(isOn(3));
    EXPECT_EQ(home.defaults.stringList(u"disabledProfiles"_s), QStringList{u"chrome/Profile 1"_s});
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    EXPECT_EQ(labels(), all) << "a profile that is off stays in the list";
    EXPECT_FALSE(isOn(3));
    clickSwitch(3);
    EXPECT_TRUE(isOn(3));
    EXPECT_EQ(home.defaults.stringList(u"disabledProfiles"_s), QStringList());
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
}

TEST_F(BrowserProfileSettingsTest, anInstallationIsSwitchedAndMovedByItself)
{
    addChromeBeta();
    addFirefox(snapFirefox);
    loadNow(library);
    EXPECT_EQ(labels(), (QStringList{all[0], all[1], all[2], all[3], u"Chrome Beta - Trial"_s, all[4],
                                     u"Firefox - default"_s}));
    list().scrollTo(row(6));
    clickSwitch(6);
    EXPECT_EQ(home.defaults.stringList(u"disabledProfiles"_s), QStringList{u"firefox@snap/abc.default"_s});
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    list().setFocus();
    list().setCurrentIndex(row(6));
    QTest::keyClick(&list(), Qt::Key_Up, Qt::AltModifier);
    const QStringList moved{u"safari"_s,
                            u"safari/T"_s,
                            u"chrome/Default"_s,
                            u"chrome/Profile 1"_s,
                            u"chrome@beta/Default"_s,
                            u"firefox@snap/abc.default"_s,
                            u"edge/Default"_s};
    EXPECT_EQ(home.defaults.stringList(u"sourceOrder"_s), moved);
    // Another Firefox comes: it is on, and the first one is where it was, and off.
    addFirefox();
    loadNow(library);
    EXPECT_EQ(labels(), (QStringList{all[0], all[1], all[2], all[3], u"Chrome Beta - Trial"_s,
                                     u"Firefox (Snap) - default"_s, all[4], u"Firefox - default"_s}));
    EXPECT_FALSE(isOn(5));
    EXPECT_TRUE(isOn(7));
}

TEST_F(BrowserProfileSettingsTest, aClickAnywhereButOnItsHandleTurnsARow)
{
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, center(2));
    EXPECT_FALSE(isOn(2));
    EXPECT_EQ(list().currentIndex().row(), 2);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, center(2));
    EXPECT_TRUE(isOn(2));
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, QPoint(12, center(3).y()));
    EXPECT_TRUE(isOn(3));
    EXPECT_EQ(list().currentIndex().row(), 3) << "it can be moved by keys now";
    QTest::mouseClick(list().viewport(), Qt::RightButton, {}, center(2));
    EXPECT_TRUE(isOn(2));
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, list().switchRect(row(2)).center());
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, center(3));
    EXPECT_TRUE(isOn(2)) << "released elsewhere";
    EXPECT_TRUE(isOn(3));
}

TEST_F(BrowserProfileSettingsTest, spaceTurnsTheCurrentProfile)
{
    list().setFocus();
    list().setCurrentIndex(row(0));
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Space);
    EXPECT_FALSE(isOn(2));
    EXPECT_EQ(library.disabledProfiles(), QSet<QString>{u"chrome/Default"_s});
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    EXPECT_EQ(list().currentIndex().row(), 2) << "a reload leaves the keyboard where it is";
}

TEST_F(BrowserProfileSettingsTest, safarisMainSourceIsAlwaysOnAndSaysWhy)
{
    clickSwitch(0);
    list().setCurrentIndex(row(0));
    QTest::keyClick(&list(), Qt::Key_Space);
    EXPECT_TRUE(isOn(0));
    EXPECT_FALSE(home.defaults.contains(u"disabledProfiles"_s));
    EXPECT_FALSE(row(0).flags().testFlag(Qt::ItemIsUserCheckable));
    EXPECT_EQ(row(0).data(Qt::ToolTipRole), u"Holds Safari's main bookmarks, so it's always on."_s);
}

TEST_F(BrowserProfileSettingsTest, thereIsRoomForWhatIsSaidBelowAName)
{
    const QString reason = row(0).data(Qt::ToolTipRole).toString();
    EXPECT_GT(list().sizeHint().width(), QFontMetrics(list().font()).horizontalAdvance(reason) * 9 / 10);
    const QImage before = list().viewport()->grab(list().visualRect(row(0))).toImage();
    const QImage other = list().viewport()->grab(list().visualRect(row(1))).toImage();
    const QColor quiet = Look::of(list()).card.quiet;
    const auto hasQuietWords = [&](const QImage &picture) {
        // The handle is as quiet, and ends before the words begin, and so may be a dot of a name above them.
        for (int y = picture.height() * 2 / 3; y < picture.height(); ++y) {
            for (int x = picture.width() / 4; x < picture.width() / 2; ++x) {
                if (picture.pixelColor(x, y) == quiet)
                    return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(hasQuietWords(before));
    EXPECT_FALSE(hasQuietWords(other));
}

TEST_F(BrowserProfileSettingsTest, otherProfilesOfSafariCanBeTurnedOffAndHaveNoTip)
{
    EXPECT_EQ(row(1).data(Qt::ToolTipRole), QVariant());
    clickSwitch(1);
    EXPECT_FALSE(isOn(1));
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
}

TEST_F(BrowserProfileSettingsTest, draggingMovesARow)
{
    drag(4, 0, -3);
    EXPECT_EQ(labels(), (QStringList{all[4], all[0], all[1], all[2], all[3]}));
    EXPECT_EQ(home.defaults.stringList(u"sourceOrder"_s),
              (QStringList{u"edge/Default"_s, u"safari"_s, u"safari/T"_s, u"chrome/Default"_s,
                           u"chrome/Profile 1"_s}));
    drag(0, 2, 3);
    EXPECT_EQ(labels(), (QStringList{all[0], all[1], all[4], all[2], all[3]}));
    EXPECT_EQ(list().currentIndex().row(), 2) << "the row that was moved stays the current one";
    EXPECT_TRUE(list().selectionModel()->isRowSelected(2));
}

TEST_F(BrowserProfileSettingsTest, theDraggedRowIsCarriedAndTheOthersMakeRoom)
{
    const int height = list().visualRect(row(0)).height();
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, center(3));
    moveMouse(center(3) - QPoint(0, 2 * height + 5));
    EXPECT_EQ(list().shownRect(row(3)).center().y(), center(3).y() - 2 * height - 5)
        << "it follows the mouse";
    ASSERT_TRUE(waitUntil([&] { return list().shownRect(row(1)).top() == list().visualRect(row(2)).top(); }));
    EXPECT_EQ(list().shownRect(row(0)), list().visualRect(row(0)));
    EXPECT_EQ(list().shownRect(row(2)).top(), list().visualRect(row(3)).top());
    EXPECT_EQ(list().shownRect(row(4)), list().visualRect(row(4)));
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, center(1) - QPoint(0, 5));
    EXPECT_EQ(labels(), (QStringList{all[0], all[3], all[1], all[2], all[4]}));
    ASSERT_TRUE(waitUntil([&] { return list().shownRect(row(1)) == list().visualRect(row(1)); }));
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(list().shownRect(row(i)), list().visualRect(row(i))) << i;
}

TEST_F(BrowserProfileSettingsTest, theOthersMakeRoomWhereTheRowIsWhereverItWasGrabbed)
{
    const QRect place = list().visualRect(row(3));
    for (const int grabbedAt : {place.top() + 2, place.bottom() - 2}) {
        const QPoint start(12, grabbedAt);
        QTest::mousePress(list().viewport(), Qt::LeftButton, {}, start);
        moveMouse(start - QPoint(0, place.height() * 4 / 10));
        EXPECT_EQ(list().shownRect(row(2)), list().visualRect(row(2))) << "most of it is in its own place";
        moveMouse(start - QPoint(0, place.height() * 6 / 10));
        EXPECT_TRUE(waitUntil([&] { return list().shownRect(row(2)) == place; }));
        EXPECT_EQ(list().shownRect(row(1)), list().visualRect(row(1)));
        QTest::keyClick(&list(), Qt::Key_Escape);
        EXPECT_TRUE(waitUntil([&] { return list().shownRect(row(3)) == place; }));
        QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, start);
    }
    EXPECT_EQ(labels(), all);
}

TEST_F(BrowserProfileSettingsTest, aRowThatIsCarriedStaysAmongTheOthers)
{
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, center(3));
    moveMouse(QPoint(30, -200));
    EXPECT_EQ(list().shownRect(row(3)).top(), list().visualRect(row(0)).top());
    moveMouse(QPoint(30, 2000));
    EXPECT_EQ(list().shownRect(row(3)).bottom(), list().visualRect(row(4)).bottom());
    QTest::keyClick(&list(), Qt::Key_Escape);
    ASSERT_TRUE(waitUntil([&] { return list().shownRect(row(3)) == list().visualRect(row(3)); }));
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, QPoint(30, 2000));
    EXPECT_EQ(labels(), all);
}

TEST_F(BrowserProfileSettingsTest, whereNothingShallMoveTheRowsAreAtTheirPlacesAtOnce)
{
    StillStyle still;
    list().setStyle(&still);
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, center(3));
    moveMouse(center(1) - QPoint(0, 5));
    EXPECT_EQ(list().shownRect(row(1)), list().visualRect(row(2)));
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, center(1) - QPoint(0, 5));
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(list().shownRect(row(i)), list().visualRect(row(i))) << i;
    list().setStyle(nullptr);
}

TEST_F(BrowserProfileSettingsTest, aRowCanBeDraggedBelowTheLast)
{
    const QPoint below(30, list().viewport()->height() + 50);
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, center(0));
    moveMouse(below);
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, below);
    EXPECT_EQ(labels(), (QStringList{all[1], all[2], all[3], all[4], all[0]}));
}

TEST_F(BrowserProfileSettingsTest, aRowThatIsDroppedWhereItWasStoresNothing)
{
    drag(2, 2, 3);
    drag(2, 2, -3);
    const int withinItsPlace = list().visualRect(row(2)).height() / 2 - 1;
    drag(2, 2, withinItsPlace);
    drag(2, 2, -withinItsPlace);
    EXPECT_EQ(labels(), all);
    EXPECT_FALSE(home.defaults.contains(u"sourceOrder"_s));
}

TEST_F(BrowserProfileSettingsTest, escapeEndsTheDragAndNothingMoves)
{
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, center(4));
    moveMouse(center(0));
    QTest::keyClick(&list(), Qt::Key_Escape);
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, center(0));
    EXPECT_EQ(labels(), all);
    EXPECT_TRUE(tab.isVisible());
}

TEST_F(BrowserProfileSettingsTest, theSwitchIsNoHandle)
{
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, list().switchRect(row(4)).center());
    moveMouse(center(0));
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, center(0));
    EXPECT_EQ(labels(), all);
}

TEST_F(BrowserProfileSettingsTest, aReloadDuringADragDropsTheRowThatIsThen)
{
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, center(4));
    moveMouse(center(1));
    change([this] {
        sample::writeLocalState(chromeFile(u"Local State"_s),
                                {{u"Default"_s, QJsonObject{{u"name"_s, u"Personal"_s}}}});
        sample::writeLocalState(edgeFile(u"Local State"_s), {});
    });
    loadNow(library);
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, center(1));
    EXPECT_EQ(labels(), (QStringList{all[0], all[1], all[2]})) << "the dragged profile is gone";
}

TEST_F(BrowserProfileSettingsTest, altOrControlWithTheArrowsMoveTheCurrentRow)
{
    list().setFocus();
    list().setCurrentIndex(row(1));
    QTest::keyClick(&list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(labels(), (QStringList{all[0], all[2], all[1], all[3], all[4]}));
    QTest::keyClick(&list(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(labels(), (QStringList{all[0], all[2], all[3], all[1], all[4]}));
    QTest::keyClick(&list(), Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(&list(), Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(&list(), Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(&list(), Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(labels(), (QStringList{all[1], all[0], all[2], all[3], all[4]})) << "the top is the end";
    list().setCurrentIndex(row(4));
    QTest::keyClick(&list(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(labels(), (QStringList{all[1], all[0], all[2], all[3], all[4]})) << "and so is the bottom";
}

TEST_F(BrowserProfileSettingsTest, withoutProfilesTheListSaysWhyItIsEmpty)
{
    TestHome empty;
    Library nothing(empty.platform());
    const BrowserProfileSettings other(nothing, opener);
    const auto *otherList = other.findChild<ProfileList *>();
    EXPECT_EQ(otherList->placeholderText(), u"Reading…"_s);
    loadNow(nothing);
    EXPECT_EQ(otherList->model()->rowCount(), 0);
    EXPECT_EQ(otherList->placeholderText(), u"No browser profiles were found."_s);
}

TEST_F(BrowserProfileSettingsTest, aProfileHasItsBrowsersIconBetweenTheHandleAndTheName)
{
    workspace.icons = {{u"edge"_s, Qt::magenta}};
    loadNow(library);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        tab.setLayoutDirection(direction);
        const QImage drawn = list().viewport()->grab().toImage();
        const int y = center(4).y();
        QList<int> columns;
        for (int x = 0; x < drawn.width(); ++x) {
            if (drawn.pixelColor(x, y) == QColor(Qt::magenta))
                columns.append(x);
        }
        ASSERT_FALSE(columns.isEmpty());
        EXPECT_EQ(columns.last() - columns.first() + 1, columns.size()) << "it is one square";
        const int leading =
            direction == Qt::LeftToRight ? columns.first() : drawn.width() - 1 - columns.last();
        EXPECT_GT(leading, 20);
        EXPECT_LT(leading, 60);
    }
    EXPECT_NE(row(2).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage(),
              row(3).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage())
        << "one is Personal, the other one Work";
}

TEST_F(BrowserProfileSettingsTest, anEndlessNameIsCut)
{
    change([&] {
        sample::writeLocalState(chromeFile(u"Local State"_s),
                                {{u"Default"_s, QJsonObject{{u"name"_s, QString(1'000'000, u'w')}}}});
    });
    loadNow(library);
    EXPECT_EQ(labels()[2].size(), 1001);
    EXPECT_TRUE(labels()[2].endsWith(u'…')) << "and it is seen that it goes on";
    EXPECT_LE(list().visualRect(row(2)).width(), list().viewport()->width());
}

TEST_F(BrowserProfileSettingsTest, theModelIsAProperOne)
{
    ProfileListModel own(library, opener, list());
    const QAbstractItemModelTester tester(&own, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_TRUE(own.moveRow({}, 0, {}, 3));
    EXPECT_FALSE(own.moveRow({}, 1, {}, 1));
    EXPECT_FALSE(own.moveRow({}, 1, {}, 2));
    EXPECT_FALSE(own.moveRow({}, -1, {}, 3));
    EXPECT_FALSE(own.moveRow({}, 0, {}, 6));
    EXPECT_FALSE(own.setData(own.index(0), u"x"_s, Qt::EditRole));
    EXPECT_TRUE(own.setData(own.index(0), Qt::Unchecked, Qt::CheckStateRole));
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    EXPECT_EQ(own.rowCount(), 5);
    setChromeHistory(u"Default"_s, {});
    change([&] { sample::writeLocalState(chromeFile(u"Local State"_s), {}); });
    loadNow(library);
    EXPECT_LT(own.rowCount(), 5);
}

} // namespace
} // namespace roamlet::testing
