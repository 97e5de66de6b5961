// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/LocalText.h"
#include "Lists/RowTree.h"
#include "Lists/SortComparator.h"

#include <QAbstractItemModel>
#include <QList>
#include <QString>

namespace roamlet
{

class RowIcons;

/// One column of a table.
struct TableColumn {
    using Content = SortColumn;

    /// Under which its place and width are stored.
    QString identifier;
    QString title;
    Content content = Content::Title;
    /// In widths of a digit, until the user chooses another.
    int width = 0;
};

/// The rows of a table as Qt's views take them. A newer list replaces the whole one.
class TableModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    TableModel(QList<TableColumn> columns, LocalText localText, QObject *parent = nullptr);

    /// `tree` is never null.
    void setTree(SharedRowTree tree);
    /// Without it no icons are shown.
    void setIcons(RowIcons *icons) { m_icons = icons; }
    /// Whoever draws the rows has to do it again.
    void setLocalText(const LocalText &text) { m_localText = text; }
    const LocalText &localText() const { return m_localText; }
    const SharedRowTree &tree() const { return m_tree; }
    const QList<TableColumn> &columns() const { return m_columns; }
    /// The row at a valid index.
    const TableRow &rowAt(const QModelIndex &index) const { return m_tree->row(numberOf(index)); }
    /// The number of the row at an index; the root's for an invalid one.
    static RowTree::Number numberOf(const QModelIndex &index);
    QModelIndex indexOf(RowTree::Number number, int column = 0) const;
    /// Whether a row is drawn as a band over the whole width: the heading of a section, and in the tree of
    /// all bookmarks the name of a source.
    bool isBand(const QModelIndex &index) const { return isBand(m_tree->node(numberOf(index))); }
    static bool isBand(const RowTree::Node &node);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QStringList mimeTypes() const override;
    /// The links among these, from top to bottom, for other programs.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction | Qt::LinkAction; }
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    /// Whether the row lies in a section of one day.
    bool isWithinADay(const RowTree::Node &node) const;
    QString text(const RowTree::Node &node, TableColumn::Content content) const;
    QString accessibleText(const RowTree::Node &node, TableColumn::Content content) const;
    QString toolTip(const RowTree::Node &node, TableColumn::Content content) const;
    QVariant icon(const RowTree::Node &node, TableColumn::Content content) const;

    QList<TableColumn> m_columns;
    LocalText m_localText;
    RowIcons *m_icons = nullptr;
    SharedRowTree m_tree;
};

} // namespace roamlet
