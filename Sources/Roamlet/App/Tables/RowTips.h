// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/Fade.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QPoint>
#include <QTimer>

#include <cstddef>
#include <optional>

namespace roamlet
{

class RowBubble;
class RowDelegate;
class TableView;

/// Follows the pointer and the keyboard over the rows of a table, and tells of the row that they are at: in a
/// bubble, by tooltips, and by the hour that is lit in its section's strip.
class RowTips final : public QObject
{
public:
    /// Lives with the view. The delegate outlives it.
    RowTips(TableView &view, const RowDelegate &delegate);

    /// By how much a row is lit: the one that the pointer is over gets there by and by.
    double lit(const QModelIndex &index) const;
    /// The hour or day of a section that the row is in which the pointer or the keyboard is at.
    std::optional<std::size_t> litTick(const QModelIndex &section) const;

    /// The pointer was moved to this place in the viewport,
    void movePointer(const QPoint &point);
    /// or out of it,
    void leave();
    /// or other rows have come below it, which has not moved.
    void followRows();
    /// Keys are used from now on, until the pointer is moved.
    void useKeys();

    /// Shows the bubble of a row, or none where there is nothing to tell.
    void tellOf(const QModelIndex &index);
    /// Other rows are selected.
    void followSelection();
    /// The bubble goes.
    void fallSilent();
    /// Nothing more is said of what the keyboard was at.
    void loseFocus();
    /// The viewport has another size or look.
    void place();
    /// What stands at this place, where it is cut or there is more to say.
    void showToolTip(const QPoint &point, const QPoint &onScreen) const;

private:
    /// The pointer is over this row, and in a strip at this bar.
    void setHovered(const QModelIndex &index, std::optional<std::size_t> tick);
    /// There is no one row to tell about.
    bool areSeveralSelected() const;

    TableView &m_view;
    const RowDelegate &m_delegate;
    RowBubble &m_bubble;
    /// The row under the pointer, and in a strip the bar.
    QPersistentModelIndex m_hovered;
    std::optional<std::size_t> m_hoveredTick;
    Fade m_lighting;
    QTimer m_wait;
    /// The mouse was moved since the last key.
    bool m_isPointerUsed = false;
};

} // namespace roamlet
