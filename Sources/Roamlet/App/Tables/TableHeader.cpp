// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableHeader.h"

#include "App/Look/Chevron.h"
#include "App/Look/ForeignText.h"
#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Tables/RowDelegate.h"
#include "App/Tables/TableModel.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// In lines of text.
constexpr double narrowTitle = 12;
/// Where even the shortest names of sources leave no more.
constexpr double narrowestTitle = 8;
/// What longer names of sources leave to the titles, and how far they reach themselves.
constexpr double titleBesideNames = 16;
constexpr double widestName = 16;
constexpr double widestTitleInLines = 44;
constexpr double narrowestColumn = 1.5;
constexpr double narrowList = 36;
constexpr double leastDateWidth = 6.6;
constexpr double leastVisitsWidth = 3.4;

} // namespace

TableHeader::TableHeader(const TableModel &model, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent), m_model(model), m_look(Look::of(*this))
{
    setSectionsMovable(true);
    setFirstSectionMovable(true);
    setStretchLastSection(false);
    setHighlightSections(false);
    setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    // Fitting a column to its content looks at the rows in sight only.
    setResizeContentsPrecision(0);
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    updateMinimum();
    setAccessibleName(tr("Columns"));
    setAccessibleDescription(tr(
        "The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu."));
    connect(this, &QHeaderView::sectionResized, this, [this](int column, int /*before*/, int width) {
        if (m_isDragging) {
            m_chosenWidths.insert(column, width);
            m_isEdited = true;
        }
    });
    connect(this, &QHeaderView::sectionMoved, this, [this] { m_isEdited |= m_isDragging; });
}

void TableHeader::setColumnLayout(const ColumnLayout &layout)
{
    QStringList identifiers;
    for (const TableColumn &column : m_model.columns())
        identifiers.append(column.identifier);
    // What the layout names comes first; a column that is newer than the layout stays behind its neighbour.
    QStringList named = layout.order;
    named.removeIf([&identifiers](const QString &identifier) { return !identifiers.contains(identifier); });
    for (qsizetype i = 0; i < identifiers.size(); ++i) {
        if (!named.contains(identifiers[i]))
            named.insert(i == 0 ? 0 : named.indexOf(identifiers[i - 1]) + 1, identifiers[i]);
    }

    m_chosenWidths.clear();
    for (int column = 0; column < count(); ++column) {
        const QString &identifier = identifiers[column];
        if (layout.widths.contains(identifier))
            m_chosenWidths.insert(column, std::max(layout.widths.value(identifier), minimumSectionSize()));
        // A hidden column has no size that could be set.
        setSectionHidden(column, false);
        resizeSection(column, wantedWidth(column));
        setSectionHidden(column, column != titleColumn && layout.hidden.contains(identifier));
    }
    for (int place = 0; place < count(); ++place)
        moveSection(visualIndex(static_cast<int>(identifiers.indexOf(named[place]))), place);
    arrange();
}

ColumnLayout TableHeader::columnLayout() const
{
    ColumnLayout layout;
    for (int place = 0; place < count(); ++place) {
        const int column = logicalIndex(place);
        const QString &identifier = m_model.columns()[column].identifier;
        layout.order.append(identifier);
        if (isSectionHidden(column))
            layout.hidden.insert(identifier);
        if (m_chosenWidths.contains(column))
            layout.widths.insert(identifier, m_chosenWidths.value(column));
    }
    return layout;
}

void TableHeader::setColumnShown(int column, bool isShown)
{
    if (column == titleColumn)
        return;
    setSectionHidden(column, !isShown);
    arrange();
    Q_EMIT columnLayoutEdited();
}

QSize TableHeader::sizeHint() const
{
    return {QHeaderView::sizeHint().width(), m_look.measures.columnHeaderHeight};
}

QSize TableHeader::sectionSizeFromContents(int column) const
{
    return {headingWidth(column) + leadingPadding(column) + trailingPadding(column), sizeHint().height()};
}

bool TableHeader::isRightAligned(int column) const
{
    const TableColumn::Content content = m_model.columns()[column].content;
    return content == TableColumn::Content::Date || content == TableColumn::Content::Visits;
}

