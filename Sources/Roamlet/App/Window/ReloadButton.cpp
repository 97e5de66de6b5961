// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/ReloadButton.h"

#include "App/Look/Symbol.h"

#include <QPainter>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int side = 16;

} // namespace

ReloadButton::ReloadButton(QWidget *parent) : QToolButton(parent)
{
    setObjectName(u"reloadButton"_s);
    setText(u"Reload"_s);
    setToolTip(u"Reload"_s);
    setAccessibleName(u"Reload"_s);
    setIconSize(QSize(side, side));
    setIcon(symbolIcon(u"arrow.clockwise"_s));
    m_turning.setStartValue(0.0);
    m_turning.setEndValue(360.0);
    m_turning.setDuration(1000);
    m_turning.setLoopCount(-1);
    connect(&m_turning, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &degrees) { showTurnedBy(degrees.toReal()); });
}

void ReloadButton::setReloading(bool isReloading)
{
    if (isReloading) {
        m_turning.start();
        return;
    }
    m_turning.stop();
    setIcon(symbolIcon(u"arrow.clockwise"_s));
}

void ReloadButton::showTurnedBy(qreal degrees)
{
    const qreal ratio = devicePixelRatioF();
    QPixmap turned(QSize(side, side) * ratio);
    turned.setDevicePixelRatio(ratio);
    turned.fill(Qt::transparent);
    QPainter painter(&turned);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    constexpr qreal middle = side / 2.0;
    painter.translate(middle, middle);
    painter.rotate(degrees);
    painter.translate(-middle, -middle);
    symbolIcon(u"arrow.clockwise"_s).paint(&painter, QRect(0, 0, side, side));
    painter.end();
    setIcon(QIcon(turned));
}

} // namespace roamlet
