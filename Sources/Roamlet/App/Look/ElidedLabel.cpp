// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace roamlet
{

namespace
{

/// More than fits on any screen. Measuring a text of a million characters takes seconds.
constexpr qsizetype longestLine = 1000;

} // namespace

ElidedLabel::ElidedLabel(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ElidedLabel::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_line = text.left(longestLine).simplified();
    setAccessibleName(m_line);
    updateGeometry();
    update();
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_line) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(u'…') * 2, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_line, Qt::ElideRight, width()));
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    if (fontMetrics().horizontalAdvance(m_line) > width()) {
        // Plain text: what comes from a file shall not be taken for HTML.
        const QString tip = u"<qt>" % m_text.left(longestLine).toHtmlEscaped() % u"</qt>";
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), tip, this);
    }
    return true;
}

} // namespace roamlet
