// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/EmptyState.h"

#include "App/Look/Look.h"
#include "App/Look/Symbol.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace roamlet
{

using namespace Qt::StringLiterals;

EmptyState::EmptyState(const QString &symbol, const QString &title, QWidget *parent)
    : QWidget(parent),
      m_symbol(symbol),
      m_icon(new QLabel(this)),
      m_title(new QLabel(title, this)),
      m_text(new QLabel(this)),
      m_action(new QPushButton(this))
{
    m_icon->setAlignment(Qt::AlignCenter);
    drawSymbol();

    m_title->setObjectName(u"emptyStateTitle"_s);
    m_title->setAlignment(Qt::AlignCenter);
    m_title->setWordWrap(true);
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    m_title->setFont(font);

    m_text->setObjectName(u"emptyStateText"_s);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->hide();

    m_action->setObjectName(u"emptyStateAction"_s);
    m_action->hide();
    connect(m_action, &QPushButton::clicked, this, &EmptyState::actionRequested);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(32, 32, 32, 32);
    column->setSpacing(12);
    column->addStretch(1);
    column->addWidget(m_icon);
    column->addWidget(m_title);
    column->addWidget(m_text);
    column->addWidget(m_action, 0, Qt::AlignCenter);
    column->addStretch(2);
}

void EmptyState::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        drawSymbol();
    QWidget::changeEvent(event);
}

void EmptyState::drawSymbol()
{
    constexpr int side = 48;
    m_icon->setPixmap(
        symbolIcon(m_symbol, Look::of(*this).page.quiet).pixmap(QSize(side, side), devicePixelRatioF()));
}

void EmptyState::setText(const QString &text)
{
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
}

void EmptyState::setAction(const QString &title)
{
    m_action->setText(title);
    m_action->show();
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
