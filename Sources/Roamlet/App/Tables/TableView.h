// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/Fade.h"
#include "App/Look/Look.h"
#include "Lists/RowTree.h"

#include <QPersistentModelIndex>
#include <QPoint>
#include <QSet>
#include <QString>
#include <QTreeView>

#include <cstddef>
#include <optional>

namespace roamlet
{

class RowDelegate;
class RowTips;
class TableHeader;
class TableModel;
struct ShownSearch;

/// The view of a table: rows with sections or folders that open and close. It keeps the selection and what is
/// open when a newer list comes.
class TableView final : public QTreeView
{
    Q_OBJECT

public:
    enum class Shape {
        List, ///< rows below each other, with headings over sections
        Tree  ///< rows indented by the folders around them
    };
    enum class Scrolling { Stay, ToTop };

    /// `model` outlives the view's use of it.
    TableView(TableModel &model, Shape shape, QWidget *parent = nullptr);

    TableHeader &tableHeader() const { return m_header; }
    const TableModel &tableModel() const { return m_model; }
    /// Shows a newer list. Rows that are in it too stay selected and open or closed; with Scrolling::Stay
    /// most of those in sight also stay where they are.
    void showTree(const SharedRowTree &tree, Scrolling scrolling);
    /// What was searched for in the rows that are shown next.
    void setSearch(const ShownSearch &search);
    /// The selected links and folders from top to bottom.
    QList<TableRow> selectedRows() const;
    /// Paints a row again, and the strip of its section.
    void updateRow(const QModelIndex &index);
    /// The strip of a section that shows one, or null.
    const VisitStrip *stripOf(const QModelIndex &section) const;
    /// The bar of a strip at this place of the viewport.
    std::optional<std::size_t> tickAt(const QPoint &point) const;
    /// Qt's own search jumps to whatever title begins so. Here, what is typed is searched for.
    void keyboardSearch(const QString &typed) override;

Q_SIGNALS:
    /// Somebody has typed a letter.
    void searchRequested(QString typed);
    /// Return or a double-click on links.
    void openRequested();
    void copyRequested();
    /// The menu of a section's site is wanted at this place of the screen.
    void siteMenuRequested(QString site, QPoint place);
    /// The menu of the selected rows is wanted at this place of the screen.
    void linkMenuRequested(QPoint place);

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void drawBranches(QPainter * /*painter*/, const QRect & /*rect*/,
                      const QModelIndex & /*index*/) const override
    {
    }
    int sizeHintForColumn(int column) const override;
    bool viewportEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    void updateLook();
    void openFoldersAndSections();
    bool isOpen(const RowTree::Node &node) const;
    bool isKind(const QModelIndex &index, TableRow::Kind kind) const;
    void noteToggled(const QModelIndex &index, bool isNowOpen);
    void toggle(const QModelIndex &index);
    /// Turns the arrow of what has been opened or closed.
    void turn(const QModelIndex &index);
    /// By which share its arrow has turned to where it is open.
    double openedShare(const QModelIndex &index) const;
    /// Nothing below what is closed stays selected or current.
    void leaveBelow(const QModelIndex &closed);
    bool selectsLinks() const;
    void drawBand(QPainter *painter, const QRect &band, const QModelIndex &index) const;
    void drawGround(QPainter *painter, const QRect &row, const QModelIndex &index) const;
    bool isSelectedRow(const QModelIndex &index) const;
    const Ground &groundOf(const QModelIndex &index) const;
    bool hasRing(const QModelIndex &index) const;
    /// The whole width of a row.
    QRect rowRect(const QModelIndex &index) const;
    void goToTick(const QModelIndex &section, std::size_t tick);
    void followCurrentRow();

    TableModel &m_model;
    TableHeader &m_header;
    Look m_look;
    RowDelegate &m_delegate;
    RowTips &m_tips;
    /// Keys move the current row, not the mouse.
    bool m_isByKeyboard = false;
    bool m_isBandPressed = false;
    /// The folders and sections whose state differs from how they come: outermost ones open, others closed.
    QSet<QString> m_toggled;
    bool m_isRestoring = false;
    bool m_isOpeningAll = false;
    /// What was opened or closed last, and its arrow on the way.
    QPersistentModelIndex m_turned;
    Fade m_turning;
};

} // namespace roamlet
