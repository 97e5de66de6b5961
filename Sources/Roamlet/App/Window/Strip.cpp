// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/Strip.h"

#include "App/Look/Hairline.h"
#include "App/Look/Motion.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace roamlet
{

namespace
{

// In heights of a line.
constexpr double noticeHeight = 2.3;
constexpr double warningHeight = 3.1;
constexpr double endMargin = 0.6;

} // namespace

Strip::Strip(Tone tone, QWidget *parent) : QWidget(parent), m_tone(tone), m_row(new QHBoxLayout(this))
{
    setVisible(false);
    Strip::updateLook();
    constexpr int slide = 150; // milliseconds
    m_sliding.setDuration(slide);
    m_sliding.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_sliding, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &height) { setMaximumHeight(height.toInt()); });
    connect(&m_sliding, &QVariantAnimation::finished, this, [this] {
        setVisible(m_isOpen);
        setMaximumHeight(QWIDGETSIZE_MAX);
    });
}

void Strip::setOpen(bool isOpen)
{
    if (isOpen == m_isOpen)
        return;
    m_isOpen = isOpen;
    const bool isSeen = parentWidget() != nullptr && parentWidget()->isVisible();
    if (!isSeen || !isMotionWanted(*this)) {
        m_sliding.stop();
        setMaximumHeight(QWIDGETSIZE_MAX);
        setVisible(isOpen);
        return;
    }
    const int now = isVisible() ? height() : 0;
    m_sliding.stop();
    m_sliding.setStartValue(now);
    m_sliding.setEndValue(isOpen ? sizeHint().height() : 0);
    setMaximumHeight(now);
    setVisible(true);
    m_sliding.start();
}

QSize Strip::sizeHint() const
{
    const double least = m_tone == Tone::Warning ? warningHeight : noticeHeight;
    const QSize size = QWidget::sizeHint();
    return {size.width(), std::max(size.height(), Measures(font()).units(least))};
}

bool Strip::event(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        updateLook();
    return QWidget::event(event);
}

void Strip::updateLook()
{
    const Measures measures(font());
    m_row->setContentsMargins(measures.alignmentLine, measures.barPadding, measures.units(endMargin),
                              measures.barPadding);
    m_row->setSpacing(measures.gapAfterIcon);
}

void Strip::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    const Ground &ground = groundOf(look, m_tone);
    QPainter painter(this);
    painter.fillRect(rect(), ground.base);
    paintHairline(painter, rect(), Qt::TopEdge, ground.hairline);
    paintHairline(painter, rect(), Qt::BottomEdge, ground.hairline);
}

} // namespace roamlet
