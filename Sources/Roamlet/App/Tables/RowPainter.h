// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>

#include <cstddef>
#include <optional>

class QPainter;
class QPoint;
class QRect;
class QStyleOptionViewItem;

namespace roamlet
{

class RowDelegate;
class RowFolds;
class RowTips;
class TableHeader;
class TableModel;
class TableView;
struct Ground;
struct Look;
struct VisitStrip;

/// Paints the rows of a table, and knows where in them it has painted what: the bands of sections with their
/// strips, and links and folders with what lies behind their cells.
class RowPainter final
{
public:
    /// All of them live with the view. `look` changes with the theme.
    RowPainter(const TableView &view, const Look &look, const RowDelegate &delegate, const RowTips &tips,
               const RowFolds &folds);

    /// Paints a row over the whole width of the list.
    void paint(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;

    /// The strip of a section that shows one, or null.
    const VisitStrip *stripOf(const QModelIndex &section) const;
    /// The bar of a strip at this place of the viewport.
    std::optional<std::size_t> tickAt(const QPoint &point) const;
    /// How wide a column would have to be to show all of the rows in sight.
    int naturalWidth(int column) const;

private:
    void paintGround(QPainter &painter, const QRect &row, const QModelIndex &index) const;
    void paintBand(QPainter &painter, const QRect &band, const QModelIndex &index) const;
    /// How far the title of a row is moved in by the folders around it.
    int indentOf(const QModelIndex &index) const;
    bool isSelected(const QModelIndex &index) const;
    const Ground &groundOf(const QModelIndex &index) const;

    const TableView &m_view;
    const TableModel &m_model;
    const TableHeader &m_header;
    const Look &m_look;
    const RowDelegate &m_delegate;
    const RowTips &m_tips;
    const RowFolds &m_folds;
};

} // namespace roamlet
