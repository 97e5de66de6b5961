// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/AppDelegate.h"
#include "App/DesktopFakes.h"
#include "App/Export/ExportPanel.h"
#include "App/Export/FileSavePanel.h"
#include "App/Export/MessageAlert.h"
#include "App/Look/ChoiceRow.h"
#include "App/Look/ElidedLabel.h"
#include "App/Look/Motion.h"
#include "App/Settings/SettingsServices.h"
#include "App/Settings/SettingsWindow.h"
#include "App/Tables/LinkTable.h"
#include "App/Updates/UpdateWindows.h"
#include "App/Window/ContentView.h"
#include "App/Window/DetailHeader.h"
#include "Model/Browser.h"
#include "Platform/Update.h"
#include "SampleHome/ChromiumFiles.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTabBar>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QTranslator>
#include <QTreeView>

#include <algorithm>
#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A language in which each text has strange letters, is two fifths longer, and stands in brackets.
class MadeUpLanguage final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                      int /*number*/) const override
    {
        // The names of keys, and how the language is read.
        if (qstrcmp(context, "QShortcut") == 0 || qstrcmp(context, "QGuiApplication") == 0)
            return {};
        return made(QString::fromUtf8(source));
    }

private:
    static QString made(const QString &source)
    {
        static const QHash<QChar, QChar> strange{{u'a', u'á'}, {u'e', u'é'}, {u'i', u'í'}, {u'o', u'ö'},
                                                 {u'u', u'ů'}, {u't', u'ť'}, {u's', u'š'}, {u'n', u'ň'}};
        QString result;
        bool isMarkup = false;
        for (const QChar letter : source) {
            isMarkup = (isMarkup || letter == u'<') && letter != u'>';
            result += isMarkup ? letter : strange.value(letter, letter);
        }
        // In words, between which a line may end.
        QString filling;
        for (qsizetype i = 0; i < (source.size() * 2 + 4) / 5; ++i)
            filling += i % 8 == 7 ? u' ' : u'~';
        return u'[' % result % filling % u"~]";
    }
};

/// What is left of a text without all that was translated.
QString untranslated(QString text)
{
    if (Qt::mightBeRichText(text))
        text = QTextDocumentFragment::fromHtml(text).toPlainText();
    static const QRegularExpression translated(u"\\[[^\\[\\]]*~\\s*\\]"_s);
    while (text.contains(translated))
        text.remove(translated);
    return text;
}

/// Whether the words are what browsers, users and calendars call their things.
bool isData(QString text)
{
    // Addresses, paths and names of files.
    static const QRegularExpression places(u"\\S*[/.@]\\S*"_s);
    static const QRegularExpression others(u"[^\\p{L}]+"_s);
    static const QSet<QString> known = [] {
        QSet<QString> result{
            u"Roamlet"_s, u"Personal"_s,  u"Work"_s,  u"Office"_s, u"default"_s, u"Bar"_s,       u"Mark"_s,
            u"mark"_s,    u"Kept"_s,      u"Fox"_s,   u"a"_s,      u"b"_s,       u"e"_s,         u"s"_s,
            u"zzz"_s,     u"Snapshot"_s,  u"Why"_s,   u"MB"_s,     u"kB"_s,      u"bytes"_s,     u"AM"_s,
            u"PM"_s,      u"am"_s,        u"pm"_s,    u"Safari"_s, u"Ctrl"_s,    u"Bookmarks"_s, u"x"_s,
            u"word"_s,    u"Favorites"_s, u"notes"_s, u"M"_s};
        for (const Browser &browser : Browser::all())
            result.insert(browser.displayName);
        const QLocale english(QLocale::English, QLocale::UnitedStates);
        for (const QLocale::FormatType type : {QLocale::LongFormat, QLocale::ShortFormat}) {
            for (int month = 1; month <= 12; ++month)
                result.insert(english.monthName(month, type));
            for (int day = 1; day <= 7; ++day)
                result.insert(english.dayName(day, type));
        }
        return result;
    }();
    text.remove(places);
    const QStringList words = text.split(others, Qt::SkipEmptyParts);
    return std::ranges::all_of(words, [](const QString &word) { return known.contains(word); });
}

} // namespace

