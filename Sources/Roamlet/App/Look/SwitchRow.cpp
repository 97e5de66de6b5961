// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/SwitchRow.h"

#include "App/Look/Look.h"
#include "App/Look/NoteLabel.h"
#include "App/Look/Painting.h"
#include "App/Look/Switch.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

namespace roamlet
{

SwitchRow::SwitchRow(const QString &text, QWidget *parent)
    : QWidget(parent),
      m_name(new QLabel(text)),
      m_note(new NoteLabel),
      m_switch(new Switch),
      m_words(new QVBoxLayout),
      m_row(new QHBoxLayout(this))
{
    setAttribute(Qt::WA_Hover);
    m_switch->setAccessibleName(text);
    m_note->hide();
    m_name->setWordWrap(true);
    m_words->setSpacing(0);
    m_words->addWidget(m_name);
    m_words->addWidget(m_note);
    m_row->addLayout(m_words, 1);
    m_row->setAlignment(m_words, Qt::AlignVCenter);
    m_row->addWidget(m_switch);
    followWindow();
}

void SwitchRow::followWindow()
{
    const Measures measures = Look::of(*this).measures;
    setMinimumHeight(measures.settingsRowHeight);
    m_row->setContentsMargins(measures.boxPadding, measures.rowPadding, measures.boxPadding,
                              measures.rowPadding);
    m_row->setSpacing(measures.gapAfterIcon);
    alignToLine(*m_name);
    alignToLine(*m_note);
}

void SwitchRow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        followWindow();
}

void SwitchRow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        m_switch->click();
}

} // namespace roamlet
