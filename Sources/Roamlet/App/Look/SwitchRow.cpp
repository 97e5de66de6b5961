// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/SwitchRow.h"

#include "App/Look/Switch.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

namespace roamlet
{

SwitchRow::SwitchRow(const QString &text, QWidget *parent) : QWidget(parent), m_switch(new Switch)
{
    m_switch->setAccessibleName(text);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel(text));
    row->addStretch();
    row->addWidget(m_switch);
}

void SwitchRow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        m_switch->click();
}

} // namespace roamlet
