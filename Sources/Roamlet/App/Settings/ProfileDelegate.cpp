// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/ProfileDelegate.h"

#include "App/Look/Look.h"
#include "App/Look/Switch.h"
#include "App/Look/Symbol.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int margin = 10;
constexpr int handleSide = 14;

} // namespace

void ProfileDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const Look look = Look::of(*item.widget);
    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    const Ground &selected = item.widget->isActiveWindow() ? look.list.selected : look.list.selectedInactive;
    const Ground &row = isSelected ? selected : look.list;
    item.palette.setColor(QPalette::Highlight, row.base);
    const QStyle *style = item.widget->style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);

    const QRect inner = item.rect.adjusted(margin, 0, -margin, 0);
    const QRect handle = QStyle::alignedRect(item.direction, Qt::AlignLeft | Qt::AlignVCenter,
                                             QSize(handleSide, handleSide), inner);
    symbolIcon(u"line.3.horizontal"_s, row.quiet).paint(painter, handle);

    const QRect control = switchRect(item);
    const int iconSide = look.measures.iconSide;
    const QRect iconColumn = inner.adjusted(handleSide + margin, 0, 0, 0);
    item.icon.paint(painter, QStyle::alignedRect(item.direction, Qt::AlignLeft | Qt::AlignVCenter,
                                                 QSize(iconSide, iconSide),
                                                 QStyle::visualRect(item.direction, inner, iconColumn)));
    const int indent = handleSide + margin + iconSide + look.measures.gapAfterIcon;
    const QRect name =
        QStyle::visualRect(item.direction, inner, inner.adjusted(indent, 0, -control.width() - margin, 0));
    painter->setPen(row.ink);
    painter->setFont(item.font);
    const Qt::Alignment alignment = QStyle::visualAlignment(item.direction, Qt::AlignLeft | Qt::AlignVCenter);
    painter->drawText(name, static_cast<int>(alignment.toInt()),
                      item.fontMetrics.elidedText(item.text, Qt::ElideRight, name.width()));

    SwitchLook{.isOn = item.checkState == Qt::Checked,
               .isEnabled = index.flags().testFlag(Qt::ItemIsUserCheckable),
               .hasFocus = false,
               .direction = item.direction}
        .paint(*painter, QRectF(control), look);

    if (item.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(item);
        focus.backgroundColor = row.base;
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, item.widget);
    }
}

QSize ProfileDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QSize control = SwitchLook::size(item.fontMetrics);
    // As wide as the list; a name that does not fit is cut.
    return {handleSide + control.width() + 4 * margin, control.height() + margin};
}

bool ProfileDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    bool isTurned = false;
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        isTurned =
            mouse->button() == Qt::LeftButton && switchRect(option).contains(mouse->position().toPoint());
    } else if (event->type() == QEvent::KeyPress) {
        isTurned = static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space;
    }
    if (!isTurned)
        return false;
    const bool isOn = index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    return model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

QRect ProfileDelegate::switchRect(const QStyleOptionViewItem &option)
{
    return QStyle::alignedRect(option.direction, Qt::AlignRight | Qt::AlignVCenter,
                               SwitchLook::size(option.fontMetrics),
                               option.rect.adjusted(margin, 0, -margin, 0));
}

} // namespace roamlet
