// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/SidebarDelegate.h"

#include "App/Look/Chevron.h"
#include "App/Look/Contrast.h"
#include "App/Look/ForeignText.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Look/SourceIcons.h"
#include "App/Look/Symbol.h"
#include "App/Window/SidebarModel.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// In heights of a line.
constexpr double aboveFirstSection = 0.5;

int gapAbove(const Measures &measures, const QModelIndex &section)
{
    return section.row() == 0 ? measures.units(aboveFirstSection) : measures.gapAroundGroups;
}

/// What is drawn into one row, from its start to its end.
class RowContents
{
public:
    RowContents(QPainter &painter, const QStyleOptionViewItem &option, const Measures &measures, int gap)
        : m_painter(painter),
          m_option(option),
          m_measures(measures),
          m_body(option.rect.adjusted(measures.gapAroundGroups, gap, -measures.gapAroundGroups, 0)),
          m_start(m_body.left() + measures.gapAroundGroups),
          m_end(m_body.right() + 1 - measures.gapAroundGroups)
    {
    }

    const QRect &body() const { return m_body; }

    void addIcon(const QIcon &icon)
    {
        icon.paint(&m_painter, iconPlace(m_start));
        m_start += m_measures.iconSide + m_measures.gapAfterIcon;
    }
    /// The place of an icon before what stands at the end already.
    QRect placeAtEnd()
    {
        const QRect place = iconPlace(m_end - m_measures.iconSide);
        m_end -= m_measures.iconSide + m_measures.gapAfterIcon;
        return place;
    }
    void addText(const QString &text)
    {
        const QRect place(m_start, m_body.top(), m_end - m_start, m_body.height());
        const auto alignment = QStyle::visualAlignment(m_option.direction, Qt::AlignLeft | Qt::AlignVCenter);
        readInOwnDirection(m_painter, text);
        m_painter.drawText(QStyle::visualRect(m_option.direction, m_option.rect, place),
                           static_cast<int>(alignment) | Qt::TextSingleLine,
                           m_painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
    }

private:
    QRect iconPlace(int left) const
    {
        return QStyle::visualRect(m_option.direction, m_option.rect,
                                  squareIn(m_body, left, m_measures.iconSide));
    }

    QPainter &m_painter;
    const QStyleOptionViewItem &m_option;
    const Measures &m_measures;
    QRect m_body;
    int m_start;
    int m_end;
};

} // namespace

SidebarDelegate::SidebarDelegate(SourceIcons &sourceIcons, QObject *parent)
    : QStyledItemDelegate(parent), m_sourceIcons(sourceIcons)
{
}

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const Measures measures(option.font);
    const bool isHeading = index.data(SidebarModel::IsHeadingRole).toBool();
    return {0, measures.sidebarRowHeight + (isHeading ? gapAbove(measures, index) : 0)};
}

void SidebarDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    const Look look = Look::of(*option.widget);
    const RowGround &sidebar = look.sidebar;
    const bool isHeading = index.data(SidebarModel::IsHeadingRole).toBool();
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    // Not State_Active, which a view only sets while it has the keyboard.
    const bool isActive = option.widget->isActiveWindow();
    const Ground &ground = sidebar.of(isSelected, isActive);
    const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
    RowContents row(*painter, option, look.measures, isHeading ? gapAbove(look.measures, index) : 0);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const int radius = look.measures.rowRadius;
    if (isSelected || (isHovered && !isHeading)) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(isSelected ? ground.base : mixedColor(sidebar.base, sidebar.hover, m_motion.lit));
        painter->drawRoundedRect(row.body(), radius, radius);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        // The ring tells that the arrow keys move this selection and no other.
        drawFocusRing(*painter, row.body(), radius, look);
    }

    painter->setPen(ground.ink);
    if (isHeading) {
        const auto *model = qobject_cast<const SidebarModel *>(index.model());
        const std::optional<Source> source = model != nullptr ? model->source(index) : std::nullopt;
        QFont font = source ? look.headingFont : look.smallFont;
        font.setBold(true);
        painter->setFont(font);
        if (source)
            row.addIcon(m_sourceIcons.of(*source));
        else
            painter->setPen(sidebar.quiet);
        if (!index.data(SidebarModel::ProblemRole).toString().isEmpty())
            symbolIcon(u"exclamationmark.triangle"_s, look.warningMark).paint(painter, row.placeAtEnd());
        const bool isOpen = option.state.testFlag(QStyle::State_Open);
        if (!isOpen || isHovered || m_motion.turned < 1)
            drawChevron(*painter, row.placeAtEnd(), isOpen ? m_motion.turned : 1 - m_motion.turned,
                        option.direction, sidebar.quiet);
    } else {
        painter->setFont(option.font);
        QColor color = sidebar.quiet;
        if (isSelected)
            color = isActive ? look.accent : ground.ink;
        // Where the selection is the theme's highlight itself, the accent would not be seen on it.
        const bool isShade = ground.ink == sidebar.ink;
        row.addIcon(
            symbolIcon(index.data(SidebarModel::SymbolRole).toString(), isShade ? color : ground.ink));
    }
    row.addText(index.data(Qt::DisplayRole).toString());
    painter->restore();
}

bool SidebarDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid() ||
        index.data(SidebarModel::IsHeadingRole).toBool())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString words = index.data(Qt::DisplayRole).toString();
    const Measures measures(option.font);
    const int taken = 4 * measures.gapAroundGroups + measures.iconSide + measures.gapAfterIcon;
    if (option.fontMetrics.horizontalAdvance(words) > option.rect.width() - taken)
        QToolTip::showText(event->globalPos(), ForeignText::toolTip({words}), view, option.rect);
    else
        QToolTip::hideText();
    return true;
}

} // namespace roamlet
