// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/ReloadButton.h"

#include "App/Look/Motion.h"

#include <QPainter>

namespace roamlet
{

using namespace Qt::StringLiterals;

ReloadButton::ReloadButton(QWidget *parent) : HeaderButton(u"arrow.clockwise"_s, tr("Reload"), parent)
{
    setObjectName(u"reloadButton"_s);
    constexpr int oneTurn = 900; // milliseconds
    m_turning.setStartValue(0.0);
    m_turning.setEndValue(360.0);
    m_turning.setDuration(oneTurn);
    connect(&m_turning, &QVariantAnimation::valueChanged, this, [this] {
        // What the desktop wants may become known late, or change.
        if (!isMotionWanted(*this))
            m_turning.stop();
        update();
    });
    connect(&m_turning, &QVariantAnimation::finished, this, [this] {
        if (m_isReloading && isMotionWanted(*this))
            m_turning.start();
    });
}

void ReloadButton::setReloading(bool isReloading)
{
    m_isReloading = isReloading;
    if (isReloading && !isTurning() && isMotionWanted(*this))
        m_turning.start();
    update();
}

void ReloadButton::paintSymbol(QPainter &painter, const QRect &place)
{
    painter.save();
    if (isTurning()) {
        const QPointF middle = QRectF(place).center();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.translate(middle);
        painter.rotate(m_turning.currentValue().toReal());
        painter.translate(-middle);
    } else if (m_isReloading) {
        painter.setOpacity(0.5);
    }
    HeaderButton::paintSymbol(painter, place);
    painter.restore();
}

} // namespace roamlet
