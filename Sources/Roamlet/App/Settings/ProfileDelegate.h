// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace roamlet
{

struct Look;

/// Draws a profile: a handle to drag it by, its browser's icon, its name with what there is to say about it
/// below, and a switch at the end of the row. What lies below the row is not the row's.
class ProfileDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

    /// As wide as a row has to be for a note of this text.
    static int widthForNote(const QString &note, const Look &look);
    /// Where the switch is in a row.
    static QRect switchRect(const QStyleOptionViewItem &option);
    /// Where it is only dragged by: the handle with the room around it.
    static QRect handleRect(const QStyleOptionViewItem &option);
};

} // namespace roamlet
