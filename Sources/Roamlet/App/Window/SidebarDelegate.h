// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

namespace roamlet
{

class SourceIcons;

/// Draws the rows of the sidebar. Symbols, and the words after them, stand in one column each.
class SidebarDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The icons outlive it.
    SidebarDelegate(SourceIcons &sourceIcons, QObject *parent);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    SourceIcons &m_sourceIcons;
};

} // namespace roamlet
