// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/LinkTable.h"

#include "App/Look/ForeignText.h"
#include "App/Look/RoamletStyle.h"
#include "App/Tables/RowDelegate.h"
#include "App/Tables/TableHeader.h"
#include "Library/Library.h"
#include "Lists/Refine.h"
#include "Platform/Clock.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

using Action = LinkMenuEntry::Action;

LinkTable::LinkTable(const WindowServices &services, const Kind &kind, QWidget *parent)
    : QWidget(parent),
      m_services(services),
      m_wish{.mode = kind.mode},
      m_layoutKey(kind.layoutKey),
      m_nothingText(kind.nothingText),
      m_defaultOrder(kind.order),
      m_model(kind.columns, localText()),
      m_view(*new TableView(m_model, kind.shape, this)),
      m_icons(services.library, services.opener, m_view),
      m_loader(services.library, services.clock, services.collation, services.calendar)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&m_view);
    setFocusProxy(&m_view);

    m_view.setObjectName(kind.objectName);
    m_view.setAccessibleName(kind.accessibleName);
    m_model.setIcons(&m_icons);
    m_view.tableHeader().setColumnLayout(ColumnLayout::load(services.defaults, m_layoutKey));
    nameSources();
    setOrder(m_defaultOrder);

    connect(&services.library, &Library::snapshotChanged, this, [this] {
        m_icons.clear();
        nameSources();
        refresh();
    });
    connect(&m_loader, &ListLoader::listLoaded, this, &LinkTable::showList);
    connect(&m_loader, &ListLoader::progressChanged, this, &LinkTable::updateIsWorking);
    connect(&m_view, &TableView::openRequested, this, &LinkTable::openSelection);
    connect(&m_view, &TableView::copyRequested, this, &LinkTable::copySelection);
    connect(&m_view, &TableView::searchRequested, this, &LinkTable::searchRequested);
    connect(&m_view, &TableView::linkMenuRequested, this, &LinkTable::showLinkMenu);
    connect(&m_view, &TableView::siteMenuRequested, this, &LinkTable::showSiteMenu);
    TableHeader &header = m_view.tableHeader();
    connect(&header, &TableHeader::columnLayoutEdited, this, &LinkTable::saveColumnLayout);
    connect(&header, &TableHeader::menuRequested, this, &LinkTable::showColumnMenu);
    connect(&header, &QHeaderView::sectionClicked, this, [this](int column) { sortBy(column); });
}

LinkTable::~LinkTable()
{
    // The view would ask for icons that are gone by then.
    m_model.setIcons(nullptr);
    delete &m_view;
}

void LinkTable::setWish(const ListWish &asked)
{
    ListWish wish = asked;
    wish.mode = m_wish.mode;
    wish.order = m_wish.order;
    wish.generation = m_wish.generation;
    if (wish == m_wish)
        return;
    m_wish = wish;
    refresh();
}

void LinkTable::nameSources()
{
    QStringList labels;
    for (const Source &source : m_services.library.snapshot().sources)
        labels.append(ForeignText::oneLine(source.label()));
    m_view.tableHeader().setSourceLabels(labels);
}

void LinkTable::refresh()
{
    // Before the first load there is nothing to search in.
    if (!isVisible() || m_services.library.generation() == 0)
        return;
    m_loader.load(wish());
    updateIsWorking();
}

ListWish LinkTable::wish() const
{
    ListWish result = m_wish;
    result.generation = m_services.library.generation();
    // Nothing is searched for in folders, so nothing has to be made anew when the search changes.
    if (result.mode == ListWish::Mode::BookmarkTree) {
        result.search.clear();
        result.site.reset();
        result.grouping = Grouping::None;
    }
    return result;
}

void LinkTable::remake()
{
    m_loader.outdate();
    refresh();
}

void LinkTable::sortBy(int column)
{
    setOrder(orderAfterClick(m_wish.order, m_model.columns()[column].content));
    refresh();
}

void LinkTable::setOrder(const QList<SortComparator> &order)
{
    m_wish.order = order;
    if (order.isEmpty()) {
        m_view.tableHeader().setSortIndicator(-1, Qt::AscendingOrder);
        return;
    }
    const auto column = std::ranges::find(m_model.columns(), order.first().column, &TableColumn::content);
    m_view.tableHeader().setSortIndicator(static_cast<int>(column - m_model.columns().begin()),
                                          order.first().order == SortOrder::Forward ? Qt::AscendingOrder
                                                                                    : Qt::DescendingOrder);
}

