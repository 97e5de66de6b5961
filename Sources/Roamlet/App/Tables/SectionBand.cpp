// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/SectionBand.h"

#include "App/Look/Chevron.h"
#include "App/Look/ForeignText.h"
#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Tables/RowDelegate.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace roamlet
{

namespace
{

/// Lengths of a strip in eighteenths of a line of text, in which it was drawn.
struct StripForm {
    qreal tick;
    qreal gap;
};
constexpr qreal grid = 18;
constexpr qreal stripHeight = 14;
/// A bar with the fewest visits, and what those with more have above it.
constexpr qreal leastBar = 3;
constexpr qreal emptyBar = 1.5;
constexpr qreal emptyBarAbove = 0.5;
/// So that a few visits can be seen beside many.
constexpr double flattening = 0.7;

StripForm formOf(const VisitStrip &visits)
{
    constexpr std::size_t week = 7;
    if (visits.unit == VisitStrip::Unit::Hour)
        return {.tick = 3, .gap = 1};
    return visits.ticks.size() <= week ? StripForm{.tick = 5, .gap = 3} : StripForm{.tick = 2, .gap = 1};
}

qreal pixels(qreal units, const Look &look)
{
    return units * look.measures.unit / grid;
}

} // namespace

QRect visitStripPlace(const VisitStrip &visits, const QRect &band, Qt::LayoutDirection direction,
                      int stripEnd, const Look &look)
{
    const StripForm form = formOf(visits);
    const auto count = static_cast<qreal>(visits.ticks.size());
    const int width = qRound(pixels(count * (form.tick + form.gap) - form.gap, look));
    const int height = qRound(pixels(stripHeight, look));
    const QRect logical(band.left() + stripEnd - width, band.top() + ((band.height() - height) / 2), width,
                        height);
    return QStyle::visualRect(direction, band, logical);
}

std::optional<std::size_t> visitTickAt(const VisitStrip &visits, const QPoint &point, const QRect &band,
                                       Qt::LayoutDirection direction, int stripEnd, const Look &look)
{
    if (visits.ticks.empty() || !band.contains(point))
        return {};
    const QRect place = visitStripPlace(visits, band, direction, stripEnd, look);
    const int x = direction == Qt::RightToLeft ? place.right() - point.x() : point.x() - place.left();
    if (x < 0 || x >= place.width())
        return {};
    const StripForm form = formOf(visits);
    const auto tick = static_cast<std::size_t>(x / pixels(form.tick + form.gap, look));
    return std::min(tick, visits.ticks.size() - 1);
}

void SectionBand::paint(QPainter &painter, const QRect &band, Qt::LayoutDirection direction, int stripEnd,
                        const Look &look) const
{
    const Measures &measures = look.measures;
    const auto visual = [&](const QRect &logical) { return QStyle::visualRect(direction, band, logical); };
    const bool isMirrored = direction == Qt::RightToLeft;
    painter.save();
    const Ground &shown = ground != nullptr ? *ground : look.list;
    if (ground == nullptr)
        painter.fillRect(band, look.list.base);
    if (!isFirst)
        paintHairline(painter, band, Qt::TopEdge, look.list.hairline);
    const int arrow = measures.chevronSide;
    drawChevron(painter, visual(squareIn(band, band.left() + measures.gutter, arrow)), opened, direction,
                shown.quiet);

    QRect rest = band.adjusted(measures.alignmentLine, 0, -measures.alignmentLine, 0);
    if (visits != nullptr) {
        const QRect strip = visitStripPlace(*visits, band, Qt::LeftToRight, stripEnd, look);
        rest.setRight(std::min(rest.right(), strip.left() - measures.gapBetweenCells));
    }
    if (!icon.isNull()) {
        const int side = measures.iconSide;
        icon.paint(&painter, visual(squareIn(rest, rest.left(), side)));
        rest.setLeft(rest.left() + side + measures.gapAfterIcon);
    }
    const QFontMetrics heading(look.headingFont);
    const int countWidth = tabularWidth(look.smallFont, count);
    const int titleWidth =
        std::clamp(rest.width() - measures.gapAfterIcon - countWidth, 0, heading.horizontalAdvance(title));
    painter.setFont(look.headingFont);
    drawMarkedText(painter, visual(QRect(rest.left(), rest.top(), titleWidth, rest.height())), direction,
                   ForeignText::fitted(title, heading, titleWidth), shown.ink);
    painter.setFont(look.smallFont);
    painter.setPen(shown.quiet);
    drawTabularText(painter,
                    visual(QRect(rest.left() + titleWidth + measures.gapAfterIcon, rest.top(), countWidth,
                                 rest.height())),
                    direction, count);
    if (visits == nullptr) {
        painter.restore();
        return;
    }

    const QRect strip = visitStripPlace(*visits, band, direction, stripEnd, look);
    const StripForm form = formOf(*visits);
    const double most = std::max(1, visits->most());
    const qreal ratio = painter.device()->devicePixelRatioF();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // On whole dots of the screen, or thin bars get blurred edges.
    const auto onDots = [ratio](qreal length) { return std::round(length * ratio) / ratio; };
    for (std::size_t i = 0; i < visits->ticks.size(); ++i) {
        const VisitStrip::Tick &tick = visits->ticks[i];
        const bool isLit = litTick == i;
        qreal bottom = stripHeight - emptyBarAbove;
        qreal height = emptyBar;
        QColor color = tick.begin > now || tick.begin >= visits->end ? look.stripToCome : look.stripEmpty;
        if (tick.count > 0) {
            height = leastBar + ((stripHeight - leastBar) * std::pow(tick.count / most, flattening));
            bottom = stripHeight;
            color = look.strip;
        }
        const qreal left = onDots(pixels(static_cast<qreal>(i) * (form.tick + form.gap), look));
        const qreal width = std::max(1 / ratio, onDots(pixels(form.tick, look)));
        const qreal x = isMirrored ? strip.right() + 1 - left - width : strip.left() + left;
        const qreal below = strip.top() + onDots(pixels(bottom, look));
        const qreal above = below - std::max(1 / ratio, onDots(pixels(height, look)));
        painter.setBrush(isLit ? look.accent : color);
        const qreal radius = pixels(tick.count > 0 ? 1 : emptyBar / 2, look);
        painter.drawRoundedRect(QRectF(QPointF(x, above), QPointF(x + width, below)), radius, radius);
    }
    painter.restore();
}

} // namespace roamlet