/// The whole program in a language that nobody speaks.
class MadeUpLanguageTest : public LibraryHome, protected DesktopFakes
{
protected:
    void SetUp() override
    {
        QCoreApplication::installTranslator(&language);
        // What still moves has no size of its own.
        setMotionAllowed(false);
        desktopSettings = [] { return DesktopSettings{.allowsMotion = false}; };
    }
    void TearDown() override
    {
        setMotionAllowed(true);
        app.reset();
        started.reset();
        QCoreApplication::removeTranslator(&language);
        LibraryHome::TearDown();
    }

    void start()
    {
        app = std::make_unique<RoamletApp>(services(home.platform()));
        app->start(false);
    }
    void eventually(const std::function<bool()> &condition)
    {
        ASSERT_TRUE(waitUntil([&] {
            home.clock.advance(std::chrono::milliseconds(500));
            return condition();
        }));
    }
    void load()
    {
        eventually([this] { return app->library().lastLoaded().has_value() && !app->library().isLoading(); });
        settle();
    }
    /// Lists are finished, layouts done.
    void settle()
    {
        eventually([this] {
            if (app == nullptr || app->mainWindow() == nullptr)
                return true;
            const QList<LinkTable *> tables = app->mainWindow()->findChildren<LinkTable *>();
            return std::ranges::none_of(
                tables, [](const LinkTable *table) { return table->isVisible() && table->isAwaited(); });
        });
        QCoreApplication::processEvents();
    }
    ContentView &content() { return *app->mainWindow()->content(); }
    void setGrouping(Grouping grouping)
    {
        Q_EMIT content().findChild<DetailHeader *>()->groupingChosen(grouping);
    }

