// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/RowTree.h"

#include <QSet>
#include <QString>
#include <QTreeView>

class QLabel;

namespace roamlet
{

class TableHeader;
class TableModel;

/// The view of a table: rows with sections or folders that open and close, and words in place of an empty
/// list. It keeps the selection and what is open when a newer list comes.
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
    /// What is said while there are no rows.
    void setEmptyText(const QString &text);
    QString emptyText() const;
    /// The selected links and folders from top to bottom.
    QList<TableRow> selectedRows() const;

Q_SIGNALS:
    /// Return or a double-click on links.
    void openRequested();
    void copyRequested();
    /// The menu of the selected rows is wanted at this place of the screen.
    void linkMenuRequested(QPoint place);

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateColors();
    void openFoldersAndSections();
    bool isOpen(const RowTree::Node &node) const;
    bool isKind(const QModelIndex &index, TableRow::Kind kind) const;
    void noteToggled(const QModelIndex &index, bool isNowOpen);
    void toggle(const QModelIndex &index);
    /// Nothing below what is closed stays selected or current.
    void leaveBelow(const QModelIndex &closed);
    bool selectsLinks() const;
    void drawSection(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;

    TableModel &m_model;
    TableHeader &m_header;
    QLabel &m_emptyLabel;
    /// The folders and sections whose state differs from how they come: outermost ones open, others closed.
    QSet<QString> m_toggled;
    bool m_isRestoring = false;
};

} // namespace roamlet
