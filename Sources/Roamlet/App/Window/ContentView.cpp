// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/ContentView.h"

#include "App/Tables/BookmarkTable.h"
#include "App/Tables/BookmarkTree.h"
#include "App/Tables/HistoryTable.h"
#include "App/Window/DetailHeader.h"
#include "App/Window/EmptyState.h"
#include "App/Window/FullDiskAccessBanner.h"
#include "App/Window/Sidebar.h"
#include "App/Window/SiteFilterBar.h"
#include "Library/Library.h"
#include "Platform/Folders.h"
#include "Platform/UserDefaults.h"
#include "Platform/Workspace.h"

#include <QLineEdit>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <ranges>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Where we look for browsers, for a user who has none that we know.
QString whereWeLooked(const Folders &folders)
{
    QStringList places;
    for (const QString &browser : {u"safari"_s, u"chrome"_s, u"edge"_s}) {
        for (QString place : folders.dataRootCandidates(browser)) {
            const QString home = folders.home() % u'/';
            if (place.startsWith(home))
                place.replace(0, home.size(), u"~/"_s);
            places.append(place);
        }
    }
    return u"Roamlet looks for the data of Safari, Google Chrome, Chromium and Microsoft Edge in these "
           "folders:\n\n"_s %
           places.join(u'\n');
}

} // namespace

ContentView::ContentView(const WindowServices &services, QWidget *parent)
    : QSplitter(Qt::Horizontal, parent),
      m_services(services),
      m_sidebar(new Sidebar(services.library, this)),
      m_header(new DetailHeader(this)),
      m_accessBanner(new FullDiskAccessBanner(this)),
      m_siteBar(new SiteFilterBar(this)),
      m_lists(new QStackedWidget(this)),
      m_nothingSelected(new EmptyState(u"steeringwheel"_s, u"Pick something in the sidebar"_s, this)),
      m_noBrowsers(new EmptyState(u"globe"_s, u"No browsers found"_s, this)),
      m_history(new HistoryTable(services, HistoryTable::Mode::Recent, this)),
      m_mostVisited(new HistoryTable(services, HistoryTable::Mode::MostVisited, this)),
      m_bookmarks(new BookmarkTable(services, this)),
      m_tree(new BookmarkTree(services, this))
{
    setObjectName(u"contentView"_s);
    setHandleWidth(1);
    setChildrenCollapsible(false);
    for (const GroupedList list : {GroupedList::History, GroupedList::MostVisited, GroupedList::Bookmarks}) {
        const std::optional<QString> stored = services.defaults.string(groupingSettingsKey(list));
        const auto choices = groupingChoices(list);
        const Grouping grouping = groupingFromRawValue(stored.value_or(QString())).value_or(Grouping::None);
        m_groupings.insert(list,
                           std::ranges::find(choices, grouping) != choices.end() ? grouping : Grouping::None);
    }

    m_noBrowsers->setText(whereWeLooked(services.folders));
    addWidget(m_sidebar);
    addWidget(makeDetail());
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    setSizes({Sidebar::idealWidthOfColumn, 1000});

    connect(m_sidebar, &Sidebar::paneSelected, this, [this] { setPane(m_sidebar->pane()); });
    connect(m_sidebar, &Sidebar::exportRequested, this, [this](const std::optional<QString> &sourceID) {
        Q_EMIT exportRequested({.sourceID = sourceID});
    });
    connect(m_header, &DetailHeader::searchChanged, this, [this](const QString &text) {
        m_list.search = text;
        updateList();
        updateTitle();
    });
    connect(m_header, &DetailHeader::groupingChosen, this, &ContentView::setGrouping);
    connect(m_header, &DetailHeader::reloadRequested, this, &ContentView::reload);
    connect(m_header, &DetailHeader::exportRequested, this, [this] {
        Q_EMIT exportRequested({.sourceID = PaneText::exportSourceID(m_pane, m_services.library.snapshot())});
    });
    connect(m_header, &DetailHeader::listRequested, this, [this] { shownList()->setFocus(); });
    connect(m_accessBanner, &FullDiskAccessBanner::reloadRequested, this, &ContentView::reload);
    connect(m_accessBanner, &FullDiskAccessBanner::openSettingsRequested, this, [this] {
        m_services.workspace.openSystemURL(
            u"x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"_s);
    });
    connect(m_siteBar, &SiteFilterBar::clearRequested, this, [this] { setSite({}); });
    connectTables();

    const Library *library = &services.library;
    connect(library, &Library::snapshotChanged, this, [this] {
        updateBanners();
        updateExport();
        updateList();
        updateTitle();
    });
    connect(library, &Library::lastLoadedChanged, this, [this] {
        updateList();
        updateTitle();
    });
    connect(library, &Library::isLoadingChanged, this, [this] {
        if (!m_services.library.isLoading())
            m_header->setReloading(false);
    });

    m_sidebar->select(m_pane);
    update();
}

QWidget *ContentView::makeDetail()
{
    auto *detail = new QWidget(this);
    auto *column = new QVBoxLayout(detail);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_accessBanner);
    column->addWidget(m_siteBar);
    column->addWidget(m_lists, 1);
    for (QWidget *list : {static_cast<QWidget *>(m_nothingSelected), static_cast<QWidget *>(m_noBrowsers),
                          static_cast<QWidget *>(m_history), static_cast<QWidget *>(m_mostVisited),
                          static_cast<QWidget *>(m_bookmarks), static_cast<QWidget *>(m_tree)})
        m_lists->addWidget(list);
    return detail;
}