void LinkTable::awaitMidnight()
{
    m_midnight = std::make_unique<QObject>();
    const auto left = std::chrono::ceil<Clock::Duration>(localText().tomorrow() - m_services.clock.now());
    m_services.clock.after(std::max(left, Clock::Duration(std::chrono::seconds(1))), m_midnight.get(),
                           [this] { catchUp(); });
}

void LinkTable::updateIsWorking()
{
    // What a reload brings may take its time: a list is there.
    const bool isWorking = m_loader.progress() == ListLoader::Progress::Working;
    if (isWorking == m_isWorking)
        return;
    m_isWorking = isWorking;
    Q_EMIT isWorkingChanged();
}

void LinkTable::catchUp()
{
    awaitMidnight();
    // A list that was left alone over night still says "Today" about yesterday.
    if (localText().today() != m_model.localText().today())
        m_loader.outdate();
    refresh();
}

void LinkTable::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    catchUp();
}

void LinkTable::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_midnight.reset();
    m_loader.cancel();
}

void LinkTable::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isVisible() && isActiveWindow())
        catchUp();
}

LocalText LinkTable::localText() const
{
    const auto now = m_services.clock.now();
    return {m_services.calendar(), now};
}

void LinkTable::showList(const ShownList &list)
{
    noteList(list);
    m_lacksMemory = list.lacksMemory;
    m_model.setLocalText({m_services.calendar(), list.now});
    m_view.setSearch({.words = refineWords(refineText(m_wish.search)), .site = m_wish.site});
    m_view.showTree(list.tree, list.change == ListChange::Reloaded ? TableView::Scrolling::Stay
                                                                   : TableView::Scrolling::ToTop);
    updateIsWorking();
    Q_EMIT rowCountChanged(rowCount());
}

QString LinkTable::whyItIsEmpty() const
{
    const Library &library = m_services.library;
    if (library.snapshot().sources.isEmpty())
        return tr("All profiles are switched off in the settings.");
    if (m_lacksMemory)
        return tr("There is not enough memory for this list.");
    if (m_wish.sourceID && library.snapshot().problems.contains(*m_wish.sourceID))
        return ForeignText::oneLine(library.snapshot().problems.value(*m_wish.sourceID));
    const QString site = m_wish.site ? ForeignText::oneLine(*m_wish.site) : QString();
    if (isSearchText(m_wish.search)) {
        const QString words = ForeignText::oneLine(m_wish.search.trimmed(), ForeignText::longestMenuText);
        return m_wish.site ? tr("Nothing found for “%1” on %2").arg(words, site)
                           : tr("Nothing found for “%1”").arg(words);
    }
    return m_wish.site ? tr("Nothing found on %1").arg(site) : m_nothingText;
}

QList<Opener::Link> LinkTable::selectedLinks() const
{
    return menuSubject(m_view.selectedRows()).items;
}

void LinkTable::openSelection()
{
    m_services.opener.openLinks(selectedLinks());
}

void LinkTable::copySelection()
{
    if (const QList<Opener::Link> links = selectedLinks(); !links.isEmpty())
        QGuiApplication::clipboard()->setText(clipboardText(links));
}

