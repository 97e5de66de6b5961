// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/Look.h"
#include "App/Tables/RowPainter.h"
#include "Lists/RowTree.h"

#include <QPoint>
#include <QString>
#include <QTreeView>

#include <cstddef>

namespace roamlet
{

class RowDelegate;
class RowFolds;
class RowSelectionModel;
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
    const RowPainter &rowPainter() const { return m_rowPainter; }
    /// Shows a newer list. Rows that are in it too stay selected and open or closed; with Scrolling::Stay
    /// most of those in sight also stay where they are.
    void showTree(const SharedRowTree &tree, Scrolling scrolling);
    /// What was searched for in the rows that are shown next.
    void setSearch(const ShownSearch &search);
    /// The selected links and folders from top to bottom.
    QList<TableRow> selectedRows() const;
    /// Paints a row again, and the strip of its section.
    void updateRow(const QModelIndex &index);
    /// The whole width of a row.
    QRect rowRect(const QModelIndex &index) const;
    /// Whether the keyboard is at this row.
    bool hasRing(const QModelIndex &index) const;
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
    bool isKind(const QModelIndex &index, TableRow::Kind kind) const;
    bool selectsLinks() const;
    void goToTick(const QModelIndex &section, std::size_t tick);
    void followCurrentRow();

    TableModel &m_model;
    TableHeader &m_header;
    RowSelectionModel &m_selection;
    Look m_look;
    RowDelegate &m_delegate;
    RowTips &m_tips;
    RowFolds &m_folds;
    RowPainter m_rowPainter;
    bool m_isBandPressed = false;
};

} // namespace roamlet
