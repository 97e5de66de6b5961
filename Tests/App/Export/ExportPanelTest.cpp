// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Export/ExportPanel.h"

#include "App/Export/FakeAlert.h"
#include "App/Export/FakeSavePanel.h"
#include "App/Look/ChoiceRow.h"
#include "Export/BookmarkExport.h"
#include "Opening/Opener.h"
#include "Platform/FileSizeLimit.h"
#include "Platform/WithoutPrivileges.h"
#include "SampleHome/PlainFiles.h"
#include "Support/FakeActivationPolicy.h"
#include "Support/FakeWorkspace.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <unistd.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

const QString work = u"chrome/Profile 1"_s;

QJsonArray manyBookmarks(int count)
{
    QJsonArray nodes;
    for (int i = 0; i < count; ++i) {
        const QString number = QString::number(i);
        nodes.append(sample::bookmarkNode(number, u"Title "_s + number, u"https://e.example/"_s + number, 0));
    }
    return nodes;
}

/// Chrome's profile "Personal" has one bookmark, "Work" three, Edge's "Office" none.
class ExportPanelTest : public LibraryHome
{
protected:
    void SetUp() override
    {
        addChromium();
        setBookmarks(3);
        loadNow(library);
        QFile::setPermissions(target.path(), QFile::Permissions(0x7777));
    }

    void setBookmarks(int count)
    {
        change([&] {
            sample::writeBookmarks(
                chromeFile(u"Profile 1/Bookmarks"_s),
                {{u"bookmark_bar"_s, sample::folderNode(u"bar"_s, u"Bar"_s, manyBookmarks(count))}});
        });
    }

