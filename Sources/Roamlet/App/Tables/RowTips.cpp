// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowTips.h"

#include "App/Look/ForeignText.h"
#include "App/Tables/RowBubble.h"
#include "App/Tables/RowDelegate.h"
#include "App/Tables/TableModel.h"
#include "App/Tables/TableView.h"

#include <QCoreApplication>
#include <QCursor>
#include <QToolTip>

#include <chrono>

namespace roamlet
{

namespace
{

/// How long the pointer rests before the bubble tells about a row.
constexpr std::chrono::milliseconds bubbleDelay{300};
/// Of so many selected rows there is no one to tell about.
constexpr int severalRows = 3;

} // namespace

RowTips::RowTips(TableView &view, const RowDelegate &delegate)
    : QObject(&view),
      m_view(view),
      m_delegate(delegate),
      m_bubble(*new RowBubble(view.viewport())),
      m_lighting(*view.viewport(), Fade::hoverTime, [this] { m_view.updateRow(m_hovered); })
{
    m_wait.setSingleShot(true);
    m_wait.setInterval(bubbleDelay);
    connect(&m_wait, &QTimer::timeout, this, [this] { tellOf(m_hovered); });
}

double RowTips::lit(const QModelIndex &index) const
{
    const bool isHovered = m_hovered.isValid() && m_hovered == index.siblingAtColumn(0);
    return isHovered ? m_lighting.share() : 0;
}

std::optional<std::size_t> RowTips::litTick(const QModelIndex &section) const
{
    const QModelIndex first = section.siblingAtColumn(0);
    if (m_isPointerUsed && m_hovered.isValid() && m_hovered == first)
        return m_hoveredTick;
    const QModelIndex row = m_isPointerUsed ? QModelIndex(m_hovered) : m_view.currentIndex();
    if (!row.isValid() || row.parent() != first)
        return {};
    const TableModel &model = m_view.tableModel();
    const std::optional date = model.rowAt(row).date;
    return date ? model.tree()->visits(TableModel::numberOf(section)).tickAt(*date) : std::nullopt;
}

void RowTips::movePointer(const QPoint &point)
{
    m_isPointerUsed = true;
    setHovered(m_view.indexAt(point), m_view.rowPainter().tickAt(point));
    m_bubble.avoid(point);
}

void RowTips::leave()
{
    setHovered({}, {});
    m_bubble.dismiss();
    m_bubble.avoid({});
}

void RowTips::followRows()
{
    // Qt moves what lies in the viewport together with the rows.
    m_bubble.place();
    const QWidget &viewport = *m_view.viewport();
    if (!m_isPointerUsed || !viewport.underMouse())
        return;
    const QPoint point = viewport.mapFromGlobal(QCursor::pos());
    setHovered(m_view.indexAt(point), m_view.rowPainter().tickAt(point));
}

void RowTips::useKeys()
{
    m_isPointerUsed = false;
    setHovered({}, {});
    m_bubble.avoid({});
}

void RowTips::setHovered(const QModelIndex &index, std::optional<std::size_t> tick)
{
    const QModelIndex first = index.siblingAtColumn(0);
    const bool isSameRow = m_hovered == first;
    if (isSameRow && m_hoveredTick == tick)
        return;
    m_view.updateRow(m_hovered);
    m_hovered = first;
    m_hoveredTick = tick;
    m_view.updateRow(m_hovered);
    if (isSameRow)
        return;
    m_lighting.begin();
    if (m_hovered.isValid())
        m_wait.start();
    else
        m_wait.stop();
}

bool RowTips::areSeveralSelected() const
{
    int selected = 0;
    for (const QItemSelectionRange &range : m_view.selectionModel()->selection()) {
        selected += range.height();
        if (selected >= severalRows)
            return true;
    }
    return false;
}

void RowTips::tellOf(const QModelIndex &index)
{
    const TableModel &model = m_view.tableModel();
    if (!index.isValid() || model.rowAt(index).kind != TableRow::Kind::Link || areSeveralSelected()) {
        m_bubble.dismiss();
        return;
    }
    const TableRow &row = model.rowAt(index);
    m_bubble.showRow(ForeignText::oneLine(row.url),
                     row.date ? model.localText().fullDate(*row.date) : QString());
}

void RowTips::followSelection()
{
    if (areSeveralSelected())
        m_bubble.dismiss();
}

void RowTips::fallSilent()
{
    m_bubble.dismiss();
}

void RowTips::loseFocus()
{
    // What is told of the row under the pointer stays.
    if (!m_hovered.isValid())
        m_bubble.dismiss();
}

void RowTips::place()
{
    m_bubble.place();
}

void RowTips::showToolTip(const QPoint &point, const QPoint &onScreen) const
{
    const QModelIndex index = m_view.indexAt(point);
    const TableModel &model = m_view.tableModel();
    if (const std::optional tick = m_view.rowPainter().tickAt(point)) {
        const VisitStrip &visits = *m_view.rowPainter().stripOf(index);
        const VisitStrip::Tick &shown = visits.ticks[*tick];
        // An hour that clocks leave out, or a day that has a section of its own.
        if (shown.begin == shown.end || shown.begin >= visits.end) {
            QToolTip::hideText();
            return;
        }
        const LocalText &local = model.localText();
        const QString when = visits.unit == VisitStrip::Unit::Hour ? local.hour(static_cast<int>(*tick))
                                                                   : local.day(shown.begin);
        //: An hour or a day, and how many pages were visited then: "13:00 to 14:00, 12".
        const QString words =
            QCoreApplication::translate("roamlet::RowTips", "%1, %2").arg(when, local.number(shown.count));
        QToolTip::showText(onScreen, words, m_view.viewport());
        return;
    }
    // A tooltip that repeats what can be read already only stands in the way.
    const QRect cell = m_view.visualRect(index);
    const bool isDate =
        index.isValid() && model.columns()[index.column()].content == TableColumn::Content::Date;
    const bool isCut = index.isValid() && !model.isBand(index) && m_delegate.isCut(index, cell.width());
    if (isDate || isCut)
        QToolTip::showText(onScreen, index.data(Qt::ToolTipRole).toString(), m_view.viewport(), cell);
    else
        QToolTip::hideText();
}

} // namespace roamlet
