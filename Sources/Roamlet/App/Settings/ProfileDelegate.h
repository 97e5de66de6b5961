// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace roamlet
{

/// Draws a profile: a handle to drag it by, its browser's icon, its name, and a switch at the end of the row.
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

    /// Where the switch is in a row.
    static QRect switchRect(const QStyleOptionViewItem &option);
};

} // namespace roamlet