int TableHeader::edgeColumn(bool isLast) const
{
    for (int i = 0; i < count(); ++i) {
        const int column = logicalIndex(isLast ? count() - 1 - i : i);
        if (!isSectionHidden(column))
            return column;
    }
    return titleColumn;
}

int TableHeader::leadingPadding(int column) const
{
    const Measures &measures = m_look.measures;
    const int padding = column == edgeColumn(false) ? measures.alignmentLine : cellGap() / 2;
    return column == titleColumn ? std::max(0, padding - m_titleIndent) : padding;
}

int TableHeader::trailingPadding(int column) const
{
    const Measures &measures = m_look.measures;
    return column == edgeColumn(true) ? measures.alignmentLine : cellGap() / 2;
}

int TableHeader::contentEnd(int column) const
{
    const int begin = sectionViewportPosition(column);
    const int end = isRightToLeft() ? viewport()->width() - begin : begin + sectionSize(column);
    return end - trailingPadding(column);
}

std::optional<int> TableHeader::dateEnd() const
{
    const auto date = std::ranges::find(m_model.columns(), TableColumn::Content::Date, &TableColumn::content);
    const int column = static_cast<int>(date - m_model.columns().begin());
    if (column == m_model.columns().size() || isSectionHidden(column))
        return {};
    return contentEnd(column);
}

int TableHeader::widestTitle() const
{
    return m_look.measures.units(widestTitleInLines);
}

bool TableHeader::isNarrow() const
{
    return viewport()->width() < m_look.measures.units(narrowList);
}

int TableHeader::cellGap() const
{
    const int gap = m_look.measures.gapBetweenCells;
    return isNarrow() ? gap / 2 : gap;
}

void TableHeader::setTitleIndent(int indent)
{
    m_titleIndent = indent;
}

int TableHeader::headingWidth(int column) const
{
    const Look &look = m_look;
    QFont bold = look.smallFont;
    bold.setBold(true);
    return QFontMetrics(bold).horizontalAdvance(m_model.columns()[column].title) + look.measures.chevronSide;
}

int TableHeader::suitableWidth(int column) const
{
    const TableColumn &shown = m_model.columns()[column];
    const Measures &measures = m_look.measures;
    const int gap = cellGap();
    const int edge = column == edgeColumn(true) ? trailingPadding(column) - (gap / 2) : 0;
    switch (shown.content) {
    case TableColumn::Content::Date:
        return std::max({measures.units(leastDateWidth), m_dateWidth + gap, headingWidth(column) + gap}) +
               edge;
    case TableColumn::Content::Visits:
        return std::max({measures.units(leastVisitsWidth), m_visitsWidth + gap, headingWidth(column) + gap}) +
               edge;
    case TableColumn::Content::Source:
        if (isNarrow())
            return std::max(measures.iconSide, headingWidth(column)) + gap + edge;
        return sourceWidth(column, shown.width * fontMetrics().horizontalAdvance(u'0'), edge) + edge;
    default:
        break;
    }
    return (shown.width * fontMetrics().horizontalAdvance(u'0')) + edge;
}

int TableHeader::sourceWidth(int column, int usual, int edge) const
{
    const Measures &measures = m_look.measures;
    const int label = std::min(m_labelWidth, measures.units(widestName));
    const int whole = measures.iconSide + measures.gapAfterIcon + label + cellGap();
    const bool isTitleChosen = m_chosenWidths.contains(titleColumn);
    int rest =
        viewport()->width() - edge - m_chosenWidths.value(titleColumn, measures.units(titleBesideNames));
    for (int other = 0; other < count(); ++other) {
        if (other != titleColumn && other != column && !isSectionHidden(other))
            rest -= wantedWidth(other);
    }
    // Titles and names give way in turn: a browser's icon says much of its name.
    const int besideNarrowTitle =
        isTitleChosen ? usual : rest + measures.units(titleBesideNames - narrowTitle);
    const int least = headingWidth(column) + cellGap();
    return std::max(std::min(whole, rest), std::clamp(besideNarrowTitle, std::min(least, usual), usual));
}

int TableHeader::wantedWidth(int column) const
{
    const auto chosen = m_chosenWidths.constFind(column);
    return chosen == m_chosenWidths.cend() ? suitableWidth(column) : *chosen;
}

