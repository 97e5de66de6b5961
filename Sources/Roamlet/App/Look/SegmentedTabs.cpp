// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/SegmentedTabs.h"

#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Look/Symbol.h"

#include <QPainter>
#include <QStyle>

namespace roamlet
{

SegmentedTabs::SegmentedTabs(QWidget *parent) : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

int SegmentedTabs::addSection(const QString &symbol, const QString &text)
{
    const int index = addTab(symbolIcon(symbol), text);
    setTabData(index, symbol);
    return index;
}

QSize SegmentedTabs::tabSizeHint(int index) const
{
    const Look look = Look::of(*this);
    const Measures &measures = look.measures;
    // As bold as it gets: nothing moves when another section is shown.
    const int text = QFontMetrics(look.headingFont).horizontalAdvance(tabText(index));
    return {measures.iconSide + measures.gapAfterIcon + text + 2 * (measures.boxPadding + measures.tabInset),
            measures.tabHeight + 2 * measures.tabInset};
}

QSize SegmentedTabs::minimumTabSizeHint(int index) const
{
    return tabSizeHint(index);
}

void SegmentedTabs::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    const Measures &measures = look.measures;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.tabTrack);
    painter.drawRoundedRect(rect(), measures.boxRadius, measures.boxRadius);
    const int inset = measures.tabInset;
    for (int i = 0; i < count(); ++i) {
        const QRect key = tabRect(i).adjusted(inset, inset, -inset, -inset);
        const bool isShown = i == currentIndex();
        const bool isHovered = underMouse() && tabRect(i).contains(mapFromGlobal(QCursor::pos()));
        if (isShown) {
            painter.setPen(QPen(look.page.hairline, hairline(painter)));
            painter.setBrush(look.tab);
        } else {
            painter.setPen(Qt::NoPen);
            painter.setBrush(isHovered ? QBrush(look.veil) : QBrush(Qt::NoBrush));
        }
        painter.drawRoundedRect(key, measures.fieldRadius, measures.fieldRadius);

        const QColor ink = isShown ? look.page.ink : look.tabQuiet;
        painter.setPen(ink);
        painter.setFont(isShown ? look.headingFont : font());
        const int text = painter.fontMetrics().horizontalAdvance(tabText(i));
        const int width = measures.iconSide + measures.gapAfterIcon + text;
        const QRect contents(key.center().x() - width / 2, key.top(), width, key.height());
        const auto visual = [&](const QRect &place) {
            return QStyle::visualRect(layoutDirection(), contents, place);
        };
        const QRect icon(contents.left(), contents.top(), measures.iconSide, contents.height());
        symbolIcon(tabData(i).toString(), ink).paint(&painter, visual(icon), Qt::AlignCenter);
        painter.drawText(visual(contents.adjusted(measures.iconSide + measures.gapAfterIcon, 0, 0, 0)),
                         Qt::AlignCenter | Qt::TextSingleLine, tabText(i));
        if (isShown && showsFocus(*this))
            drawFocusRing(painter, key, measures.fieldRadius, look);
    }
}

} // namespace roamlet
