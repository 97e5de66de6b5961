// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QListView>
#include <QVariantAnimation>

namespace roamlet
{

/// The list of profiles, in a box with round corners. Rows are dragged to another place with the mouse, while
/// the others make room, or moved with Alt or Ctrl and the arrow keys. A click anywhere but on its handle, or
/// the space bar, turns the switch of a row.
class ProfileList final : public QListView
{
    Q_OBJECT

public:
    explicit ProfileList(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    /// What stands in the place of rows when there are none.
    void setPlaceholderText(const QString &text);
    const QString &placeholderText() const { return m_placeholderText; }
    /// Where the switch of a row is.
    QRect switchRect(const QModelIndex &index) const;
    /// Where a row is drawn, which is not its place while one is dragged.
    QRect shownRect(const QModelIndex &index) const;

    /// All rows, with all that is said below their names.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// While a row is dragged, Escape is about that and closes nothing.
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QStyleOptionViewItem optionOf(const QModelIndex &index) const;
    /// The box around the rows, without the room at the sides that a lifted row takes.
    QRect box() const;
    /// The row in whose place this is, or the nearest one.
    int rowAt(int y) const;
    void drag(QPoint position);
    void makeRoom();
    void settle();
    void endDragging();
    void forgetOffsets();
    void drawRow(QPainter &painter, const QModelIndex &index, const QRect &place) const;
    void drawLifted(QPainter &painter) const;

    QString m_placeholderText;
    /// The row that the mouse was pressed on; invalid when there is none, or when it was its switch.
    QPersistentModelIndex m_pressed;
    QPoint m_pressedAt;
    /// The row before which the dragged one would come; below zero while nothing is dragged.
    int m_target = -1;
    /// The row that is drawn above the others: the dragged one, and after that until it lies in its place.
    QPersistentModelIndex m_lifted;
    /// How far from its place each row is drawn, and how far it was when the movement began and will be when
    /// it ends.
    QHash<int, double> m_offsets;
    QHash<int, double> m_offsetsBefore;
    QHash<int, double> m_offsetsAfter;
    QVariantAnimation m_moving;
};

} // namespace roamlet
