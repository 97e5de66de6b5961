// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/ElidedLabel.h"

#include "App/Look/ForeignText.h"
#include "App/Look/Painting.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace roamlet
{

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ElidedLabel::setText(const QString &text, const QString &strong, const QString &after)
{
    const QString whole = text % strong % after;
    const QString line = ForeignText::inLabel(text);
    const QString strongLine = ForeignText::inLabel(strong);
    const QString afterLine = ForeignText::inLabel(after);
    if (whole == m_text && line == m_line && strongLine == m_strong && afterLine == m_after)
        return;
    m_text = whole;
    m_line = line;
    m_strong = strongLine;
    m_after = afterLine;
    QStringList parts{m_line, m_strong, m_after};
    parts.removeAll(QString());
    // Qt tells screen readers of the change.
    setAccessibleName(parts.join(u' '));
    updateGeometry();
    update();
}

void ElidedLabel::setSign(const QIcon &sign)
{
    m_sign = sign;
    updateGeometry();
    update();
}

QFont ElidedLabel::strongFont() const
{
    QFont result = font();
    result.setBold(true);
    return result;
}

int ElidedLabel::signWidth() const
{
    return m_sign.isNull() ? 0 : fontMetrics().height() + (fontMetrics().height() / 3);
}

int ElidedLabel::textWidth() const
{
    const QFontMetrics strong(strongFont());
    int width = 0;
    for (const auto &[part, metrics] :
         {std::pair(m_line, fontMetrics()), std::pair(m_strong, strong), std::pair(m_after, fontMetrics())}) {
        if (part.isEmpty())
            continue;
        width += (width > 0 ? fontMetrics().horizontalAdvance(u' ') : 0) + metrics.horizontalAdvance(part);
    }
    return width;
}

QSize ElidedLabel::sizeHint() const
{
    return {signWidth() + textWidth() + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(u'…') * 2, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const Qt::Alignment alignment =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    const auto draw = [&](const QString &text, int start) {
        const QRect place(start, 0, width() - start, height());
        readInOwnDirection(painter, text);
        painter.drawText(QStyle::visualRect(layoutDirection(), rect(), place),
                         static_cast<int>(alignment) | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
    };
    if (!m_sign.isNull()) {
        const QRect place(0, 0, height(), height());
        m_sign.paint(&painter, QStyle::visualRect(layoutDirection(), rect(), place));
    }
    int start = signWidth();
    for (const auto &[part, partFont] :
         {std::pair(m_line, font()), std::pair(m_strong, strongFont()), std::pair(m_after, font())}) {
        if (part.isEmpty())
            continue;
        painter.setFont(partFont);
        draw(part, start);
        start += painter.fontMetrics().horizontalAdvance(part) + fontMetrics().horizontalAdvance(u' ');
    }
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    if (!toolTip().isEmpty())
        return QLabel::event(event);
    if (signWidth() + textWidth() > width()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), ForeignText::wrappedToolTip(m_text),
                           this);
    }
    return true;
}

} // namespace roamlet
