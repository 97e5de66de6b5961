// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/ContentView.h"

#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Tables/BookmarkTable.h"
#include "App/Tables/BookmarkTree.h"
#include "App/Tables/LocalText.h"
#include "App/Window/BrowserPlaces.h"
#include "App/Window/DetailHeader.h"
#include "App/Window/EmptyState.h"
#include "App/Window/FullDiskAccessBanner.h"
#include "App/Window/ListStack.h"
#include "App/Window/LoadingRows.h"
#include "App/Window/RefusedFile.h"
#include "App/Window/Sidebar.h"
#include "App/Window/SidebarPlace.h"
#include "App/Window/SiteFilterBar.h"
#include "Library/Library.h"
#include "Lists/Refine.h"
#include "Platform/Clock.h"
#include "Platform/Folders.h"
#include "Platform/UserDefaults.h"
#include "Platform/Workspace.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <ranges>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Most answers are there before anybody would have read that they are on their way.
constexpr std::chrono::milliseconds workPatience{150};

/// The line between the sidebar and the list.
class Divider final : public QSplitterHandle
{
public:
    using QSplitterHandle::QSplitterHandle;

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        const RowGround &sidebar = Look::of(*this).sidebar;
        QPainter painter(this);
        painter.fillRect(rect(), sidebar.base);
        paintHairline(painter, contentsRect(),
                      layoutDirection() == Qt::RightToLeft ? Qt::LeftEdge : Qt::RightEdge, sidebar.hairline);
    }
};

} // namespace

ContentView::ContentView(const WindowServices &services, QWidget *parent)
    : QSplitter(Qt::Horizontal, parent),
      m_services(services),
      m_sidebar(new Sidebar(services, this)),
      m_sidebarPlace(new SidebarPlace(*m_sidebar, services.defaults, this)),
      m_header(new DetailHeader(this)),
      m_lists(new ListStack(this))
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

    addWidget(m_sidebarPlace);
    QWidget *detail = makeDetail();
    m_sidebarPlace->setList(detail);
    addWidget(detail);
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    setSizes({m_sidebar->sizeHint().width(), 1000});

    connect(m_sidebar, &Sidebar::paneSelected, this, [this] { setPane(m_sidebar->pane()); });
    connect(m_sidebar, &Sidebar::exportRequested, this, [this](const std::optional<QString> &sourceID) {
        Q_EMIT exportRequested({.sourceID = sourceID});
    });
    const auto followSidebar = [this] {
        m_header->setSidebarButtonShown(!m_sidebarPlace->isBeside());
        Q_EMIT sidebarShownChanged();
    };
    connect(m_sidebarPlace, &SidebarPlace::changed, this, followSidebar);
    connect(m_header, &DetailHeader::sidebarRequested, this, [this] { setSidebarShown(true); });
    followSidebar();
    connect(m_header, &DetailHeader::searchExpected, &services.library, &Library::expectSearch);
    connect(m_header, &DetailHeader::searchChanged, this, [this](const QString &text) {
        m_list.search = text;
        m_services.library.setSearching(isSearchText(text));
        updateList();
        updateTitle();
    });
    connect(m_header, &DetailHeader::groupingChosen, this, &ContentView::setGrouping);
    connect(m_header, &DetailHeader::reloadRequested, this, &ContentView::reload);
    connect(m_header, &DetailHeader::exportRequested, this, [this] {
        Q_EMIT exportRequested({.sourceID = PaneText::exportSourceID(m_pane, m_services.library.snapshot())});
    });
    connect(m_header, &DetailHeader::listRequested, this, &ContentView::focusList);
    connect(m_sidebarPlace, &SidebarPlace::listRequested, this, &ContentView::focusList);

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

    m_tasks.run(
        this,
        [locale = services.calendar().locale](const std::stop_token & /*stop*/) {
            LocalText::prepare(locale);
            return true;
        },
        [](bool) {});
    m_sidebar->select(m_pane);
    update();
}

QSplitterHandle *ContentView::createHandle()
{
    return new Divider(orientation(), this);
}

ContentView::~ContentView()
{
    m_services.library.setSearching(false);
    // The tables still tell of the work that they give up.
    delete m_lists;
}

QWidget *ContentView::makeDetail()
{
    auto *detail = new QWidget(this);
    m_column = new QVBoxLayout(detail);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    m_column->addWidget(m_header);
    m_column->addWidget(m_lists, 1);
    return detail;
}