void LinkTable::showLinkMenu(const QPoint &place)
{
    const LinkMenuSubject subject = menuSubject(m_view.selectedRows());
    const QList<LinkMenuEntry> entries = linkMenuEntries(subject, m_services.opener.installedBrowsers());
    if (entries.isEmpty())
        return;
    auto *menu = new QMenu(this);
    RoamletStyle::outline(*menu);
    menu->setObjectName(u"linkMenu"_s);
    //: The name, read aloud, of the menu of the selected links.
    menu->setAccessibleName(tr("Links"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const LinkMenuEntry &entry : entries) {
        if (entry.action == Action::Separator) {
            menu->addSeparator();
            continue;
        }
        QAction *action = menu->addAction(ForeignText::inMenu(entry.title), this,
                                          [this, entry, subject] { perform(entry, subject); });
        sayWhatCannotBe(*action, entry, subject);
    }
    menu->setToolTipsVisible(true);
    menu->popup(place);
}

void LinkTable::sayWhatCannotBe(QAction &action, const LinkMenuEntry &entry,
                                const LinkMenuSubject &subject) const
{
    const auto isElsewhere = [this](const Source &source) {
        return !m_services.opener.canShowPages(source.kind);
    };
    const bool isOfItsPages = entry.action == Action::ShowHistory || entry.action == Action::EditBookmarks;
    if (isOfItsPages) {
        const Source &source =
            entry.action == Action::ShowHistory ? *subject.historySource : subject.editTarget->source;
        if (!isElsewhere(source))
            return;
        action.setEnabled(false);
        action.setToolTip(tr("%1 does not exist on this system.").arg(Source::displayName(source.kind)));
    } else if (entry.action == Action::OpenInOriginalBrowsers && subject.items.size() == 1 &&
               isElsewhere(subject.items.first().source)) {
        action.setToolTip(tr("Opens in this desktop’s own browser: %1 does not exist on this system.")
                              .arg(Source::displayName(subject.items.first().source.kind)));
    }
}

void LinkTable::showSiteMenu(const QString &site, const QPoint &place)
{
    LinkMenuSubject subject;
    subject.site = site;
    const LinkMenuEntry entry = onlySiteEntry(site);
    auto *menu = new QMenu(this);
    RoamletStyle::outline(*menu);
    menu->setObjectName(u"siteMenu"_s);
    //: The name, read aloud, of the menu of the selected links.
    menu->setAccessibleName(tr("Links"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(ForeignText::inMenu(entry.title), this,
                    [this, entry, subject] { perform(entry, subject); });
    menu->popup(place);
}

void LinkTable::perform(const LinkMenuEntry &entry, const LinkMenuSubject &subject)
{
    Opener &opener = m_services.opener;
    switch (entry.action) {
    case Action::Separator:
        return;
    case Action::EditBookmarks:
        opener.editBookmarks(subject.editTarget->source, subject.editTarget->folderID);
        return;
    case Action::ShowHistory:
        opener.showHistory(*subject.historySource);
        return;
    case Action::OpenInOriginalBrowsers:
        opener.openLinks(subject.items);
        return;
    case Action::OpenInBrowser: {
        QStringList urls;
        for (const Opener::Link &link : subject.items)
            urls.append(link.url);
        opener.open(urls, entry.browser);
        return;
    }
    case Action::CopyURLs:
        QGuiApplication::clipboard()->setText(clipboardText(subject.items));
        return;
    case Action::ShowOnlySite:
        Q_EMIT onlySiteRequested(*subject.site);
        return;
    }
}

void LinkTable::showColumnMenu(const QPoint &place)
{
    TableHeader &header = m_view.tableHeader();
    auto *menu = new QMenu(this);
    RoamletStyle::outline(*menu);
    menu->setObjectName(u"columnMenu"_s);
    menu->setAccessibleName(tr("Columns"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int column = 0; column < m_model.columns().size(); ++column) {
        QAction *action = menu->addAction(m_model.columns()[column].title);
        action->setCheckable(true);
        action->setChecked(!header.isSectionHidden(column));
        action->setEnabled(column != TableHeader::titleColumn);
        connect(action, &QAction::toggled, &header,
                [&header, column](bool isShown) { header.setColumnShown(column, isShown); });
    }
    menu->addSeparator();
    QMenu *orders = menu->addMenu(tr("Sort By"));
    RoamletStyle::outline(*orders);
    for (int column = 0; column < m_model.columns().size(); ++column)
        orders->addAction(m_model.columns()[column].title, this, [this, column] { sortBy(column); });
    menu->addAction(tr("Default Order"), this, [this] {
        setOrder(m_defaultOrder);
        refresh();
    });
    menu->addSeparator();
    menu->addAction(tr("Default Columns"), this, [this, &header] {
        header.setColumnLayout({});
        saveColumnLayout();
    });
    menu->popup(place);
}

void LinkTable::saveColumnLayout()
{
    m_view.tableHeader().columnLayout().save(m_services.defaults, m_layoutKey);
}

} // namespace roamlet