void TableHeader::fitColumns()
{
    const QFont font = m_look.textFont;
    const LocalText &local = m_model.localText();
    if (m_dateWidthOf != local.today()) {
        m_dateWidthOf = local.today();
        m_dateWidth = 0;
        for (const QString &date : local.sampleDates())
            m_dateWidth = std::max(m_dateWidth, tabularWidth(font, date));
    }
    m_visitsWidth = tabularWidth(font, local.number(m_model.tree()->mostVisits()));
    m_labelWidth = 0;
    for (const QString &label : std::as_const(m_sourceLabels))
        m_labelWidth = std::max(m_labelWidth, QFontMetrics(font).horizontalAdvance(label));
    arrange();
}

void TableHeader::arrange()
{
    if (count() == 0 || m_isDragging)
        return;
    const Measures &measures = m_look.measures;
    const int last = edgeColumn(true);
    int others = 0;
    for (int column = 0; column < count(); ++column) {
        if (column != titleColumn && !isSectionHidden(column))
            others += wantedWidth(column);
    }
    const int available = viewport()->width();
    const int narrowest = measures.units(narrowestTitle);
    const int title = m_chosenWidths.contains(titleColumn)
                          ? m_chosenWidths.value(titleColumn)
                          : std::clamp(available - others, narrowest, std::max(narrowest, widestTitle()));
    // What nobody needs goes to the last column, so that there is no hole; what is missing is scrolled to.
    const int rest = std::max(0, available - others - title);
    for (int column = 0; column < count(); ++column) {
        if (isSectionHidden(column))
            continue;
        const int width = column == titleColumn ? title : wantedWidth(column);
        resizeSection(column, width + (column == last ? rest : 0));
    }
}

void TableHeader::updateMinimum()
{
    setMinimumSectionSize(m_look.measures.units(narrowestColumn));
}

void TableHeader::mousePressEvent(QMouseEvent *event)
{
    // Only this button arranges columns. The menu that another one opens takes its release.
    m_isDragging = event->button() == Qt::LeftButton;
    QHeaderView::mousePressEvent(event);
}

void TableHeader::mouseReleaseEvent(QMouseEvent *event)
{
    QHeaderView::mouseReleaseEvent(event);
    finishDragging();
}

void TableHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_isDragging = event->button() == Qt::LeftButton;
    QHeaderView::mouseDoubleClickEvent(event);
    finishDragging();
}

void TableHeader::finishDragging()
{
    m_isDragging = false;
    if (!m_isEdited)
        return;
    m_isEdited = false;
    arrange();
    Q_EMIT columnLayoutEdited();
}

void TableHeader::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT menuRequested(mapToGlobal(rect().bottomLeft()));
        return;
    case Qt::Key_Left:
        followArrow(-1, event->modifiers());
        return;
    case Qt::Key_Right:
        followArrow(1, event->modifiers());
        return;
    default:
        // Not the views' keys: there is no cell to go to.
        event->ignore();
    }
}

int TableHeader::neighbour(int column, int direction) const
{
    for (int place = visualIndex(column) + direction; place >= 0 && place < count(); place += direction) {
        if (!isSectionHidden(logicalIndex(place)))
            return logicalIndex(place);
    }
    return column;
}

void TableHeader::followArrow(int direction, Qt::KeyboardModifiers modifiers)
{
    constexpr int grain = 2;
    const int column = keyColumn();
    // Columns go on and get wider in the direction of reading.
    const int forward = isRightToLeft() ? -direction : direction;
    const int next = neighbour(column, forward);
    m_isDragging = true;
    if (modifiers.testFlag(Qt::ControlModifier))
        moveSection(visualIndex(column), visualIndex(next));
    else if (modifiers.testFlag(Qt::ShiftModifier))
        resizeSection(column,
                      std::max(sectionSize(column) + forward * grain * fontMetrics().horizontalAdvance(u'0'),
                               minimumSectionSize()));
    else
        m_keyColumn = next;
    finishDragging();
    viewport()->update();
    tellFocus();
}

void TableHeader::contextMenuEvent(QContextMenuEvent *event)
{
    Q_EMIT menuRequested(event->reason() == QContextMenuEvent::Mouse ? event->globalPos()
                                                                     : mapToGlobal(rect().bottomLeft()));
}

