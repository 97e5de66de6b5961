// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/BoxedList.h"

#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"

#include <QAbstractButton>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace roamlet
{

BoxedList::BoxedList(QWidget *parent) : QWidget(parent), m_rows(new QVBoxLayout(this))
{
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(0);
}

void BoxedList::addRow(QWidget *row)
{
    m_rows->addWidget(row);
}

void BoxedList::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    const qreal radius = look.measures.boxRadius;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal line = hairline(painter);
    QPainterPath box;
    box.addRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
    painter.fillPath(box, look.card.base);

    bool isFirst = true;
    for (int i = 0; i < m_rows->count(); ++i) {
        const QWidget *row = m_rows->itemAt(i)->widget();
        if (row == nullptr || row->isHidden())
            continue;
        const QRectF place = row->geometry();
        if (row->testAttribute(Qt::WA_Hover) && row->underMouse() && row->isEnabled()) {
            const auto *button = qobject_cast<const QAbstractButton *>(row);
            painter.save();
            painter.setClipPath(box);
            painter.fillRect(place, button != nullptr && button->isDown() ? look.veil : look.rowVeil);
            painter.restore();
        }
        if (!isFirst)
            painter.fillRect(QRectF(place.left(), place.top(), place.width(), line), look.card.hairline);
        isFirst = false;
        if (showsFocus(*row)) {
            constexpr qreal inside = 1;
            drawFocusRing(painter, place.adjusted(inside, inside, -inside, -inside), radius - inside, look);
        }
    }
    painter.setPen(QPen(look.card.hairline, line));
    painter.drawPath(box);
}

} // namespace roamlet
