// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/ListStack.h"

namespace roamlet
{

ListStack::ListStack(QWidget *parent) : QStackedWidget(parent) {}

void ListStack::setCover(QWidget *cover, int top)
{
    if (m_cover != nullptr && m_cover != cover)
        m_cover->hide();
    m_cover = cover;
    m_top = top;
    if (cover == nullptr)
        return;
    placeCover();
    cover->show();
    cover->raise();
}

void ListStack::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    placeCover();
}

void ListStack::placeCover()
{
    if (m_cover != nullptr)
        m_cover->setGeometry(rect().adjusted(0, m_top, 0, 0));
}

} // namespace roamlet
