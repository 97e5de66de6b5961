// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/BoxedComboBox.h"

#include "App/Look/Chevron.h"
#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"

#include <QPainter>
#include <QStyle>

namespace roamlet
{

BoxedComboBox::BoxedComboBox(QWidget *parent) : QComboBox(parent)
{
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize BoxedComboBox::sizeHint() const
{
    const Measures measures = Look::of(*this).measures;
    return {measures.sidebarWidth, measures.comboBoxHeight};
}

QSize BoxedComboBox::minimumSizeHint() const
{
    const Measures measures = Look::of(*this).measures;
    return {2 * measures.controlHeight, measures.comboBoxHeight};
}

void BoxedComboBox::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    const Measures &measures = look.measures;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal line = hairline(painter);
    const QRectF box = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter.setPen(QPen(look.card.hairline, line));
    painter.setBrush(look.card.base);
    painter.drawRoundedRect(box, measures.boxRadius, measures.boxRadius);
    if (isEnabled() && underMouse()) {
        painter.setBrush(look.rowVeil);
        painter.drawRoundedRect(box, measures.boxRadius, measures.boxRadius);
    }

    const auto visual = [this](const QRect &place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    QRect inner = rect().adjusted(measures.boxPadding, 0, -measures.boxPadding, 0);
    const QRect chevron(inner.right() + 1 - measures.iconSide, 0, measures.iconSide, height());
    drawChevron(painter, visual(chevron), Qt::DownArrow, isEnabled() ? look.card.ink : look.card.faint);
    inner.setRight(chevron.left() - measures.gapAfterIcon);
    if (const QIcon icon = itemIcon(currentIndex()); !icon.isNull()) {
        icon.paint(&painter, visual({inner.left(), 0, measures.iconSide, height()}), Qt::AlignCenter, mode);
        inner.setLeft(inner.left() + measures.iconSide + measures.gapAfterIcon);
    }
    const bool isChosen = currentIndex() >= 0;
    const QColor ink = isChosen ? look.card.ink : look.card.quiet;
    painter.setPen(isEnabled() ? ink : look.card.faint);
    const auto alignment = static_cast<int>(
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter).toInt());
    const QString words = isChosen ? currentText() : placeholderText();
    readInOwnDirection(painter, words);
    painter.drawText(visual(inner), alignment | Qt::TextSingleLine,
                     fontMetrics().elidedText(words, Qt::ElideRight, inner.width()));
    if (showsFocus(*this))
        drawFocusRing(painter, rect(), measures.boxRadius, look);
}

} // namespace roamlet
