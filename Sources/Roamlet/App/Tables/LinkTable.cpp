// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/LinkTable.h"

#include "App/Look/BusyBar.h"
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

namespace
{

/// Most answers are there before anybody would have read that they are on their way.
constexpr std::chrono::milliseconds busyPatience{300};

} // namespace

LinkTable::LinkTable(const WindowServices &services, const Kind &kind, QWidget *parent)
    : QWidget(parent),
      m_services(services),
      m_layoutKey(kind.layoutKey),
      m_nothingText(kind.nothingText),
      m_model(kind.columns, localText()),
      m_view(*new TableView(m_model, kind.shape, this)),
      m_icons(services.library, services.opener, m_view)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&m_view);
    setFocusProxy(&m_view);

    m_view.setObjectName(kind.objectName);
    m_view.setAccessibleName(kind.accessibleName);
    m_model.setIcons(&m_icons);
    m_view.tableHeader().setColumnLayout(ColumnLayout::load(services.defaults, m_layoutKey));
    showWhyItIsEmpty();

    connect(&services.library, &Library::snapshotChanged, this, [this] {
        m_icons.clear();
        refreshIfVisible();
    });
    connect(&m_view, &TableView::openRequested, this, &LinkTable::openSelection);
    connect(&m_view, &TableView::copyRequested, this, &LinkTable::copySelection);
    connect(&m_view, &TableView::linkMenuRequested, this, &LinkTable::showLinkMenu);
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

void LinkTable::setInputs(const TableInputs &inputs)
{
    if (inputs == m_inputs)
        return;
    m_inputs = inputs;
    refreshIfVisible();
}

void LinkTable::refreshIfVisible()
{
    if (isVisible())
        refresh();
}

void LinkTable::awaitMidnight()
{
    m_midnight = std::make_unique<QObject>();
    const auto left = std::chrono::ceil<Clock::Duration>(localText().tomorrow() - m_services.clock.now());
    m_services.clock.after(std::max(left, Clock::Duration(std::chrono::seconds(1))), m_midnight.get(),
                           [this] { catchUp(); });
}

void LinkTable::setBusy(bool isBusy, bool isAskedFor)
{
    if (isBusy == m_isBusy)
        return;
    m_isBusy = isBusy;
    m_busyWait.reset();
    if (!isBusy) {
        if (m_busyBar != nullptr)
            m_busyBar->hide();
        return;
    }
    if (!isAskedFor)
        return;
    m_busyWait = std::make_unique<QObject>();
    m_services.clock.after(busyPatience, m_busyWait.get(), [this] {
        if (m_busyBar == nullptr)
            m_busyBar = new BusyBar(u"Searching"_s, this);
        placeBusyBar();
        m_busyBar->raise();
        m_busyBar->show();
    });
}

void LinkTable::placeBusyBar()
{
    if (m_busyBar != nullptr)
        m_busyBar->setGeometry(0, m_view.tableHeader().height(), width(), BusyBar::thickness);
}

void LinkTable::catchUp()
{
    awaitMidnight();
    // A list that was left alone over night still says "Today" about yesterday.
    if (localText().today() != m_model.localText().today())
        invalidate();
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
}

void LinkTable::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeBusyBar();
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

void LinkTable::showList(const SharedRowTree &tree, TableView::Scrolling scrolling)
{
    m_model.setLocalText(localText());
    m_view.showTree(tree, scrolling);
    showWhyItIsEmpty();
    Q_EMIT rowCountChanged(rowCount());
}

void LinkTable::showThatItWorks()
{
    m_view.setEmptyText(refineText(m_inputs.search).isEmpty() ? u"Reading…"_s : u"Searching…"_s);
}

void LinkTable::showWhyItIsEmpty()
{
    m_view.setEmptyText(emptyText());
}

QString LinkTable::emptyText() const
{
    const Library &library = m_services.library;
    if (library.generation() == 0)
        return u"Reading…"_s;
    if (library.snapshot().browserProfiles.isEmpty())
        return u"No browser found."_s;
    if (library.snapshot().sources.isEmpty())
        return u"All profiles are switched off in the settings."_s;
    if (m_inputs.sourceID && library.snapshot().problems.contains(*m_inputs.sourceID))
        return CellText::oneLine(library.snapshot().problems.value(*m_inputs.sourceID));
    const QString searched = m_inputs.search.trimmed();
    const QString where = m_inputs.site ? QString(u" on " % CellText::oneLine(*m_inputs.site)) : QString();
    if (!searched.isEmpty())
        return u"Nothing found for “"_s % CellText::oneLine(searched, CellText::longestMenuText) % u"”" %
               where;
    return m_inputs.site ? QString(u"Nothing found" % where) : m_nothingText;
}

void LinkTable::showSortIndicator(int column, Qt::SortOrder order)
{
    m_view.tableHeader().setSortIndicator(column, order);
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
    menu->setObjectName(u"linkMenu"_s);
    menu->setAccessibleName(u"Links"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const LinkMenuEntry &entry : entries) {
        if (entry.action == Action::Separator)
            menu->addSeparator();
        else
            menu->addAction(CellText::inMenu(entry.title), this,
                            [this, entry, subject] { perform(entry, subject); });
    }
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
    menu->setObjectName(u"columnMenu"_s);
    menu->setAccessibleName(u"Columns"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int column = 0; column < columns().size(); ++column) {
        QAction *action = menu->addAction(columns()[column].title);
        action->setCheckable(true);
        action->setChecked(!header.isSectionHidden(column));
        action->setEnabled(column != TableHeader::titleColumn);
        connect(action, &QAction::toggled, &header,
                [&header, column](bool isShown) { header.setColumnShown(column, isShown); });
    }
    menu->addSeparator();
    QMenu *orders = menu->addMenu(u"Sort By"_s);
    for (int column = 0; column < columns().size(); ++column)
        orders->addAction(columns()[column].title, this, [this, column] { sortBy(column); });
    menu->addAction(u"Default Order"_s, this, [this] { sortByDefault(); });
    menu->addSeparator();
    menu->addAction(u"Default Columns"_s, this, [this, &header] {
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
