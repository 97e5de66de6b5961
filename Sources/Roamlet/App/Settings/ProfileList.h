// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QListView>

namespace roamlet
{

/// The list of profiles. Rows are dragged to another place with the mouse, or moved with Alt or Ctrl and the
/// arrow keys; the space bar turns the switch of the current row.
class ProfileList final : public QListView
{
    Q_OBJECT

public:
    explicit ProfileList(QWidget *parent = nullptr);

    /// What stands in the place of rows when there are none.
    void setPlaceholderText(const QString &text);
    const QString &placeholderText() const { return m_placeholderText; }
    /// Where the switch of a row is.
    QRect switchRect(const QModelIndex &index) const;

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
    /// The row before which something that is dropped here comes.
    int rowAt(QPoint position) const;
    void endDragging();

    QString m_placeholderText;
    /// The row that the mouse was pressed on; invalid when there is none, or when it was its switch.
    QPersistentModelIndex m_pressed;
    QPoint m_pressedAt;
    /// The row before which the dragged one would come; below zero while nothing is dragged.
    int m_target = -1;
};

} // namespace roamlet