void TableHeader::focusInEvent(QFocusEvent *event)
{
    QHeaderView::focusInEvent(event);
    viewport()->update();
    tellFocus();
}

void TableHeader::tellFocus()
{
    // To a screen reader the headings are the first children of the view.
    QAccessibleEvent event(parentWidget(), QAccessible::Focus);
    event.setChild(keyColumn());
    QAccessible::updateAccessibility(&event);
}

void TableHeader::focusOutEvent(QFocusEvent *event)
{
    QHeaderView::focusOutEvent(event);
    viewport()->update();
}

void TableHeader::enterEvent(QEnterEvent *event)
{
    QHeaderView::enterEvent(event);
    m_isUnderPointer = true;
    viewport()->update();
}

void TableHeader::leaveEvent(QEvent *event)
{
    QHeaderView::leaveEvent(event);
    m_isUnderPointer = false;
    viewport()->update();
}

void TableHeader::changeEvent(QEvent *event)
{
    QHeaderView::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange &&
        event->type() != QEvent::PaletteChange)
        return;
    m_look = Look::of(*this);
    updateMinimum();
    m_dateWidthOf = {};
    fitColumns();
}

void TableHeader::paintSection(QPainter *painter, const QRect &rect, int column) const
{
    const Look &look = m_look;
    const Measures &measures = look.measures;
    const bool isSorted = isSortIndicatorShown() && sortIndicatorSection() == column;
    const auto visual = [&](const QRect &logical) {
        return QStyle::visualRect(layoutDirection(), rect, logical);
    };
    painter->save();
    painter->setFont(look.smallFont);
    if (isSorted) {
        QFont bold = look.smallFont;
        bold.setBold(true);
        painter->setFont(bold);
    }
    const int indent = column == titleColumn ? m_titleIndent : 0;
    const QRect place = rect.adjusted(leadingPadding(column) + indent, 0, -trailingPadding(column), 0);
    const QColor ink = isSorted ? look.list.ink : look.list.quiet;
    const int arrow = isSorted ? measures.chevronSide : 0;
    const QFontMetrics metrics = painter->fontMetrics();
    const QString text = m_model.columns()[column].title;
    const int width = std::min(metrics.horizontalAdvance(text), std::max(0, place.width() - arrow));
    // Words end where the digits below them end, so the arrow stands before them.
    const int left = isRightAligned(column) ? place.right() + 1 - width : place.left();
    drawMarkedText(*painter, visual(QRect(left, place.top(), width, place.height())), layoutDirection(),
                   ForeignText::fitted(text, metrics, width), ink);
    if (isSorted) {
        const int arrowLeft = isRightAligned(column) ? left - arrow : left + width;
        drawChevron(*painter, visual(squareIn(place, arrowLeft, arrow)),
                    sortIndicatorOrder() == Qt::DescendingOrder ? Qt::DownArrow : Qt::UpArrow, ink);
    }
    if (m_isUnderPointer && column != edgeColumn(true)) {
        const int inset = rect.height() / 4;
        paintHairline(*painter, rect.adjusted(0, inset, 0, -inset),
                      isRightToLeft() ? Qt::LeftEdge : Qt::RightEdge, look.list.hairline);
    }
    painter->restore();
}

void TableHeader::paintEvent(QPaintEvent * /*event*/)
{
    const Look &look = m_look;
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), look.list.base);
    for (int column = 0; column < count(); ++column) {
        if (!isSectionHidden(column)) {
            paintSection(&painter,
                         QRect(sectionViewportPosition(column), 0, sectionSize(column), viewport()->height()),
                         column);
        }
    }
    paintHairline(painter, viewport()->rect(), Qt::BottomEdge, look.list.hairline);
    if (!hasFocus())
        return;
    // Only the keyboard brings it here.
    drawFocusRing(
        painter,
        QRectF(sectionViewportPosition(keyColumn()), 0, sectionSize(keyColumn()), viewport()->height()),
        look.measures.rowRadius, look);
}

void TableHeader::resizeEvent(QResizeEvent *event)
{
    QHeaderView::resizeEvent(event);
    arrange();
}

} // namespace roamlet
