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

    /// How far the row that is painted next is lit by the pointer, and its arrow turned since the section was
    /// opened or folded.
    struct Motion {
        double lit = 1;
        double turned = 1;
    };
    void setMotion(const Motion &motion) { m_motion = motion; }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// Of a heading always, of another row only where its words are cut.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    SourceIcons &m_sourceIcons;
    Motion m_motion;
};

} // namespace roamlet