void ContentView::connectTables()
{
    for (LinkTable *table : {static_cast<LinkTable *>(m_history), static_cast<LinkTable *>(m_mostVisited),
                             static_cast<LinkTable *>(m_bookmarks), static_cast<LinkTable *>(m_tree)}) {
        connect(table, &LinkTable::onlySiteRequested, this, [this](const QString &site) { setSite(site); });
        connect(table, &LinkTable::rowCountChanged, this, [this, table](qsizetype count) {
            if (m_lists->currentWidget() != table)
                return;
            m_list.rowCount = count;
            updateTitle();
        });
    }
    for (HistoryTable *table : {m_history, m_mostVisited}) {
        connect(table, &HistoryTable::isCappedChanged, this, [this, table](bool isCapped) {
            if (m_lists->currentWidget() != table)
                return;
            m_list.isCapped = isCapped;
            updateTitle();
        });
    }
}

void ContentView::setPane(const std::optional<Pane> &pane)
{
    if (pane == m_pane)
        return;
    m_pane = pane;
    m_sidebar->select(pane);
    update();
}

void ContentView::setSite(const std::optional<QString> &site)
{
    if (site == m_list.site)
        return;
    m_list.site = site;
    updateBanners();
    updateList();
    updateTitle();
}

void ContentView::reload()
{
    m_header->setReloading(true);
    m_services.library.load({});
}

void ContentView::widenSidebar(int pixels)
{
    const QList<int> widths = sizes();
    setSizes({widths[0] + pixels, widths[1] - pixels});
}

void ContentView::startSearch()
{
    m_header->searchField()->setFocus(Qt::ShortcutFocusReason);
    m_header->searchField()->selectAll();
}

std::optional<ExportAction> ContentView::exportAction()
{
    if (m_services.library.snapshot().bookmarks.isEmpty())
        return {};
    return ExportAction{.sourceID = PaneText::exportSourceID(m_pane, m_services.library.snapshot()),
                        .open = [this](const ExportRequest &request) { Q_EMIT exportRequested(request); }};
}

QMenu *ContentView::groupingMenu() const
{
    return m_header->groupingMenu();
}

QString ContentView::title() const
{
    return PaneText::title(m_pane, m_services.library);
}

void ContentView::update()
{
    if (m_pane) {
        const GroupedList list = PaneText::groupedList(*m_pane);
        m_header->setGroupings(list, m_groupings.value(list));
    } else {
        m_header->setGroupings({}, Grouping::None);
    }
    updateBanners();
    updateExport();
    updateList();
    updateTitle();
}

void ContentView::updateTitle()
{
    m_header->setTitle(title(), PaneText::subtitle(m_pane, m_services.library, m_list, QLocale()));
    Q_EMIT titleChanged(title());
}

void ContentView::updateBanners()
{
    m_accessBanner->setVisible(m_services.library.snapshot().safariBlocked);
    m_siteBar->setVisible(m_list.site.has_value());
    if (m_list.site)
        m_siteBar->setSite(*m_list.site, m_services.library.favicon(*m_list.site));
}

void ContentView::updateExport()
{
    const Library::Snapshot &snapshot = m_services.library.snapshot();
    m_header->setCanExport(PaneText::hasBookmarks(PaneText::exportSourceID(m_pane, snapshot), snapshot));
    Q_EMIT exportActionChanged();
}

void ContentView::updateList()
{
    QWidget *list = shownList();
    const std::optional<QString> sourceID = m_pane ? sourceIDOf(*m_pane) : std::nullopt;
    const TableInputs inputs{.sourceID = sourceID,
                             .search = m_list.search,
                             .site = m_list.site,
                             .grouping =
                                 m_pane ? m_groupings.value(PaneText::groupedList(*m_pane)) : Grouping::None};
    auto *table = qobject_cast<LinkTable *>(list);
    // Before it is shown, or else it would begin with what it showed last.
    if (table != nullptr)
        table->setInputs(inputs);
    m_list.rowCount = table != nullptr ? table->rowCount() : 0;
    const auto *history = qobject_cast<HistoryTable *>(list);
    m_list.isCapped = history != nullptr && history->isCapped();
    m_lists->setCurrentWidget(list);
}

QWidget *ContentView::shownList()
{
    if (!m_pane)
        return m_nothingSelected;
    const Library &library = m_services.library;
    if (library.lastLoaded() && library.snapshot().browserProfiles.isEmpty())
        return m_noBrowsers;
    if (std::holds_alternative<HistoryPane>(*m_pane))
        return m_history;
    if (std::holds_alternative<MostVisitedPane>(*m_pane))
        return m_mostVisited;
    const bool isTree = m_list.search.trimmed().isEmpty() && !m_list.site &&
                        m_groupings.value(GroupedList::Bookmarks) != Grouping::Site;
    return isTree ? static_cast<QWidget *>(m_tree) : m_bookmarks;
}

void ContentView::setGrouping(Grouping grouping)
{
    if (!m_pane)
        return;
    const GroupedList list = PaneText::groupedList(*m_pane);
    m_groupings.insert(list, grouping);
    m_services.defaults.setString(groupingSettingsKey(list), rawValue(grouping));
    updateList();
    updateTitle();
}

} // namespace roamlet
