// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/LinkMenu.h"
#include "App/Tables/RowIcons.h"
#include "App/Tables/TableModel.h"
#include "App/Tables/TableView.h"
#include "App/Window/WindowServices.h"
#include "Library/ListLoader.h"
#include "Lists/ListWish.h"

#include <QString>
#include <QWidget>

#include <memory>
#include <optional>

class QAction;

namespace roamlet
{

/// What the three tables of the main window have in common: a view of links that are opened, copied and asked
/// for a menu, and columns that the user arranges. A table that nobody sees does no work; it catches up when
/// it is shown.
class LinkTable : public QWidget
{
    Q_OBJECT

public:
    ~LinkTable() override;

    /// What it shall show. Which of the lists it is, the order and the generation are the table's own affair.
    void setWish(const ListWish &asked);
    /// How many links the shown list has, in open and closed sections and folders.
    qsizetype rowCount() const { return m_model.tree()->linkCount(); }
    TableView &view() const { return m_view; }
    /// Whether what is shown is not yet the answer to what was asked.
    bool isAwaited() const { return m_loader.progress() != ListLoader::Progress::Done; }

    /// Whether it works on something else than what it shows; a reload of the same list does not count.
    bool isWorking() const { return m_isWorking; }
    /// Why there are no rows, once that is known.
    QString whyItIsEmpty() const;

    /// Opens the selected links in the browsers that they came from.
    void openSelection();
    /// Puts the selected links' URLs on the clipboard.
    void copySelection();

Q_SIGNALS:
    /// A list is shown; it may have as many rows as the one before.
    void rowCountChanged(qsizetype count);
    /// The user wants to see this site only.
    void onlySiteRequested(QString site);
    /// The user has begun to type what shall be found.
    void searchRequested(QString typed);
    void isWorkingChanged();

protected:
    /// What one table is and the others are not.
    struct Kind {
        ListWish::Mode mode;
        /// The view's name in the program,
        QString objectName;
        /// and to those who cannot see it.
        QString accessibleName;
        /// Under which the arrangement of the columns is stored.
        QString layoutKey;
        TableView::Shape shape;
        QList<TableColumn> columns;
        /// The order in which the list comes at first.
        QList<SortComparator> order;
        /// Said when there is nothing to show, and nothing was searched for.
        QString nothingText;
    };

    LinkTable(const WindowServices &services, const Kind &kind, QWidget *parent);

    virtual LinkMenuSubject menuSubject(const QList<TableRow> &rows) const = 0;
    /// A list is shown next.
    virtual void noteList(const ShownList & /*list*/) {}

    /// The same list has to be made again.
    void remake();

    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// Sees to it that what is shown is what is asked for, unless nobody looks.
    void refresh();
    void nameSources();
    ListWish wish() const;
    void showList(const ShownList &list);
    /// The user wants this column to decide first, or the other way round if it already does.
    void sortBy(int column);
    void setOrder(const QList<SortComparator> &order);
    void updateIsWorking();
    /// Comes back to a list after a while in which it was not looked at.
    void catchUp();
    /// Does it again when the next day begins.
    void awaitMidnight();
    LocalText localText() const;
    QList<Opener::Link> selectedLinks() const;
    void showLinkMenu(const QPoint &place);
    void showSiteMenu(const QString &site, const QPoint &place);
    /// Turns off what a browser that this system cannot have would do, and says why.
    void sayWhatCannotBe(QAction &action, const LinkMenuEntry &entry, const LinkMenuSubject &subject) const;
    void perform(const LinkMenuEntry &entry, const LinkMenuSubject &subject);
    void showColumnMenu(const QPoint &place);
    void saveColumnLayout();

    WindowServices m_services;
    /// As asked for, without a generation.
    ListWish m_wish;
    /// Whether that is why the shown list is empty.
    bool m_lacksMemory = false;
    QString m_layoutKey;
    QString m_nothingText;
    QList<SortComparator> m_defaultOrder;
    TableModel m_model;
    TableView &m_view;
    RowIcons m_icons;
    /// Lives until midnight, or until nobody looks any more.
    std::unique_ptr<QObject> m_midnight;
    bool m_isWorking = false;
    ListLoader m_loader;
};

} // namespace roamlet
