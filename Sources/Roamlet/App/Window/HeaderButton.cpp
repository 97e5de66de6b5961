// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/HeaderButton.h"

#include "App/Look/Contrast.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Look/Symbol.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionToolButton>

namespace roamlet
{

HeaderButton::HeaderButton(const QString &symbol, const QString &name, QWidget *parent)
    : QToolButton(parent), m_symbol(symbol), m_lighting(*this, Fade::hoverTime)
{
    setText(name);
    setToolTip(name);
    setAccessibleName(name);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setPopupMode(InstantPopup);
    setAttribute(Qt::WA_Hover);
}

int HeaderButton::padding() const
{
    return Look::of(*this).measures.toolButtonPadding;
}

QColor HeaderButton::ink() const
{
    const Look look = Look::of(*this);
    return isEnabled() ? look.list.ink : look.list.faint;
}

QSize HeaderButton::sizeHint() const
{
    const Measures measures(font());
    return {measures.iconSide + (2 * padding()), measures.controlHeight};
}

bool HeaderButton::event(QEvent *event)
{
    if (event->type() == QEvent::HoverEnter)
        m_lighting.begin();
    return QToolButton::event(event);
}

void HeaderButton::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const Look look = Look::of(*this);
    const int radius = look.measures.rowRadius;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (isEnabled() && (isDown() || option.state.testFlag(QStyle::State_MouseOver))) {
        painter.setBrush(isDown() ? look.list.pressed
                                  : mixedColor(look.list.base, look.list.hover, m_lighting.share()));
        painter.drawRoundedRect(rect(), radius, radius);
    }
    if (showsFocus(*this))
        drawFocusRing(painter, rect(), radius, look);
    paintContent(painter, rect().adjusted(padding(), 0, -padding(), 0));
}

void HeaderButton::paintContent(QPainter &painter, const QRect &content)
{
    const QRect place = squareIn(content, content.left(), Measures(font()).iconSide);
    paintSymbol(painter, QStyle::visualRect(layoutDirection(), content, place));
}

void HeaderButton::paintSymbol(QPainter &painter, const QRect &place)
{
    symbolIcon(m_symbol, ink()).paint(&painter, place);
}

} // namespace roamlet
