// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableHeader.h"

#include "App/Tables/TableModel.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// In widths of a digit: what the title keeps when the others want more than there is.
constexpr int narrowestTitle = 16;
constexpr int narrowestColumn = 3;

} // namespace

TableHeader::TableHeader(const TableModel &model, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent), m_model(model)
{
    setSectionsMovable(true);
    setFirstSectionMovable(true);
    setStretchLastSection(false);
    setHighlightSections(false);
    setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    setMinimumSectionSize(narrowestColumn * fontMetrics().horizontalAdvance(u'0'));
    // Fitting a column to its content looks at the rows in sight only.
    setResizeContentsPrecision(0);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(u"Columns"_s);
    setAccessibleDescription(
        u"The arrow keys choose a column, move it with Ctrl and resize it with Shift. Space opens the menu."_s);
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
        int width = suitableWidth(column);
        if (layout.widths.contains(identifier)) {
            width = std::max(layout.widths.value(identifier), minimumSectionSize());
            m_chosenWidths.insert(column, width);
        }
        // A hidden column has no size that could be set.
        setSectionHidden(column, false);
        resizeSection(column, width);
        setSectionHidden(column, column != titleColumn && layout.hidden.contains(identifier));
    }
    for (int place = 0; place < count(); ++place)
        moveSection(visualIndex(static_cast<int>(identifiers.indexOf(named[place]))), place);
    fillWithTitle();
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
    fillWithTitle();
    Q_EMIT columnLayoutEdited();
}

QSize TableHeader::sizeHint() const
{
    constexpr int air = 6;
    return QHeaderView::sizeHint() + QSize(0, air);
}

int TableHeader::suitableWidth(int column) const
{
    return m_model.columns()[column].width * fontMetrics().horizontalAdvance(u'0');
}

void TableHeader::fillWithTitle()
{
    if (count() == 0 || m_chosenWidths.contains(titleColumn))
        return;
    const int others = length() - sectionSize(titleColumn);
    resizeSection(titleColumn, std::max(viewport()->width() - others,
                                        narrowestTitle * fontMetrics().horizontalAdvance(u'0')));
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
    fillWithTitle();
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
    const int next = neighbour(column, isRightToLeft() ? -direction : direction);
    m_isDragging = true;
    if (modifiers.testFlag(Qt::ControlModifier))
        moveSection(visualIndex(column), visualIndex(next));
    else if (modifiers.testFlag(Qt::ShiftModifier))
        resizeSection(
            column, std::max(sectionSize(column) + direction * grain * fontMetrics().horizontalAdvance(u'0'),
                             minimumSectionSize()));
    else
        m_keyColumn = next;
    finishDragging();
    viewport()->update();
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
}

void TableHeader::focusOutEvent(QFocusEvent *event)
{
    QHeaderView::focusOutEvent(event);
    viewport()->update();
}

void TableHeader::paintEvent(QPaintEvent *event)
{
    QHeaderView::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(viewport());
    QStyleOptionFocusRect option;
    option.initFrom(viewport());
    option.rect =
        QRect(sectionViewportPosition(keyColumn()), 0, sectionSize(keyColumn()), viewport()->height());
    option.state |= QStyle::State_KeyboardFocusChange;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void TableHeader::resizeEvent(QResizeEvent *event)
{
    QHeaderView::resizeEvent(event);
    fillWithTitle();
}

} // namespace roamlet
