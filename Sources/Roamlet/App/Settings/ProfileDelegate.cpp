// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/ProfileDelegate.h"

#include "App/Look/Look.h"
#include "App/Look/Painting.h"
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

Look lookOf(const QStyleOptionViewItem &option)
{
    return option.widget != nullptr ? Look::of(*option.widget) : Look(option.palette, option.font);
}

/// The row without the room that it has when it is lifted.
QRect innerRect(const QStyleOptionViewItem &option, const Measures &measures)
{
    const int room = measures.lift + measures.boxPadding;
    return option.rect.adjusted(room, 0, -room, 0);
}

} // namespace

void ProfileDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const Look look = lookOf(item);
    const Measures &measures = look.measures;
    const QRect inner = innerRect(item, measures);
    const auto visual = [&item](const QRect &place) {
        return QStyle::visualRect(item.direction, item.rect, place);
    };
    QRect icon(inner.left(), inner.top(), measures.iconSide, inner.height());
    symbolIcon(u"line.3.horizontal"_s, look.card.quiet).paint(painter, visual(icon), Qt::AlignCenter);
    icon.translate(measures.iconSide + measures.gapAfterIcon, 0);
    int indent = icon.left() - inner.left();
    if (!item.icon.isNull()) {
        item.icon.paint(painter, visual(icon), Qt::AlignCenter);
        indent += measures.iconSide + measures.gapAfterIcon;
    }

    const QRect control = switchRect(item);
    QRect line = inner.adjusted(indent, 0, -control.width() - measures.gapAfterIcon, 0);
    const QString note = index.data(Qt::ToolTipRole).toString();
    const QFontMetrics small(look.smallFont);
    const int height = item.fontMetrics.height() + (note.isEmpty() ? 0 : small.height());
    line.setTop(inner.top() + (inner.height() - height) / 2);
    const Qt::Alignment alignment = QStyle::visualAlignment(item.direction, Qt::AlignLeft | Qt::AlignVCenter);
    const auto draw = [&](const QString &words, const QFont &font, const QColor &ink) {
        painter->setFont(font);
        line.setHeight(painter->fontMetrics().height());
        painter->setPen(ink);
        readInOwnDirection(*painter, words);
        painter->drawText(visual(line), static_cast<int>(alignment.toInt()) | Qt::TextSingleLine,
                          painter->fontMetrics().elidedText(words, Qt::ElideRight, line.width()));
        line.translate(0, line.height());
    };
    painter->save();
    draw(item.text, item.font, look.card.ink);
    if (!note.isEmpty())
        draw(note, look.smallFont, look.card.quiet);
    painter->restore();

    SwitchLook{.isOn = item.checkState == Qt::Checked,
               .isEnabled = index.flags().testFlag(Qt::ItemIsUserCheckable),
               .hasFocus = false,
               .direction = item.direction}
        .paint(*painter, QRectF(control), look);
}

QSize ProfileDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex & /*index*/) const
{
    const Measures measures = lookOf(option).measures;
    // As wide as the list; a name that does not fit is cut.
    return {measures.sidebarWidth / 2, measures.settingsRowHeight};
}

bool ProfileDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    bool isTurned = false;
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QPoint position = mouse->position().toPoint();
        isTurned = mouse->button() == Qt::LeftButton && option.rect.contains(position) &&
                   !handleRect(option).contains(position);
    } else if (event->type() == QEvent::KeyPress) {
        isTurned = static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space;
    }
    if (!isTurned)
        return false;
    const bool isOn = index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    return model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

int ProfileDelegate::widthForNote(const QString &note, const Look &look)
{
    const Measures &measures = look.measures;
    // The handle, the icon and the switch have a gap after them or before.
    return 2 * (measures.lift + measures.boxPadding) + 2 * (measures.iconSide + measures.gapAfterIcon) +
           QFontMetrics(look.smallFont).horizontalAdvance(note) + measures.gapAfterIcon +
           SwitchLook::size(measures).width();
}

QRect ProfileDelegate::switchRect(const QStyleOptionViewItem &option)
{
    const Measures measures = lookOf(option).measures;
    return QStyle::alignedRect(option.direction, Qt::AlignRight | Qt::AlignVCenter,
                               SwitchLook::size(measures), innerRect(option, measures));
}

QRect ProfileDelegate::handleRect(const QStyleOptionViewItem &option)
{
    const Measures measures = lookOf(option).measures;
    QRect handle = option.rect;
    handle.setRight(innerRect(option, measures).left() + measures.iconSide);
    return QStyle::visualRect(option.direction, option.rect, handle);
}

} // namespace roamlet
