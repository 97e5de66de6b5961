// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/Look.h"
#include "App/Tables/ColumnLayout.h"

#include <QDate>
#include <QHash>
#include <QHeaderView>
#include <QStringList>

#include <optional>

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

    /// The model has another list, font or day: columns are as wide as their texts ask for.
    void fitColumns();
    /// The names that the column of sources has to have room for, once columns are fitted again.
    void setSourceLabels(const QStringList &labels) { m_sourceLabels = labels; }
    /// In a tree, how far the outermost titles are moved in by the view.
    void setTitleIndent(int indent);

    /// Between the edges of a column and what stands in it. Everything begins on one line, and numbers end
    /// on another.
    int leadingPadding(int column) const;
    int trailingPadding(int column) const;
    /// Where what stands in a column ends, counted in the direction of reading from the leading edge.
    int contentEnd(int column) const;
    /// Where dates end in the same way, unless their column is hidden or there is none.
    std::optional<int> dateEnd() const;
    /// From this width on, the column of titles leaves the rest to the others.
    int widestTitle() const;
    /// Whether the list is so narrow that a browser's icon has to stand for its name.
    bool isNarrow() const;

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
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;
    QSize sectionSizeFromContents(int column) const override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// The user's choice, or else what suits the texts.
    int wantedWidth(int column) const;
    int suitableWidth(int column) const;
    /// Wide enough for every name, as far as that leaves the titles what they need. `edge` is what it gets
    /// besides as the last column.
    int sourceWidth(int column, int usual, int edge) const;
    /// How wide the heading is by itself, with its arrow.
    int headingWidth(int column) const;
    bool isRightAligned(int column) const;
    /// Between columns; a narrow list keeps half of it for the words.
    int cellGap() const;
    /// The first or the last shown column, in the direction of reading.
    int edgeColumn(bool isLast) const;
    /// Gives the columns the whole width of the list and no more, as far as they can be that narrow.
    void arrange();
    void updateMinimum();
    void finishDragging();
    /// The column that the keys are about.
    int keyColumn() const { return isSectionHidden(m_keyColumn) ? titleColumn : m_keyColumn; }
    /// To the next shown column, 1 for the one behind it and -1 for the one before; it may stay where it is.
    int neighbour(int column, int direction) const;
    /// Which heading the keys are about now.
    void tellFocus();
    void followArrow(int direction, Qt::KeyboardModifiers modifiers);

    const TableModel &m_model;
    Look m_look;
    /// The widths that are the user's choice, by column. A hidden column keeps its own.
    QHash<int, int> m_chosenWidths;
    int m_keyColumn = titleColumn;
    int m_titleIndent = 0;
    /// The widest date that may be shown, and on which day that was found out.
    int m_dateWidth = 0;
    QDate m_dateWidthOf;
    int m_visitsWidth = 0;
    QStringList m_sourceLabels;
    /// The widest of them.
    int m_labelWidth = 0;
    bool m_isUnderPointer = false;
    /// With the mouse or the keys.
    bool m_isDragging = false;
    bool m_isEdited = false;
};

} // namespace roamlet