    /// Looks at everything that is on the screen.
    void look(const QString &what)
    {
        SCOPED_TRACE(what.toStdString());
        settle();
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (!window->isVisible())
                continue;
            // The toolkit's own, in which half of the texts are names of files.
            if (qobject_cast<const QFileDialog *>(window) != nullptr)
                continue;
            lookAt(*window);
            for (const QWidget *widget : window->findChildren<QWidget *>()) {
                if (widget->isVisible() && widget->window() == window)
                    lookAt(*widget);
            }
        }
    }

    void lookAt(const QWidget &widget)
    {
        SCOPED_TRACE(widget.metaObject()->className() + (" " + widget.objectName().toStdString()));
        read(widget.accessibleName());
        read(widget.accessibleDescription());
        read(widget.toolTip());
        if (widget.isWindow())
            read(widget.windowTitle());
        for (const QAction *action : widget.actions())
            lookAt(*action);
        if (const auto *label = qobject_cast<const QLabel *>(&widget))
            lookAt(*label);
        else if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
            lookAt(*button);
        else if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
            lookAt(*field);
        else if (const auto *box = qobject_cast<const QComboBox *>(&widget))
            lookAt(*box);
        else if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
            lookAt(*tabs);
        else if (const auto *header = qobject_cast<const QHeaderView *>(&widget))
            lookAt(*header);
        else if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget))
            lookAt(*view->model(), {});
        if (widget.isWindow() && widget.layout() != nullptr) {
            EXPECT_TRUE(fits(widget.minimumSizeHint(), widget.size())) << "the window is too small";
        }
    }
    void lookAt(const QAction &action)
    {
        read(action.text());
        read(action.toolTip());
        if (action.menu() == nullptr)
            return;
        read(action.menu()->title());
        for (const QAction *inner : action.menu()->actions())
            lookAt(*inner);
    }
    void lookAt(const QLabel &label)
    {
        if (const auto *elided = qobject_cast<const ElidedLabel *>(&label)) {
            read(elided->text());
            return;
        }
        read(label.text());
        if (label.text().isEmpty() || isScrolled(label))
            return;
        if (label.wordWrap()) {
            EXPECT_LE(label.heightForWidth(label.width()), label.height()) << qPrintable(label.text());
        } else {
            EXPECT_LE(label.sizeHint().width(), label.width()) << qPrintable(label.text());
        }
        expectWhole(label);
    }
    void lookAt(const QAbstractButton &button)
    {
        read(button.text());
        if (const auto *choice = qobject_cast<const ChoiceRow *>(&button)) {
            read(choice->note());
            EXPECT_LE(choice->heightForWidth(choice->width()), choice->height())
                << qPrintable(choice->note());
        } else if (!isScrolled(button) && !isSign(button)) {
            EXPECT_TRUE(fits(button.sizeHint(), button.size())) << qPrintable(button.text());
        }
        if (!isScrolled(button))
            expectWhole(button);
    }
    void lookAt(const QLineEdit &field)
    {
        read(field.placeholderText());
        const QMargins margins = field.textMargins();
        const int room = field.width() - margins.left() - margins.right();
        EXPECT_LE(field.fontMetrics().horizontalAdvance(field.placeholderText()), room);
    }
    void lookAt(const QComboBox &box)
    {
        read(box.placeholderText());
        for (int i = 0; i < box.count(); ++i)
            read(box.itemText(i));
    }
    void lookAt(const QTabBar &tabs)
    {
        for (int i = 0; i < tabs.count(); ++i) {
            read(tabs.tabText(i));
            EXPECT_LT(tabs.fontMetrics().horizontalAdvance(tabs.tabText(i)), tabs.tabRect(i).width());
            EXPECT_TRUE(tabs.rect().contains(tabs.tabRect(i))) << qPrintable(tabs.tabText(i));
        }
    }
    void lookAt(const QHeaderView &header)
    {
        for (int section = 0; section < header.count(); ++section) {
            const QString title = header.model()->headerData(section, Qt::Horizontal).toString();
            read(title);
            if (header.isSectionHidden(section))
                continue;
            EXPECT_LT(header.fontMetrics().horizontalAdvance(title), header.sectionSize(section))
                << qPrintable(title);
        }
    }
    void lookAt(const QAbstractItemModel &model, const QModelIndex &parent)
    {
        for (int row = 0; row < std::min(model.rowCount(parent), 100); ++row) {
            for (int column = 0; column < model.columnCount(parent); ++column) {
                const QModelIndex index = model.index(row, column, parent);
                for (const int role : {static_cast<int>(Qt::DisplayRole), static_cast<int>(Qt::ToolTipRole),
                                       static_cast<int>(Qt::AccessibleTextRole),
                                       static_cast<int>(Qt::AccessibleDescriptionRole)})
                    read(index.data(role).toString());
            }
            lookAt(model, model.index(row, 0, parent));
        }
    }

    static bool fits(const QSize &wanted, const QSize &given)
    {
        return wanted.width() <= given.width() && wanted.height() <= given.height();
    }
    /// What lies in something that scrolls need not be seen whole.
    static bool isScrolled(const QWidget &widget)
    {
        for (const QWidget *above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
            if (qobject_cast<const QAbstractScrollArea *>(above) != nullptr)
                return true;
        }
        return false;
    }
    /// Whether its text is only heard.
    static bool isSign(const QAbstractButton &button)
    {
        return button.text().isEmpty() || qobject_cast<const QLineEdit *>(button.parentWidget()) != nullptr;
    }
    /// Nothing around it cuts it.
    static void expectWhole(const QWidget &widget)
    {
        const QWidget &window = *widget.window();
        const QRect place(widget.mapTo(&window, QPoint()), widget.size());
        EXPECT_TRUE(window.rect().contains(place));
        EXPECT_TRUE(widget.parentWidget() == nullptr ||
                    widget.parentWidget()->rect().contains(widget.geometry()));
    }
    void read(const QString &text)
    {
        const QString rest = untranslated(text);
        EXPECT_TRUE(isData(rest)) << "not translated: " << qPrintable(rest) << " in: " << qPrintable(text);
        m_hasTranslated = m_hasTranslated || rest != text;
    }

    /// Looks at a menu of the shown table.
    void lookAtMenu(const QString &name, const std::function<void(QTreeView &view)> &open)
    {
        for (QTreeView *view : app->mainWindow()->findChildren<QTreeView *>()) {
            if (!view->isVisible() || view->objectName() == u"sidebar")
                continue;
            open(*view);
            QMenu *menu = app->mainWindow()->findChild<QMenu *>(name);
            ASSERT_NE(menu, nullptr) << qPrintable(name);
            look(name);
            menu->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return;
        }
        FAIL() << "no table is shown";
    }
    /// The first link below `parent`.
    static QModelIndex firstLink(const QAbstractItemModel &model, const QModelIndex &parent = {})
    {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            if (index.flags().testFlag(Qt::ItemNeverHasChildren))
                return index;
            if (const QModelIndex inside = firstLink(model, index); inside.isValid())
                return inside;
        }
        return {};
    }
    /// The key for menus, at a link that is selected alone or with all others.
    static void pressMenuKey(QTreeView &view, bool onAll)
    {
        view.expandAll();
        view.setCurrentIndex(firstLink(*view.model()));
        if (onAll)
            view.selectAll();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(view.viewport(), &event);
    }
    static UpdateWindows makeUpdateWindows()
    {
        return UpdateWindows(u"1.0"_s, [](const QString & /*url*/) {});
    }

    MadeUpLanguage language;
    std::unique_ptr<RoamletApp> app;
    bool m_hasTranslated = false;
};

