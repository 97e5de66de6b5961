// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/LoadingRows.h"

#include "App/Look/Look.h"

#include <QPainter>
#include <QStyle>

#include <array>

namespace roamlet
{

namespace
{

/// The widths of one row's shapes, in heights of a line, as all lengths here.
struct Shapes {
    double title;
    double domain;
    double date;
    double source;
};
constexpr std::array<Shapes, 5> rows{{{.title = 12.8, .domain = 6.7, .date = 2.1, .source = 2.8},
                                      {.title = 17.2, .domain = 5.0, .date = 2.1, .source = 5.0},
                                      {.title = 10.0, .domain = 7.8, .date = 3.3, .source = 6.1},
                                      {.title = 15.0, .domain = 6.1, .date = 3.3, .source = 3.9},
                                      {.title = 18.9, .domain = 4.4, .date = 4.2, .source = 2.8}}};
constexpr double topMargin = 0.25;
constexpr double thickness = 0.55;
/// From the end of the window to the start of the sources and to the ends of the visits and of the dates.
constexpr double sourceStart = 9.7;
constexpr double visitsEnd = 11.3;
constexpr double dateEnd = 14.7;
constexpr double visits = 0.8;

} // namespace

LoadingRows::LoadingRows(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LoadingRows::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    const Measures &measures = look.measures;
    QPainter painter(this);
    painter.fillRect(rect(), look.list.base);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const int side = measures.iconSide;
    int top = measures.units(topMargin);
    for (int number = 0; top < height(); ++number, top += measures.rowHeight) {
        const Shapes &shapes = rows[static_cast<size_t>(number) % rows.size()];
        painter.setOpacity(1 - (double(top) / height()));
        const auto draw = [&](int start, int width, int barHeight, const QColor &color) {
            const QRect place(start, top + ((measures.rowHeight - barHeight) / 2), width, barHeight);
            painter.setBrush(color);
            const double radius = measures.rowRadius / 2.0;
            painter.drawRoundedRect(QStyle::visualRect(layoutDirection(), rect(), place), radius, radius);
        };
        const auto bar = [&](int start, double width, const QColor &color) {
            draw(start, measures.units(width), measures.units(thickness), color);
        };
        const int title = measures.alignmentLine + side + measures.gapAfterIcon;
        draw(measures.alignmentLine, side, side, look.list.pressed);
        bar(title, shapes.title, look.list.pressed);
        bar(title + measures.units(shapes.title) + measures.gapAfterIcon, shapes.domain, look.list.hover);
        bar(width() - measures.units(dateEnd + shapes.date), shapes.date, look.list.pressed);
        bar(width() - measures.units(visitsEnd + visits), visits, look.list.pressed);
        const int source = width() - measures.units(sourceStart);
        draw(source, side, side, look.list.pressed);
        bar(source + side + measures.gapAfterIcon, shapes.source, look.list.pressed);
    }
}

} // namespace roamlet
