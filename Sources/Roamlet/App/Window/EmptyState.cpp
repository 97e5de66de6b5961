// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/EmptyState.h"

#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Look/RoamletStyle.h"
#include "App/Look/Symbol.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

// All in heights of a line.
constexpr double discSize = 5;
constexpr double symbolSize = 2.3;
constexpr double gapBetweenLines = 0.55;
constexpr double gapAfterDisc = 1;

} // namespace

EmptyState::EmptyState(const QString &symbol, const QString &title, QWidget *parent)
    : QScrollArea(parent),
      m_page(new QWidget),
      m_symbol(symbol),
      m_icon(new QLabel(m_page)),
      m_title(new QLabel(title, m_page)),
      m_text(new QLabel(m_page)),
      m_actions(new QHBoxLayout)
{
    m_icon->setAlignment(Qt::AlignCenter);

    m_title->setObjectName(u"emptyStateTitle"_s);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setAlignment(Qt::AlignCenter);
    m_title->setWordWrap(true);

    m_text->setObjectName(u"emptyStateText"_s);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->hide();

    m_actions->addStretch();
    m_actions->addStretch();
    auto *column = new QVBoxLayout(m_page);
    column->setSpacing(0);
    column->addStretch(1);
    column->addWidget(m_icon);
    column->addWidget(m_title);
    column->addWidget(m_text);
    column->addLayout(m_actions);
    column->addStretch(2);

    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(m_page);
    m_page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    m_page->installEventFilter(this);
    // With the keyboard one comes here only where there is something to do.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int /*first*/, int last) { setFocusPolicy(last > 0 ? Qt::TabFocus : Qt::NoFocus); });
    updateLook();
}

bool EmptyState::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::ScreenChangeInternal:
        updateLook();
        break;
    default:
        break;
    }
    if (event->type() != QEvent::Paint)
        return QScrollArea::event(event);
    QPainter painter(this);
    painter.fillRect(rect(), Look::of(*this).list.base);
    if (showsFocus(*this))
        drawFocusRing(painter, rect(), 0, Look::of(*this));
    return true;
}

bool EmptyState::viewportEvent(QEvent *event)
{
    const bool isHandled = QScrollArea::viewportEvent(event);
    if (event->type() == QEvent::Resize)
        makeRoom();
    return isHandled;
}

bool EmptyState::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_page && event->type() == QEvent::LayoutRequest)
        makeRoom();
    return QScrollArea::eventFilter(watched, event);
}

void EmptyState::updateLook()
{
    const Look look = Look::of(*this);
    const int margin = look.measures.alignmentLine;
    const int gap = look.measures.units(gapBetweenLines);
    column().setContentsMargins(margin, margin, margin, margin);
    m_icon->setContentsMargins(0, 0, 0, look.measures.units(gapAfterDisc));
    m_title->setContentsMargins(0, 0, 0, gap);
    m_actions->setContentsMargins(0, gap, 0, 0);
    m_actions->setSpacing(gap);
    if (m_box != nullptr)
        m_box->setContentsMargins(0, gap, 0, gap);
    m_title->setFont(look.titleFont);
    setPaletteColor(*m_title, QPalette::WindowText, look.list.ink);
    setPaletteColor(*m_text, QPalette::WindowText, look.list.quiet);

    const qreal ratio = devicePixelRatioF();
    const int side = look.measures.units(discSize);
    QPixmap disc(QSize(side, side) * ratio);
    disc.setDevicePixelRatio(ratio);
    disc.fill(Qt::transparent);
    QPainter painter(&disc);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.field.base);
    painter.drawEllipse(QRect(0, 0, side, side));
    const int symbol = look.measures.units(symbolSize);
    const int start = (side - symbol) / 2;
    symbolIcon(m_symbol, look.field.quiet, SymbolWeight::Thin)
        .paint(&painter, QRect(start, start, symbol, symbol));
    painter.end();
    m_icon->setPixmap(disc);
}

QVBoxLayout &EmptyState::column() const
{
    return *qobject_cast<QVBoxLayout *>(m_page->layout());
}

void EmptyState::makeRoom()
{
    const QSize room = viewport()->size();
    const Measures measures(font());
    const int margin = measures.alignmentLine;
    QMargins margins = column().contentsMargins();
    int all = column().totalHeightForWidth(room.width()) - margins.top() - margins.bottom() + (2 * margin);
    if (m_icon->isHidden())
        all += m_icon->sizeHint().height();
    const bool hasRoom = all <= room.height();
    m_icon->setVisible(hasRoom);
    margins.setTop(hasRoom ? margin : measures.barPadding);
    margins.setBottom(margins.top());
    column().setContentsMargins(margins);
    m_page->resize(room.width(), std::max(room.height(), column().totalMinimumHeightForWidth(room.width())));
}

void EmptyState::setSymbol(const QString &symbol)
{
    if (symbol == m_symbol)
        return;
    m_symbol = symbol;
    updateLook();
}

void EmptyState::setTitle(const QString &title)
{
    m_title->setText(title);
}

void EmptyState::setText(const QString &text)
{
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
}

void EmptyState::setBox(QWidget *box)
{
    m_box = new QHBoxLayout;
    m_box->addStretch();
    // As wide as it may get, in the middle.
    m_box->addWidget(box, 1);
    m_box->addStretch();
    column().insertLayout(column().indexOf(m_text) + 1, m_box);
    updateLook();
}

QPushButton *EmptyState::addAction(const QString &title, const QString &objectName)
{
    auto *button = new QPushButton(title, m_page);
    button->setObjectName(objectName);
    RoamletStyle::applyTo(*button);
    // Between the two stretches.
    m_actions->insertWidget(m_actions->count() - 1, button);
    return button;
}

QString EmptyState::title() const
{
    return m_title->text();
}

QString EmptyState::text() const
{
    return m_text->text();
}

} // namespace roamlet
