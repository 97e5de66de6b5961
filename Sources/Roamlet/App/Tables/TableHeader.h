// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/ColumnLayout.h"

#include <QHash>
#include <QHeaderView>

namespace roamlet
{

class TableModel;

/// The header of a table. The first column is the title: it cannot be hidden, and it takes the width that the
/// others leave until the user gives it one. With the keyboard the header is reached by Tab; the arrow
/// keys go to a column, move it with Ctrl and resize it with Shift, and Space opens the menu.
class TableHeader final : public QHeaderView
{
    Q_OBJECT

public:
    static constexpr int titleColumn = 0;

    explicit TableHeader(const TableModel &model, QWidget *parent = nullptr);

    /// Once the view has the model.
    void setColumnLayout(const ColumnLayout &layout);
    ColumnLayout columnLayout() const;
    void setColumnShown(int column, bool isShown);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user has moved, resized, hidden or shown a column.
    void columnLayoutEdited();
    /// The user wants the menu of the columns at this place of the screen.
    void menuRequested(QPoint place);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int suitableWidth(int column) const;
    void fillWithTitle();
    void finishDragging();
    /// The column that the keys are about.
    int keyColumn() const { return isSectionHidden(m_keyColumn) ? titleColumn : m_keyColumn; }
    /// To the next shown column, 1 for the right one and -1 for the left; it may stay where it is.
    int neighbour(int column, int direction) const;
    void followArrow(int direction, Qt::KeyboardModifiers modifiers);

    const TableModel &m_model;
    /// The widths that are the user's choice, by column. A hidden column keeps its own.
    QHash<int, int> m_chosenWidths;
    int m_keyColumn = titleColumn;
    /// With the mouse or the keys.
    bool m_isDragging = false;
    bool m_isEdited = false;
};

} // namespace roamlet
