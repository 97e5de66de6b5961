// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QIcon>
#include <QStyledItemDelegate>

#include <functional>

namespace roamlet
{

/// Draws the rows of the sidebar. Symbols, and the words after them, stand in one column each.
class SidebarDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The icon of a source's browser, for a display with this pixel ratio.
    using SourceIcon = std::function<QIcon(const Source &source, qreal devicePixelRatio)>;

    SidebarDelegate(SourceIcon sourceIcon, QObject *parent);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    SourceIcon m_sourceIcon;
};

} // namespace roamlet
