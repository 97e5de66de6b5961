// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/SearchField.h"

#include "App/Look/Look.h"
#include "App/Look/RoamletStyle.h"
#include "App/Look/Symbol.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

namespace roamlet
{

using namespace Qt::StringLiterals;

SearchField::SearchField(QWidget *parent)
    : QLineEdit(parent),
      m_magnifier(addAction(QIcon(), LeadingPosition)),
      m_clear(addAction(QIcon(), TrailingPosition))
{
    setObjectName(u"searchField"_s);
    setFrame(false);
    RoamletStyle::applyTo(*this);
    constexpr int ring = Measures::focusRingWidth;
    setTextMargins(ring, 0, ring, 0);
    setPlaceholderText(tr("Title or URL"));
    setAccessibleName(tr("Search"));
    // A screen reader finds both buttons, so they have texts. Qt's own clear button looks for its icon
    // through the whole theme before the window can show.
    m_magnifier->setText(tr("Search"));
    m_clear->setObjectName(u"clearSearch"_s);
    m_clear->setText(tr("Clear Search"));
    m_clear->setVisible(false);
    connect(m_clear, &QAction::triggered, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, m_clear,
            [this](const QString &text) { m_clear->setVisible(!text.isEmpty()); });
    updateColors();
    alignToMagnifier();
}

void SearchField::alignToMagnifier()
{
    // Also what is read from left to right, in a window that goes the other way.
    setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter));
}

QSize SearchField::sizeOfWidth(int width) const
{
    constexpr int rings = 2 * Measures::focusRingWidth;
    return {width + rings, Measures(font()).controlHeight + rings};
}

QSize SearchField::sizeHint() const
{
    return sizeOfWidth(Measures(font()).searchWidth);
}

QSize SearchField::minimumSizeHint() const
{
    return sizeOfWidth(Measures(font()).narrowSearchWidth);
}

void SearchField::updateColors()
{
    // Not from this field's own palette, which has no ground.
    const Look look = Look::of(*parentWidget());
    // The ground is drawn here, with round corners.
    setPaletteColor(*this, QPalette::Base, look.noGround);
    setPaletteColor(*this, QPalette::PlaceholderText, look.field.quiet);
    m_magnifier->setIcon(symbolIcon(u"magnifyingglass"_s, look.field.quiet));
    m_clear->setIcon(symbolIcon(u"xmark.circle"_s, look.field.quiet));
}

void SearchField::paintEvent(QPaintEvent *event)
{
    const Look look = Look::of(*parentWidget());
    constexpr int ring = Measures::focusRingWidth;
    const QRectF field = QRectF(rect()).adjusted(ring, ring, -ring, -ring);
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const int radius = look.measures.fieldRadius;
        if (hasFocus()) {
            painter.setBrush(look.accent);
            painter.drawRoundedRect(rect(), radius + ring, radius + ring);
        }
        painter.setBrush(hasFocus() ? look.list.base : look.field.base);
        painter.drawRoundedRect(field, radius, radius);
    }
    QLineEdit::paintEvent(event);
}

void SearchField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT searchExpected();
}

void SearchField::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        // Once it is empty, there is nothing left to clear.
        if (text().isEmpty())
            Q_EMIT listRequested();
        else
            clear();
        break;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT listRequested();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void SearchField::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        updateColors();
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        alignToMagnifier();
}

} // namespace roamlet