TEST_F(MadeUpLanguageTest, eachListSpeaksItWhole)
{
    addChromium();
    addSafari();
    addFirefox();
    workspace.icons = {{u"chrome"_s, Qt::red}, {u"edge"_s, Qt::blue}};
    workspace.missing = Source::Kind::Safari;
    start();
    look(u"what is shown while nothing was read"_s);
    EXPECT_TRUE(m_hasTranslated);
    load();
    const QList<Pane> panes{HistoryPane(),
                            MostVisitedPane(),
                            BookmarksPane(),
                            HistoryPane{u"chrome/Default"_s},
                            BookmarksPane{u"chrome/Default"_s},
                            BookmarksPane{u"firefox/abc.default"_s},
                            BookmarksPane{u"safari"_s}};
    for (const Pane &pane : panes) {
        content().setPane(pane);
        for (const Grouping grouping : groupingChoices(PaneText::groupedList(pane))) {
            setGrouping(grouping);
            look(u"a list by "_s % rawValue(grouping));
            for (const bool onAll : {false, true})
                lookAtMenu(u"linkMenu"_s, [onAll](QTreeView &view) { pressMenuKey(view, onAll); });
            lookAtMenu(u"columnMenu"_s, [](QTreeView &view) {
                view.header()->setFocus();
                QTest::keyClick(view.header(), Qt::Key_Space);
            });
        }
        setGrouping(Grouping::None);
    }
    content().setPane(HistoryPane{u"safari"_s});
    settle();
    lookAtMenu(u"linkMenu"_s, [](QTreeView &view) { pressMenuKey(view, false); });
    content().setPane({});
    look(u"no list"_s);
}

TEST_F(MadeUpLanguageTest, thatAListIsAPartOfMoreIsSaidInIt)
{
    addChromium();
    setChromePages(u"Profile 1"_s, 1100, u"https://word.example/"_s);
    start();
    load();
    for (const Pane &pane :
         {Pane(HistoryPane()), Pane(MostVisitedPane()), Pane(HistoryPane{u"chrome/Profile 1"_s})}) {
        content().setPane(pane);
        look(u"a part of a list"_s);
        app->mainWindow()->findChild<QLineEdit *>(u"searchField"_s)->setText(u"word"_s);
        look(u"a part of what was found"_s);
        app->mainWindow()->findChild<QLineEdit *>(u"searchField"_s)->clear();
    }
}