void ContentView::showAccessBanner()
{
    if (m_accessBanner == nullptr) {
        m_accessBanner = new FullDiskAccessBanner(this);
        connect(m_accessBanner, &FullDiskAccessBanner::reloadRequested, this, &ContentView::reload);
        connect(m_accessBanner, &FullDiskAccessBanner::openSettingsRequested, this, [this] {
            const std::optional<RefusedFile> refused = refusedFile();
            m_services.workspace.openSystemURL(
                refused ? QUrl::fromLocalFile(refused->folder()).toString(QUrl::FullyEncoded)
                        : u"x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"_s);
        });
        insert(m_accessBanner, m_header, m_header->menuButton());
    }
    const std::optional<RefusedFile> refused = refusedFile();
    m_accessBanner->setDetails(refused ? refused->words() : QString());
    m_accessBanner->setOpen(true);
}

std::optional<RefusedFile> ContentView::refusedFile() const
{
    return RefusedFile::in(m_services.folders.dataFolders(Source::Kind::Safari, {}));
}

void ContentView::showSiteBar(const QString &site)
{
    if (m_siteBar == nullptr) {
        m_siteBar = new SiteFilterBar(this);
        connect(m_siteBar, &SiteFilterBar::clearRequested, this, [this] { setSite({}); });
        if (m_accessBanner != nullptr)
            insert(m_siteBar, m_accessBanner, m_accessBanner->findChildren<QPushButton *>().last());
        else
            insert(m_siteBar, m_header, m_header->menuButton());
    }
    m_siteBar->setSite(site, m_services.library.favicon(site));
    m_siteBar->setOpen(true);
}

void ContentView::insert(QWidget *strip, const QWidget *above, QWidget *focusedBefore)
{
    m_column->insertWidget(m_column->indexOf(above) + 1, strip);
    // The Tab key goes through the window from above.
    for (QPushButton *button : strip->findChildren<QPushButton *>())
        setTabOrder(std::exchange(focusedBefore, button), button);
}

EmptyState *ContentView::nothingSelected()
{
    if (m_nothingSelected == nullptr) {
        m_nothingSelected = new EmptyState(u"steeringwheel"_s, tr("Pick something in the sidebar"), this);
        m_lists->addWidget(m_nothingSelected);
    }
    return m_nothingSelected;
}

EmptyState *ContentView::noBrowsers()
{
    if (m_noBrowsers == nullptr) {
        m_noBrowsers = new EmptyState(u"globe"_s, tr("No browsers found"), this);
        m_noBrowsers->setText(BrowserPlaces::introduction());
        m_noBrowsers->setBox(new BrowserPlaces(m_services.folders));
        QPushButton *reload = m_noBrowsers->addAction(tr("Reload"), u"noBrowsersReload"_s);
        reload->setDefault(true);
        m_noBrowsers->setFocusProxy(reload);
        connect(reload, &QPushButton::clicked, this, &ContentView::reload);
        m_lists->addWidget(m_noBrowsers);
    }
    return m_noBrowsers;
}

EmptyState *ContentView::encryptedBookmarks(const Source &source)
{
    if (m_encrypted == nullptr) {
        m_encrypted = new EmptyState(u"lock.fill"_s, tr("Bookmarks are encrypted"), this);
        m_editEncrypted = m_encrypted->addAction(QString(), u"emptyStateAction"_s);
        m_encrypted->setFocusProxy(m_editEncrypted);
        connect(m_editEncrypted, &QPushButton::clicked, this, [this] {
            if (const std::optional<Source> shown = encryptedSource())
                m_services.opener.editBookmarks(*shown, {});
        });
        m_lists->addWidget(m_encrypted);
    }
    const QString browser = Source::displayName(source.kind);
    m_encrypted->setText(
        tr("%1 keeps the bookmarks of this profile encrypted, so that only %1 itself can show "
           "them.")
            .arg(browser));
    m_editEncrypted->setText(tr("Edit %1 Bookmarks").arg(browser));
    return m_encrypted;
}

std::optional<Source> ContentView::encryptedSource() const
{
    const auto *pane = m_pane ? std::get_if<BookmarksPane>(&*m_pane) : nullptr;
    if (pane == nullptr || !pane->sourceID ||
        !m_services.library.snapshot().encryptedBookmarks.contains(*pane->sourceID))
        return {};
    return m_services.library.source(pane->sourceID);
}

