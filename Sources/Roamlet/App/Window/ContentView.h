// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/ExportAction.h"
#include "App/Tables/HistoryTable.h"
#include "App/Window/EmptyListPage.h"
#include "App/Window/Pane.h"
#include "App/Window/PaneText.h"
#include "App/Window/WindowServices.h"
#include "Lists/Grouping.h"
#include "Platform/BackgroundTasks.h"

#include <QMap>
#include <QSplitter>

#include <memory>
#include <optional>

class QPushButton;
class QVBoxLayout;

namespace roamlet
{

class BookmarkTable;
class BookmarkTree;
class DetailHeader;
class EmptyState;
class FullDiskAccessBanner;
class ListStack;
class LoadingRows;
class Sidebar;
class SidebarPlace;
struct RefusedFile;
class SiteFilterBar;

/// The content of the main window: the sidebar, and the list that is chosen there with what belongs to it.
/// Only view state is kept here; everything else is read from the library.
class ContentView final : public QSplitter
{
    Q_OBJECT

public:
    explicit ContentView(const WindowServices &services, QWidget *parent = nullptr);
    ContentView(const ContentView &) = delete;
    ContentView &operator=(const ContentView &) = delete;
    /// What was searched for is searched no more.
    ~ContentView() override;

    const std::optional<Pane> &pane() const { return m_pane; }
    void setPane(const std::optional<Pane> &pane);
    /// Narrows the list to one site, or shows all again.
    void setSite(const std::optional<QString> &site);
    /// Reloads everything and shows that it is under way.
    void reload();
    bool isSidebarShown() const;
    /// Shows it or hides it, as the user wants.
    void setSidebarShown(bool isShown);
    /// Makes the sidebar wider by so many pixels, or narrower.
    void widenSidebar(int pixels);
    /// To the search field, with its text selected.
    void startSearch();
    /// Searches the whole history for these words; where there are none, they are still to be typed.
    void search(const QString &words);
    /// What the menu's export begins with; nothing while there is no bookmark.
    std::optional<ExportAction> exportAction();
    QMenu *groupingMenu() const;
    /// The menu behind the last button of the header; whoever knows the commands fills it.
    QMenu *mainMenu() const;
    /// Returns when the menu is closed.
    void openMainMenu();
    /// The list's name, as it stands in the title.
    QString title() const;

Q_SIGNALS:
    /// The chosen list has come.
    void listShown();
    void titleChanged(const QString &title);
    void sidebarShownChanged();
    /// exportAction() may have become another one.
    void exportActionChanged();
    /// The sheet shall be shown.
    void exportRequested(const roamlet::ExportRequest &request);

protected:
    QSplitterHandle *createHandle() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeDetail();
    // What can stand below the header is made when it is looked at first.
    void showAccessBanner();
    /// What lies behind a refusal where the files' permissions do.
    std::optional<RefusedFile> refusedFile() const;
    void showSiteBar(const QString &site);
    /// Puts a strip right below another part, also for the Tab key, which comes to it from `focusedBefore`.
    void insert(QWidget *strip, const QWidget *above, QWidget *focusedBefore);
    EmptyState *nothingSelected();
    EmptyState *noBrowsers();
    /// Says that a browser keeps the bookmarks of this source to itself, and offers its bookmark manager.
    EmptyState *encryptedBookmarks(const Source &source);
    /// The source whose bookmarks the pane would show if its browser did not keep them encrypted.
    std::optional<Source> encryptedSource() const;
    HistoryTable *historyTable(HistoryTable *&table, HistoryTable::Mode mode);
    template<typename Table>
    Table *bookmarkTable(Table *&table);
    void addTable(LinkTable *table);
    /// Brings everything in line with the state.
    void update();
    void updateTitle();
    /// Tells of work that has gone on for so long that somebody may wonder.
    void updateWork();
    void updateBanners();
    void updateExport();
    /// Gives the shown table its inputs, and shows it.
    void updateList();
    /// Covers a list without rows with why there are none, once that is known.
    void updateCover();
    EmptyListPage::Reason whyEmpty(const LinkTable &table) const;
    EmptyListPage *emptyListPage();
    /// Brings the keyboard to the list, or to what helps where it is empty.
    void focusList();
    QWidget *shownList();
    void setGrouping(Grouping grouping);

    WindowServices m_services;
    std::optional<Pane> m_pane = HistoryPane();
    PaneText::ListState m_list;
    /// What the subtitle is about: until a search has ended, the rows are still those from before.
    PaneText::ListState m_shownList;
    std::optional<Pane> m_subtitlePane = m_pane;
    std::optional<Pane> m_coverPane = m_pane;
    QMap<GroupedList, Grouping> m_groupings;
    /// Lives as long as the work goes on.
    std::unique_ptr<QObject> m_workWait;
    BackgroundTasks m_tasks;

    Sidebar *m_sidebar;
    SidebarPlace *m_sidebarPlace;
    DetailHeader *m_header;
    QVBoxLayout *m_column = nullptr;
    FullDiskAccessBanner *m_accessBanner = nullptr;
    SiteFilterBar *m_siteBar = nullptr;
    ListStack *m_lists;
    EmptyListPage *m_emptyList = nullptr;
    LoadingRows *m_loading = nullptr;
    EmptyState *m_nothingSelected = nullptr;
    EmptyState *m_noBrowsers = nullptr;
    EmptyState *m_encrypted = nullptr;
    QPushButton *m_editEncrypted = nullptr;
    HistoryTable *m_history = nullptr;
    HistoryTable *m_mostVisited = nullptr;
    BookmarkTable *m_bookmarks = nullptr;
    BookmarkTree *m_tree = nullptr;
};

} // namespace roamlet