TEST_F(MadeUpLanguageTest, whatIsNotFoundIsSaidInIt)
{
    addChromium();
    start();
    load();
    auto *field = app->mainWindow()->findChild<QLineEdit *>(u"searchField"_s);
    for (const Pane &pane : {Pane(HistoryPane()), Pane(MostVisitedPane()), Pane(BookmarksPane())}) {
        content().setPane(pane);
        field->setText(u"zzz"_s);
        look(u"a search that finds nothing"_s);
        content().setSite(u"zzz.example"_s);
        look(u"on a site"_s);
        field->clear();
        look(u"a site that has nothing"_s);
        content().setSite({});
    }
    content().setPane(BookmarksPane{u"chrome/Profile 1"_s});
    look(u"a profile without bookmarks"_s);
    for (const Source &source : app->library().snapshot().browserProfiles)
        app->library().setEnabled(false, source);
    load();
    content().setPane(HistoryPane());
    look(u"all profiles are off"_s);
}

TEST_F(MadeUpLanguageTest, aHomeWithoutBrowsersIsTalkedAboutInIt)
{
    start();
    load();
    look(u"no browsers"_s);
    app->mainWindow()->resize(app->mainWindow()->minimumSize());
    look(u"no browsers in a small window"_s);
    app->settingsWindow().open(app->mainWindow());
    app->settingsWindow().findChild<QTabBar *>()->setCurrentIndex(1);
    look(u"settings without profiles"_s);
}

TEST_F(MadeUpLanguageTest, whatCannotBeReadIsToldInIt)
{
    addChromium();
    addSafari();
    change([this] {
        QFile::remove(chromeFile(u"Profile 1/Bookmarks"_s));
        sample::writeEncryptedBookmarks(chromeFile(u"Profile 1/EncryptedBookmarks2"_s));
        QFile history(chromeFile(u"Default/History"_s));
        ASSERT_TRUE(history.open(QIODevice::WriteOnly));
        history.write(QByteArray(5000, 'x'));
        history.close();
        QFile bookmarks(chromeFile(u"Default/Bookmarks"_s));
        ASSERT_TRUE(bookmarks.open(QIODevice::WriteOnly));
        bookmarks.write("{");
    });
    fail(safariFile(u"History.db"_s), std::errc::permission_denied);
    start();
    load();
    content().setPane(HistoryPane{u"chrome/Default"_s});
    look(u"a damaged profile"_s);
    content().setPane(BookmarksPane{u"chrome/Profile 1"_s});
    look(u"encrypted bookmarks"_s);
    content().setPane(HistoryPane{u"safari"_s});
    look(u"Safari is blocked"_s);
    EXPECT_NE(app->mainWindow()->findChild<QWidget *>(u"fullDiskAccessBanner"_s), nullptr);
    app->mainWindow()->resize(app->mainWindow()->minimumSize());
    look(u"Safari is blocked in a small window"_s);
}

TEST_F(MadeUpLanguageTest, theMenusSpeakIt)
{
    addChromium();
    start();
    load();
    MainWindow &window = *app->mainWindow();
    auto *sidebar = window.findChild<QTreeView *>(u"sidebar"_s);
    sidebar->setCurrentIndex(sidebar->model()->index(2, 0, sidebar->model()->index(0, 0)));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(sidebar->viewport(), &event);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    look(u"the sidebar's menu"_s);
    if (QWidget *menu = QApplication::activePopupWidget())
        menu->close();
    window.findChild<QAction *>(u"menuBarCommand"_s)->trigger();
    look(u"the menu bar"_s);
    for (const QString &name : {u"mainMenu"_s, u"groupingMenu"_s}) {
        auto *menu = window.findChild<QMenu *>(name);
        menu->popup(QPoint());
        look(name);
        menu->close();
    }
    window.resize(window.minimumSize());
    look(u"a small window"_s);
    window.findChild<QAction *>(u"sidebarCommand"_s)->trigger();
    look(u"a small window without its sidebar"_s);
    // This one waits for the user.
    QTimer::singleShot(0, &window, [this, &window] {
        look(u"about the program"_s);
        for (QMessageBox *box : window.findChildren<QMessageBox *>())
            box->close();
    });
    window.findChild<QAction *>(u"aboutCommand"_s)->trigger();
    app->menu().setUpdateIsWaiting(true);
    app->menu().popup(QPoint());
    look(u"the tray's menu"_s);
    app->menu().close();
}