HistoryTable *ContentView::historyTable(HistoryTable *&table, HistoryTable::Mode mode)
{
    if (table == nullptr) {
        table = new HistoryTable(m_services, mode, this);
        connect(table, &HistoryTable::isCappedChanged, this, [this, table](bool isCapped) {
            if (m_lists->currentWidget() != table)
                return;
            m_list.isCapped = isCapped;
            updateTitle();
        });
        addTable(table);
    }
    return table;
}

template<typename Table>
Table *ContentView::bookmarkTable(Table *&table)
{
    if (table == nullptr) {
        table = new Table(m_services, this);
        addTable(table);
    }
    return table;
}

void ContentView::addTable(LinkTable *table)
{
    connect(table, &LinkTable::isWorkingChanged, this, &ContentView::updateWork);
    connect(table, &LinkTable::onlySiteRequested, this, [this](const QString &site) { setSite(site); });
    connect(table, &LinkTable::searchRequested, this, [this](const QString &typed) {
        startSearch();
        // In the place of what was searched for before, to which an undo leads back.
        m_header->searchField()->insert(typed);
    });
    connect(table, &LinkTable::rowCountChanged, this, [this, table](qsizetype count) {
        if (m_lists->currentWidget() != table)
            return;
        m_list.rowCount = count;
        updateCover();
        updateTitle();
        Q_EMIT listShown();
    });
    m_lists->addWidget(table);
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

bool ContentView::isSidebarShown() const
{
    return m_sidebarPlace->isShown();
}

void ContentView::setSidebarShown(bool isShown)
{
    m_sidebarPlace->setShown(isShown);
}

void ContentView::resizeEvent(QResizeEvent *event)
{
    QSplitter::resizeEvent(event);
    m_sidebarPlace->setRoom(width() - handleWidth());
}

void ContentView::widenSidebar(int pixels)
{
    if (!m_sidebarPlace->isBeside())
        return;
    const QList<int> widths = sizes();
    setSizes({widths[0] + pixels, widths[1] - pixels});
}

void ContentView::startSearch()
{
    m_header->searchField()->setFocus(Qt::ShortcutFocusReason);
    m_header->searchField()->selectAll();
}

void ContentView::search(const QString &words)
{
    setPane(HistoryPane());
    setSite({});
    startSearch();
    // In the place of what was searched for before, to which an undo leads back.
    if (!words.isEmpty())
        m_header->searchField()->insert(words);
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

void ContentView::focusList()
{
    const bool isEmpty = m_emptyList != nullptr && m_lists->cover() == m_emptyList;
    QWidget *target = isEmpty ? m_emptyList : shownList();
    // A page without a button leaves the keyboard nothing to do.
    if (target->focusProxy() == nullptr)
        target = m_header->searchField();
    target->setFocus();
}

void ContentView::openMainMenu()
{
    m_header->menuButton()->showMenu();
}

QMenu *ContentView::mainMenu() const
{
    return m_header->mainMenu();
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
    const auto *table = qobject_cast<LinkTable *>(m_lists->currentWidget());
    if (table == nullptr || !table->isAwaited() || m_subtitlePane != m_pane) {
        m_subtitlePane = m_pane;
        m_shownList = m_list;
    }
    const bool isProblem = PaneText::problem(m_pane, m_services.library).has_value();
    m_header->setTitle(title(), PaneText::subtitle(m_pane, m_services.library, m_shownList, QLocale()),
                       isProblem ? DetailHeader::Subtitle::Problem : DetailHeader::Subtitle::Note);
    updateWork();
    Q_EMIT titleChanged(title());
}

void ContentView::updateWork()
{
    const auto *table = qobject_cast<LinkTable *>(m_lists->currentWidget());
    const bool isReading = !m_services.library.lastLoaded().has_value();
    if (!isReading && (table == nullptr || !table->isWorking())) {
        m_workWait.reset();
        m_header->setWork({});
        return;
    }
    if (m_workWait)
        return;
    m_workWait = std::make_unique<QObject>();
    m_services.clock.after(workPatience, m_workWait.get(), [this] {
        //: Read aloud: what the program is doing.
        m_header->setWork(m_services.library.lastLoaded() ? tr("Searching") : tr("Reading"));
    });
}

void ContentView::updateBanners()
{
    if (m_services.library.snapshot().safariBlocked)
        showAccessBanner();
    else if (m_accessBanner != nullptr)
        m_accessBanner->setOpen(false);
    if (m_list.site)
        showSiteBar(*m_list.site);
    else if (m_siteBar != nullptr)
        m_siteBar->setOpen(false);
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
    const ListWish wish{.sourceID = sourceID,
                        .search = m_list.search,
                        .site = m_list.site,
                        .grouping =
                            m_pane ? m_groupings.value(PaneText::groupedList(*m_pane)) : Grouping::None};
    auto *table = qobject_cast<LinkTable *>(list);
    // Before it is shown, or else it would begin with what it showed last.
    if (table != nullptr)
        table->setWish(wish);
    m_list.rowCount = table != nullptr ? table->rowCount() : 0;
    const auto *history = qobject_cast<HistoryTable *>(list);
    m_list.isCapped = history != nullptr && history->isCapped();
    if (m_lists->currentWidget() != list || m_coverPane != m_pane) {
        m_coverPane = m_pane;
        m_lists->setCover(nullptr);
    }
    m_lists->setCurrentWidget(list);
    updateCover();
}

void ContentView::updateCover()
{
    auto *table = qobject_cast<LinkTable *>(m_lists->currentWidget());
    if (table == nullptr)
        return;
    // Folders without any link are rows, too.
    const bool isEmpty = table->view().tableModel().rowCount() == 0;
    if (isEmpty && !m_services.library.lastLoaded()) {
        if (m_loading == nullptr)
            m_loading = new LoadingRows(m_lists);
        m_lists->setCover(m_loading, table->view().header()->sizeHint().height());
    } else if (isEmpty && table->isVisible() && !table->isAwaited()) {
        emptyListPage()->setReason(whyEmpty(*table));
        m_lists->setCover(m_emptyList);
    } else if (!isEmpty || m_lists->cover() == m_loading) {
        m_lists->setCover(nullptr);
    }
    // Nobody shall come with the keyboard to what is not seen.
    table->setEnabled(m_emptyList == nullptr || m_lists->cover() != m_emptyList);
}

EmptyListPage::Reason ContentView::whyEmpty(const LinkTable &table) const
{
    EmptyListPage::Reason reason{
        .symbol = PaneText::groupedList(*m_pane) == GroupedList::Bookmarks ? u"bookmark"_s : u"clock"_s,
        .words = table.whyItIsEmpty(),
        .hasSite = m_list.site.has_value(),
        .hasSearch = isSearchText(m_list.search),
        .isProblem = PaneText::problem(m_pane, m_services.library).has_value()};
    if (m_services.library.snapshot().sources.isEmpty())
        reason.symbol = u"gearshape"_s;
    else if (reason.isProblem)
        reason.symbol = u"exclamationmark.triangle"_s;
    else if (reason.hasSearch || reason.hasSite)
        reason.symbol = u"magnifyingglass"_s;
    return reason;
}

EmptyListPage *ContentView::emptyListPage()
{
    if (m_emptyList == nullptr) {
        m_emptyList = new EmptyListPage(m_lists);
        connect(m_emptyList, &EmptyListPage::allSitesRequested, this, [this] { setSite({}); });
        connect(m_emptyList, &EmptyListPage::clearSearchRequested, m_header->searchField(),
                &QLineEdit::clear);
        connect(m_emptyList, &EmptyListPage::reloadRequested, this, &ContentView::reload);
    }
    return m_emptyList;
}

QWidget *ContentView::shownList()
{
    if (!m_pane)
        return nothingSelected();
    const Library &library = m_services.library;
    if (library.lastLoaded() && library.snapshot().browserProfiles.isEmpty())
        return noBrowsers();
    if (std::holds_alternative<HistoryPane>(*m_pane))
        return historyTable(m_history, HistoryTable::Mode::Recent);
    if (std::holds_alternative<MostVisitedPane>(*m_pane))
        return historyTable(m_mostVisited, HistoryTable::Mode::MostVisited);
    if (const std::optional<Source> source = encryptedSource())
        return encryptedBookmarks(*source);
    const bool isTree = !isSearchText(m_list.search) && !m_list.site &&
                        m_groupings.value(GroupedList::Bookmarks) != Grouping::Site;
    if (isTree)
        return bookmarkTable(m_tree);
    return bookmarkTable(m_bookmarks);
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
