// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowBubble.h"

#include "App/Look/Look.h"
#include "App/Tables/RowDelegate.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QUrl>

#include <algorithm>

namespace roamlet
{

namespace
{

/// Of the list's width.
constexpr double widestShare = 0.72;
constexpr double heightInLines = 1.5;
constexpr double gapInLines = 1.5;
constexpr double endInLines = 0.75;
constexpr int comingTime = 100; // milliseconds

/// Where the name of the host begins in an address, and how long it is.
std::pair<qsizetype, qsizetype> hostOf(const QString &address)
{
    const QString host = QUrl(address).host();
    const qsizetype begin = host.isEmpty() ? -1 : address.indexOf(host, 0, Qt::CaseInsensitive);
    return begin < 0 ? std::pair<qsizetype, qsizetype>(0, 0) : std::pair(begin, host.size());
}

} // namespace

RowBubble::RowBubble(QWidget *viewport) : QWidget(viewport), m_coming(*this, comingTime)
{
    setObjectName(QStringLiteral("rowBubble"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void RowBubble::showRow(const QString &address, const QString &date)
{
    m_address = address;
    m_date = date;
    m_isWanted = true;
    place();
    raise();
    update();
}

void RowBubble::dismiss()
{
    m_isWanted = false;
    hide();
}

void RowBubble::avoid(const std::optional<QPoint> &pointer)
{
    m_pointer = pointer;
    place();
}

QRect RowBubble::placeAt(bool isTheEnd) const
{
    const Look look = Look::of(*parentWidget());
    const QFontMetrics metrics(look.smallFont);
    const QRect space = parentWidget()->rect();
    const int address = metrics.horizontalAdvance(m_address);
    const int date =
        m_date.isEmpty() ? 0 : metrics.horizontalAdvance(m_date) + look.measures.units(gapInLines);
    const int wanted = look.measures.alignmentLine + address + date + look.measures.units(endInLines) + 1;
    const int width = std::min(wanted, qRound(space.width() * widestShare));
    const int height = look.measures.units(heightInLines);
    const int left = isTheEnd ? space.width() - width : 0;
    return QStyle::visualRect(layoutDirection(), space,
                              QRect(left, space.bottom() + 1 - height, width, height));
}

void RowBubble::place()
{
    if (!m_isWanted)
        return;
    const int near = Look::of(*parentWidget()).measures.rowHeight;
    const auto isInTheWay = [&](const QRect &place) {
        return m_pointer && place.adjusted(-near, -near, near, near).contains(*m_pointer);
    };
    const QRect leading = placeAt(false);
    m_isAtTheEnd = isInTheWay(leading);
    const QRect chosen = m_isAtTheEnd ? placeAt(true) : leading;
    setGeometry(chosen);
    setVisible(!isInTheWay(chosen));
}

QString RowBubble::shownAddress(int width) const
{
    return QFontMetrics(Look::of(*parentWidget()).smallFont).elidedText(m_address, Qt::ElideMiddle, width);
}

void RowBubble::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_coming.begin();
}

void RowBubble::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*parentWidget());
    const Measures &measures = look.measures;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    QPainter painter(this);
    painter.setOpacity(m_coming.share());
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(0.5, 0.5, -0.5, 0.5);
    const qreal radius = measures.fieldRadius;
    // Only the corner that points into the list is round.
    const bool isRoundAtTheRight = m_isAtTheEnd == isMirrored;
    QPainterPath outline;
    outline.addRoundedRect(
        body.adjusted(isRoundAtTheRight ? -2 * radius : 0, 0, isRoundAtTheRight ? 0 : 2 * radius, 2 * radius),
        radius, radius);
    painter.setPen(QPen(look.outline, 1));
    painter.setBrush(look.card.base);
    painter.drawPath(outline);

    painter.setFont(look.smallFont);
    const QFontMetrics metrics(look.smallFont);
    const QRect inside = rect().adjusted(measures.alignmentLine, 1, -measures.units(endInLines), 0);
    const int dateWidth = m_date.isEmpty() ? 0 : metrics.horizontalAdvance(m_date);
    const int gap = m_date.isEmpty() ? 0 : measures.units(gapInLines);
    const QString address = shownAddress(std::max(inside.width() - dateWidth - gap, 0));
    const auto draw = [&](int x, const QString &text, const QColor &ink) {
        const int width = metrics.horizontalAdvance(text);
        const QRect place =
            QStyle::visualRect(layoutDirection(), rect(), QRect(x, inside.top(), width, inside.height()));
        drawMarkedText(painter, place, layoutDirection(), text, ink);
    };
    // An address reads from left to right in every language.
    const auto [begin, length] = hostOf(address);
    const int addressWidth = metrics.horizontalAdvance(address);
    const QRect addressPlace = QStyle::visualRect(
        layoutDirection(), rect(), QRect(inside.left(), inside.top(), addressWidth, inside.height()));
    int x = addressPlace.left();
    for (const auto &[part, ink] : {std::pair(address.first(begin), look.card.quiet),
                                    std::pair(address.sliced(begin, length), look.card.ink),
                                    std::pair(address.sliced(begin + length), look.card.quiet)}) {
        const int width = metrics.horizontalAdvance(part);
        drawMarkedText(painter, QRect(x, inside.top(), width, inside.height()), Qt::LeftToRight, part, ink);
        x += width;
    }
    if (!m_date.isEmpty())
        draw(inside.left() + addressWidth + gap, m_date, look.card.quiet);
}

} // namespace roamlet