    void open(const ExportRequest &request = {})
    {
        panel =
            new ExportPanel(request, {library, home.defaults, savePanel, alert, activation, opener}, &window);
        window.resize(900, 600);
        window.show();
        panel->open();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QComboBox &sources() { return *panel->findChild<QComboBox *>(u"exportSource"_s); }
    QStringList choices()
    {
        QStringList result;
        for (int i = 0; i < sources().count(); ++i)
            result.append(sources().itemText(i));
        return result;
    }
    ChoiceRow &format(const QString &name)
    {
        return *panel->findChild<ChoiceRow *>(u"exportFormat."_s + name);
    }
    QPushButton &exportButton() { return *panel->findChild<QPushButton *>(u"exportButton"_s); }
    QPushButton &cancelButton() { return *panel->findChild<QPushButton *>(u"exportCancel"_s); }

    /// Exports by mouse and waits until the sheet has gone or can be used again.
    void exportNow()
    {
        QTest::mouseClick(&exportButton(), Qt::LeftButton);
        ASSERT_TRUE(waitUntil([this] { return panel == nullptr || exportButton().isEnabled(); }));
    }

    QString path(const QString &name) const { return target.filePath(name); }
    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return file.readAll();
    }
    QStringList savedNames() const
    {
        return QDir(target.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// The sheet is still open and usable, and the user was told once.
    void expectFailure()
    {
        ASSERT_NE(panel, nullptr);
        EXPECT_TRUE(panel->isVisible());
        EXPECT_TRUE(exportButton().isEnabled());
        ASSERT_EQ(alert.problems.size(), 1);
        EXPECT_FALSE(alert.problems.first().isEmpty());
        EXPECT_EQ(alert.subjects, QStringList{*savePanel.chosenPath});
    }

    Library library{home.platform()};
    FakeSavePanel savePanel;
    FakeAlert alert;
    FakeActivationPolicy activation;
    FakeWorkspace workspace;
    Opener opener{workspace};
    QTemporaryDir target;
    /// Has something else that could have the keyboard.
    QWidget window;
    QLineEdit *below = new QLineEdit(&window);
    QPointer<ExportPanel> panel;

    ~ExportPanelTest() override { delete panel; }
};

TEST_F(ExportPanelTest, showsItsPartsFromTopToBottom)
{
    open();
    QList<int> tops;
    for (const QString &name :
         {u"exportHeading"_s, u"exportSource"_s, u"exportFormatLabel"_s, u"exportFormat.html"_s,
          u"exportFormat.markdown"_s, u"exportFormat.csv"_s, u"exportButton"_s}) {
        const auto *widget = panel->findChild<QWidget *>(name);
        ASSERT_NE(widget, nullptr) << qPrintable(name);
        tops.append(widget->mapTo(panel.data(), QPoint(0, 0)).y());
    }
    EXPECT_TRUE(std::ranges::is_sorted(tops));
    EXPECT_EQ(panel->findChild<QLabel *>(u"exportHeading"_s)->text(), u"Export Bookmarks"_s);
    EXPECT_EQ(cancelButton().text(), u"Cancel"_s);
    EXPECT_EQ(exportButton().text(), u"Export…"_s);
    EXPECT_EQ(panel->focusWidget(), &exportButton()) << "Return exports at once, on every desktop";
    EXPECT_LT(cancelButton().x(), exportButton().x());
}

TEST_F(ExportPanelTest, offersTheThreeFormatsWithTheirDescriptions)
{
    open();
    const QList<QStringList> rows{
        {u"html"_s, u"Bookmark File"_s,
         u"HTML that Safari, Chrome, Edge and most other browsers can import."_s},
        {u"markdown"_s, u"Markdown"_s, u"Headings and lists, for notes and documents."_s},
        {u"csv"_s, u"CSV"_s, u"One row per bookmark, for Numbers or Excel."_s}};
    for (const QStringList &row : rows) {
        EXPECT_EQ(format(row[0]).text(), row[1]);
        EXPECT_EQ(format(row[0]).note(), row[2]);
    }
    EXPECT_EQ(panel->findChildren<ChoiceRow *>().size(), 3);
}

TEST_F(ExportPanelTest, offersAllBrowsersAndEachSourceWithBookmarksInTheUsersOrder)
{
    library.moveProfiles({1}, 0);
    open();
    EXPECT_EQ(choices(),
              (QStringList{u"All Browsers (4)"_s, u"Chrome - Work (3)"_s, u"Chrome - Personal (1)"_s}));
    EXPECT_EQ(sources().currentIndex(), 0);
}

TEST_F(ExportPanelTest, countsAreGroupedAsTheUserWritesNumbers)
{
    setBookmarks(1233);
    loadNow(library);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    open();
    QLocale::setDefault(before);
    EXPECT_EQ(choices(), (QStringList{u"All Browsers (1,234)"_s, u"Chrome - Personal (1)"_s,
                                      u"Chrome - Work (1,233)"_s}));
}

TEST_F(ExportPanelTest, beginsWithTheRequestedSource)
{
    open({work});
    EXPECT_EQ(sources().currentText(), u"Chrome - Work (3)"_s);
}

TEST_F(ExportPanelTest, followsTheLibraryAndKeepsTheChoice)
{
    open({work});
    library.moveProfiles({1}, 0);
    EXPECT_EQ(choices()[1], u"Chrome - Work (3)"_s);
    EXPECT_EQ(sources().currentText(), u"Chrome - Work (3)"_s);
    setBookmarks(5);
    loadNow(library);
    EXPECT_EQ(choices().first(), u"All Browsers (6)"_s);
    EXPECT_EQ(sources().currentText(), u"Chrome - Work (5)"_s);
}

TEST_F(ExportPanelTest, aSourceThatVanishesLeavesNoChoiceAndAnEmptyFile)
{
    open({work});
    library.setEnabled(false, library.snapshot().browserProfiles[1]);
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    EXPECT_EQ(sources().currentIndex(), -1);
    EXPECT_EQ(choices(), (QStringList{u"All Browsers (1)"_s, u"Chrome - Personal (1)"_s}));
    format(u"csv"_s).click();
    savePanel.chosenPath = path(u"file.csv"_s);
    exportNow();
    EXPECT_EQ(savePanel.requests.first().name, u"Bookmarks"_s);
    EXPECT_EQ(content(u"file.csv"_s), "Browser,Profile,Folder,Title,URL,Added\r\n");
}

TEST_F(ExportPanelTest, eachSourceHasItsIcon)
{
    workspace.icons = {{u"chrome"_s, Qt::cyan}};
    open();
    ASSERT_EQ(sources().count(), 3);
    const auto icon = [this](int index) { return sources().itemIcon(index).pixmap(16).toImage(); };
    EXPECT_EQ(icon(1).pixelColor(4, 8), QColor(Qt::cyan));
    EXPECT_EQ(icon(2).pixelColor(4, 8), QColor(Qt::cyan));
    EXPECT_NE(icon(1), icon(2)) << "one is Personal, the other one Work";
    EXPECT_FALSE(sources().itemIcon(0).isNull()) << "all texts begin on one line";
}

TEST_F(ExportPanelTest, anEmptyHomeOffersOnlyAllBrowsers)
{
    TestHome empty;
    Library nothing(empty.platform());
    panel = new ExportPanel({}, {nothing, home.defaults, savePanel, alert, activation, opener}, &window);
    EXPECT_EQ(choices(), QStringList{u"All Browsers (0)"_s});
}

TEST_F(ExportPanelTest, anEndlessProfileNameKeepsTheSheetOnTheScreen)
{
    change([&] {
        sample::writeLocalState(chromeFile(u"Local State"_s),
                                {{u"Profile 1"_s, QJsonObject{{u"name"_s, QString(1'000'000, u'w')}}}});
    });
    loadNow(library);
    open();
    EXPECT_LE(panel->width(), window.width());
    EXPECT_LT(panel->card().width(), panel->width());
    EXPECT_LT(sources().width(), panel->card().width());
    EXPECT_TRUE(choices()[1].endsWith(u"w… (3)")) << qPrintable(choices()[1].right(20));
}

TEST_F(ExportPanelTest, theFormatIsStoredWhenChosenAndFoundAgain)
{
    open();
    EXPECT_TRUE(format(u"html"_s).isChecked()) << "by default";
    EXPECT_FALSE(home.defaults.contains(u"export.format"_s));
    QTest::mouseClick(&format(u"markdown"_s), Qt::LeftButton, {},
                      QPoint(8, format(u"markdown"_s).height() / 2));
    EXPECT_EQ(home.defaults.string(u"export.format"_s), u"markdown"_s);
    delete panel;
    open();
    EXPECT_TRUE(format(u"markdown"_s).isChecked());
}

TEST_F(ExportPanelTest, aStoredFormatThatIsNoneIsHtml)
{
    home.defaults.setString(u"export.format"_s, u"pdf"_s);
    open();
    EXPECT_TRUE(format(u"html"_s).isChecked());
    delete panel;
    home.defaults.setBoolean(u"export.format"_s, true);
    open();
    EXPECT_TRUE(format(u"html"_s).isChecked());
}

TEST_F(ExportPanelTest, aClickAnywhereInItsRowChoosesAFormat)
{
    open();
    ChoiceRow &row = format(u"csv"_s);
    QTest::mouseClick(&row, Qt::LeftButton, {}, QPoint(row.width() - 2, row.height() - 2));
    EXPECT_TRUE(format(u"csv"_s).isChecked());
    EXPECT_EQ(home.defaults.string(u"export.format"_s), u"csv"_s);
}

TEST_F(ExportPanelTest, isDrivenByTheKeyboardAlone)
{
    open();
    QTest::keyClick(panel.data(), Qt::Key_Tab);
    ASSERT_TRUE(sources().hasFocus());
    QTest::keyClick(&sources(), Qt::Key_Down);
    EXPECT_EQ(sources().currentText(), u"Chrome - Personal (1)"_s);
    QTest::keyClick(panel.data(), Qt::Key_Tab);
    ASSERT_TRUE(format(u"html"_s).hasFocus());
    QTest::keyClick(&format(u"html"_s), Qt::Key_Down);
    EXPECT_TRUE(format(u"markdown"_s).isChecked());
    QTest::keyClick(panel.data(), Qt::Key_Tab);
    EXPECT_TRUE(cancelButton().hasFocus());
    QTest::keyClick(&cancelButton(), Qt::Key_Return);
    ASSERT_EQ(savePanel.requests.size(), 1) << "Return exports";
    EXPECT_EQ(savePanel.requests.first().extension, u"md"_s);
    QTest::keyClick(panel.data(), Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(ExportPanelTest, itIsNoWindowOfItsOwnAndLiesOverTheWholeWindow)
{
    open();
    EXPECT_FALSE(panel->isWindow());
    EXPECT_EQ(panel->geometry(), window.rect());
    window.resize(700, 500);
    EXPECT_EQ(panel->geometry(), window.rect());
    EXPECT_EQ(panel->card().geometry().center().x(), panel->rect().center().x());
    EXPECT_EQ(window.childAt(5, 5), panel) << "nothing below is clicked";
}

TEST_F(ExportPanelTest, theKeyboardStaysInTheSheetAndComesBackWhereItWas)
{
    window.show();
    below->setFocus();
    open();
    QWidgetList visited;
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited.append(QApplication::focusWidget());
    }
    const QWidgetList once{&sources(), &format(u"html"_s), &cancelButton(), &exportButton()};
    EXPECT_EQ(visited, once + once);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(cancelButton().hasFocus());
    below->setFocus();
    EXPECT_TRUE(panel->isAncestorOf(QApplication::focusWidget())) << "the window below has to wait";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(below->hasFocus());
}

TEST_F(ExportPanelTest, noCommandOfTheWindowIsGivenWhileItIsOpen)
{
    const QShortcut shortcut(QKeySequence(u"Ctrl+Q"_s), &window);
    const QSignalSpy given(&shortcut, &QShortcut::activated);
    open();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(given.count(), 0);
    QTest::keyClick(panel.data(), Qt::Key_Escape);
    below->setFocus();
    QTest::keyClick(below, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(given.count(), 1);
}

TEST_F(ExportPanelTest, everyControlSaysWhatItIs)
{
    open();
    for (const QWidget *control : panel->findChildren<QWidget *>()) {
        if (control->focusPolicy() == Qt::NoFocus || control->parentWidget() == &sources() ||
            !control->isVisible())
            continue;
        EXPECT_FALSE(control->objectName().isEmpty());
        EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
    }
    EXPECT_EQ(format(u"csv"_s).accessibleDescription(), u"One row per bookmark, for Numbers or Excel."_s);
}

TEST_F(ExportPanelTest, suggestsANameAnExtensionAndAType)
{
    open({work});
    exportNow();
    ASSERT_EQ(savePanel.requests.size(), 1);
    EXPECT_EQ(savePanel.requests.first().name, u"Chrome Work Bookmarks"_s);
    EXPECT_EQ(savePanel.requests.first().extension, u"html"_s);
    EXPECT_EQ(savePanel.requests.first().type, u"text/html"_s);
    sources().setCurrentIndex(0);
    format(u"csv"_s).click();
    exportNow();
    EXPECT_EQ(savePanel.requests.last().name, u"Bookmarks"_s);
    EXPECT_EQ(savePanel.requests.last().type, u"text/csv"_s);
    EXPECT_EQ(activation.timesInFront, 2);
}

TEST_F(ExportPanelTest, aFileIsNamedAfterTheBrowserAndNotAfterItsInstallation)
{
    addChromeBeta();
    addFirefox(snapFirefox);
    loadNow(library);
    open({u"chrome@beta/Default"_s});
    EXPECT_EQ(choices(),
              (QStringList{u"All Browsers (6)"_s, u"Chrome - Personal (1)"_s, u"Chrome - Work (3)"_s,
                           u"Chrome Beta - Trial (1)"_s, u"Firefox - default (1)"_s}));
    EXPECT_EQ(sources().currentText(), u"Chrome Beta - Trial (1)");
    exportNow();
    ASSERT_EQ(savePanel.requests.size(), 1);
    EXPECT_EQ(savePanel.requests.last().name, u"Chrome Trial Bookmarks");
    sources().setCurrentIndex(4);
    format(u"csv"_s).click();
    savePanel.chosenPath = path(u"file.csv"_s);
    exportNow();
    EXPECT_EQ(savePanel.requests.last().name, u"Firefox default Bookmarks");
    EXPECT_TRUE(
        content(u"file.csv"_s).contains("\r\nFirefox,default,Bookmarks Toolbar,Kept,https://kept.example/,"))
        << content(u"file.csv"_s).constData();
}

TEST_F(ExportPanelTest, cancellingTheSavePanelLeavesTheSheetOpen)
{
    open({work});
    exportNow();
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(sources().currentText(), u"Chrome - Work (3)"_s);
    EXPECT_TRUE(alert.problems.isEmpty());
}

TEST_F(ExportPanelTest, writesWhatTheFormatMakesOfTheSourceAndCloses)
{
    for (const BookmarkExport::Format each : BookmarkExport::formats) {
        const QString name = BookmarkExport::rawValue(each);
        open({work});
        format(name).click();
        savePanel.chosenPath = path(name);
        exportNow();
        ASSERT_TRUE(waitUntil([this] { return panel == nullptr; })) << "the sheet closes";
        const QList<Bookmark> all = library.snapshot().bookmarks;
        EXPECT_EQ(content(name),
                  BookmarkExport::render(each, library.bookmarkTree(work), all.sliced(1)).toUtf8());
    }
    EXPECT_EQ(content(u"csv"_s).count('\n'), 4);
    EXPECT_TRUE(alert.problems.isEmpty());
}

TEST_F(ExportPanelTest, allBrowsersAreOneFile)
{
    open();
    savePanel.chosenPath = path(u"all"_s);
    exportNow();
    EXPECT_EQ(content(u"all"_s),
              BookmarkExport::render(BookmarkExport::Format::Html, library.bookmarkTree({}), {}).toUtf8());
}

TEST_F(ExportPanelTest, exportsWhatWasThereWhenTheButtonWasPressed)
{
    open({work});
    format(u"csv"_s).click();
    savePanel.chosenPath = path(u"file"_s);
    savePanel.beforeAnswer = [this] {
        setBookmarks(9);
        loadNow(library);
    };
    exportNow();
    EXPECT_EQ(content(u"file"_s).count('\n'), 4);
}

TEST_F(ExportPanelTest, waitsVisiblyWhileItWrites)
{
    open();
    const QSize size = panel->card().size();
    savePanel.chosenPath = path(u"file"_s);
    QTest::mouseClick(&exportButton(), Qt::LeftButton);
    ASSERT_NE(panel, nullptr) << "the file is written elsewhere";
    EXPECT_TRUE(panel->findChild<QProgressBar *>()->isVisible());
    EXPECT_EQ(panel->card().size(), size);
    for (const QWidget *control :
         {static_cast<QWidget *>(&sources()), static_cast<QWidget *>(&format(u"html"_s)),
          static_cast<QWidget *>(&cancelButton()), static_cast<QWidget *>(&exportButton())})
        EXPECT_FALSE(control->isEnabled()) << qPrintable(control->objectName());
    QTest::keyClick(&window, Qt::Key_Escape);
    QTest::keyClick(panel.data(), Qt::Key_Escape);
    EXPECT_TRUE(panel->isVisible()) << "the user is told how it ends";
    EXPECT_TRUE(panel->hasFocus()) << "the window below has to wait";
    window.windowHandle()->close();
    EXPECT_TRUE(window.isVisible()) << "by its frame it cannot be closed, either";
    ASSERT_TRUE(waitUntil([this] { return panel == nullptr; }));
    EXPECT_EQ(savedNames(), QStringList{u"file"_s});
}

TEST_F(ExportPanelTest, aSheetThatGoesWhileItWritesLeavesAWholeFile)
{
    open();
    savePanel.chosenPath = path(u"file"_s);
    QTest::mouseClick(&exportButton(), Qt::LeftButton);
    delete panel;
    EXPECT_EQ(content(u"file"_s),
              BookmarkExport::render(BookmarkExport::Format::Html, library.bookmarkTree({}), {}).toUtf8());
    EXPECT_TRUE(alert.problems.isEmpty());
}

TEST_F(ExportPanelTest, aFolderThatIsGoneIsToldOnceAndTheSheetStays)
{
    open({work});
    savePanel.chosenPath = path(u"missing/file"_s);
    exportNow();
    expectFailure();
    EXPECT_EQ(sources().currentText(), u"Chrome - Work (3)"_s);
    savePanel.chosenPath = path(u"file"_s);
    exportNow();
    ASSERT_TRUE(waitUntil([this] { return panel == nullptr; })) << "the next try works";
}

TEST_F(ExportPanelTest, withoutPermissionTheOldFileStaysAndSoDoesTheSheet)
{
    sample::writeFile(path(u"closed/file"_s), "old");
    QFile::setPermissions(path(u"closed"_s),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    open();
    savePanel.chosenPath = path(u"closed/file"_s);
    {
        const WithoutPrivileges guard;
        if (!guard.arePermissionsChecked())
            GTEST_SKIP() << "root may write everywhere";
        exportNow();
    }
    expectFailure();
    EXPECT_EQ(content(u"closed/file"_s), "old");
}

TEST_F(ExportPanelTest, aReadOnlyFileIsNotReplaced)
{
    sample::writeFile(path(u"file"_s), "old");
    QFile::setPermissions(path(u"file"_s), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    open();
    savePanel.chosenPath = path(u"file"_s);
    // The system is asked whether the file may be written to, and answers for the user who started the
    // process.
    constexpr uid_t nobody = 65534;
    const uid_t user = getuid();
    const bool isRoot = user == 0;
    if (isRoot && setresuid(nobody, nobody, 0) != 0)
        GTEST_SKIP() << "root may write everywhere";
    exportNow();
    if (isRoot && setresuid(0, 0, 0) != 0)
        FAIL() << "root has not come back";
    expectFailure();
    EXPECT_EQ(content(u"file"_s), "old");
    EXPECT_EQ(savedNames(), QStringList{u"file"_s});
}

TEST_F(ExportPanelTest, onAFullDiskTheOldFileStaysAndSoDoesTheSheet)
{
    setBookmarks(2000);
    loadNow(library);
    sample::writeFile(path(u"file"_s), "old");
    open();
    savePanel.chosenPath = path(u"file"_s);
    {
        const FileSizeLimit limit(64 << 10);
        exportNow();
    }
    expectFailure();
    EXPECT_EQ(content(u"file"_s), "old");
    EXPECT_EQ(savedNames(), QStringList{u"file"_s});
}

TEST_F(ExportPanelTest, foldersThatAreTooDeepAreToldAndNoFileIsMade)
{
    change([this] { sample::writeDeepBookmarks(chromeFile(u"Profile 1/Bookmarks"_s), 10'000); });
    loadNow(library);
    for (const QString &name : {u"html"_s, u"markdown"_s}) {
        open({work});
        format(name).click();
        savePanel.chosenPath = path(name);
        alert.problems.clear();
        alert.subjects.clear();
        exportNow();
        expectFailure();
        EXPECT_EQ(alert.problems, QStringList{u"The folders are nested too deeply for this format."_s});
        delete panel;
    }
    EXPECT_EQ(savedNames(), QStringList());
    open({work});
    format(u"csv"_s).click();
    savePanel.chosenPath = path(u"csv"_s);
    exportNow();
    EXPECT_EQ(savedNames(), QStringList{u"csv"_s}) << "a list has no depth";
}

} // namespace
} // namespace roamlet::testing