TEST_F(MadeUpLanguageTest, theSettingsSpeakIt)
{
    addChromium();
    addSafari();
    Updater released(BundleInformation{.name = u"Roamlet"_s,
                                       .version = u"1.0"_s,
                                       .feedURL = u"https://updates.example/feed"_s,
                                       .publicKey = u"x"_s},
                     std::make_unique<FakeUpdateDriver>());
    const RoamletApp::Services fakes = services(home.platform());
    AppDelegate delegate(home.defaults, activation, fakes.hasTray);
    Opener opener(workspace);
    SettingsWindow window(
        SettingsServices{*started, home.defaults, loginService, activation, delegate, opener, &released});
    window.open(nullptr);
    look(u"the settings"_s);
    loginService.currentStatus = LoginService::Status::RequiresApproval;
    window.hide();
    window.open(nullptr);
    look(u"a login item that nobody approved"_s);
    window.findChild<QTabBar *>()->setCurrentIndex(1);
    eventually([this] { return started->lastLoaded().has_value(); });
    look(u"the profiles"_s);
}

TEST_F(MadeUpLanguageTest, theExportSpeaksIt)
{
    addChromium();
    start();
    load();
    app->mainWindow()->resize(app->mainWindow()->minimumSize());
    app->mainWindow()->findChild<QAction *>(u"exportCommand"_s)->trigger();
    look(u"the sheet"_s);
    MessageAlert().show(app->mainWindow(), u"Why"_s, u"/x/Bookmarks.html"_s);
    look(u"what could not be saved"_s);
    const QTemporaryDir folder;
    QFile existing(folder.filePath(u"x.html"_s));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    FileSavePanel panel(folder.path());
    QWidget parent;
    panel.ask(&parent, {.name = u"x"_s, .extension = u"html"_s, .type = u"text/html"_s}, [](const auto &) {});
    auto *dialog = parent.findChild<QFileDialog *>();
    ASSERT_NE(dialog, nullptr);
    read(dialog->windowTitle());
    static_cast<QDialog *>(dialog)->accept();
    ASSERT_NE(parent.findChild<QMessageBox *>(u"replaceQuestion"_s), nullptr);
    look(u"whether to replace a file"_s);
}

TEST_F(MadeUpLanguageTest, theUpdatesSpeakIt)
{
    UpdateWindows windows = makeUpdateWindows();
    const Update update{.version = u"2.0"_s,
                        .displayVersion = u"2.0"_s,
                        .notes = ReleaseNotes{ReleaseNotes::Format::Plain, u"notes"_s},
                        .size = 3'400'000,
                        .isCritical = false};
    Update critical = update;
    critical.isCritical = true;
    const auto nothing = [] {};
    windows.showChecking(nothing);
    look(u"checking"_s);
    windows.showUpToDate(nothing);
    look(u"up to date"_s);
    windows.showUpdate(update, [](UpdateWindows::Choice) {});
    look(u"an update"_s);
    windows.showUpdate(critical, [](UpdateWindows::Choice) {});
    look(u"an important update"_s);
    windows.showDownload(update, nothing);
    windows.setDownloadProgress(1'200'000, 3'400'000);
    look(u"the download"_s);
    windows.showVerifying();
    look(u"the check"_s);
    windows.showInstalling(nothing);
    look(u"the installation"_s);
    windows.showInstalled(update, nothing);
    look(u"installed"_s);
    windows.showHandedOver(update, nothing);
    look(u"handed over"_s);
    for (int code = 0; code <= static_cast<int>(UpdateError::Code::NoInstaller); ++code) {
        windows.showError({static_cast<UpdateError::Code>(code), u"Why"_s}, nothing);
        look(u"error "_s % QString::number(code));
    }
    windows.close();
}

} // namespace roamlet::testing
