// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/SidebarPlace.h"

#include "App/Look/Look.h"
#include "App/Window/Sidebar.h"
#include "Platform/UserDefaults.h"

#include <QKeyEvent>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString hiddenKey = u"sidebar.hidden"_s;
/// What the list has at least beside the sidebar, in heights of a line.
constexpr double narrowestList = 30;

} // namespace

SidebarPlace::SidebarPlace(Sidebar &sidebar, UserDefaults &defaults, QWidget *parent)
    : QWidget(parent),
      m_sidebar(sidebar),
      m_defaults(defaults),
      m_isHiddenByUser(defaults.boolean(hiddenKey).value_or(false))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&sidebar);
    setVisible(isBeside());
    sidebar.installEventFilter(this);
    connect(&sidebar, &Sidebar::rowChosen, this, &SidebarPlace::leave);
}

int SidebarPlace::widthBeside() const
{
    // The user may have moved its edge, and it comes back as wide as it went.
    return isVisible() ? width() : m_lastWidth.value_or(m_sidebar.sizeHint().width());
}

void SidebarPlace::hideEvent(QHideEvent *event)
{
    m_lastWidth = width();
    QWidget::hideEvent(event);
}

void SidebarPlace::setRoom(int width)
{
    const bool hasRoom = width - widthBeside() >= Measures(font()).units(narrowestList);
    if (m_isOver && !hasRoom)
        follow();
    if (hasRoom == m_hasRoom)
        return;
    m_hasRoom = hasRoom;
    bringBack();
    Q_EMIT changed();
}

void SidebarPlace::setShown(bool isShown)
{
    if (m_hasRoom) {
        m_isHiddenByUser = !isShown;
        m_defaults.setBoolean(hiddenKey, m_isHiddenByUser);
        bringBack();
    } else if (isShown) {
        showOver();
    } else {
        bringBack();
    }
    Q_EMIT changed();
}

void SidebarPlace::leave()
{
    if (!m_isOver)
        return;
    bringBack();
    Q_EMIT changed();
}

void SidebarPlace::bringBack()
{
    // First of all: the sidebar is told when it loses the focus, and would be brought back once more.
    const bool wasOver = std::exchange(m_isOver, false);
    if (m_sidebar.hasFocus() && !isBeside())
        Q_EMIT listRequested();
    if (wasOver) {
        m_sidebar.setIsOverList(false);
        layout()->addWidget(&m_sidebar);
        m_sidebar.show();
    }
    setVisible(isBeside());
}

void SidebarPlace::showOver()
{
    m_isOver = true;
    m_sidebar.setParent(m_list);
    m_sidebar.setIsOverList(true);
    follow();
    m_sidebar.show();
    m_sidebar.raise();
    m_sidebar.setFocus(Qt::ShortcutFocusReason);
}

void SidebarPlace::follow()
{
    const QRect list = m_list->rect();
    const QRect place(0, 0, qMin(m_sidebar.sizeHint().width(), list.width()), list.height());
    m_sidebar.setGeometry(QStyle::visualRect(layoutDirection(), list, place));
}

bool SidebarPlace::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_isOver || watched != &m_sidebar)
        return QWidget::eventFilter(watched, event);
    const bool isEscape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    const bool isLeft = event->type() == QEvent::FocusOut && m_list->isActiveWindow() &&
                        static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason;
    if (isEscape || isLeft) {
        // The focus is on its way: nothing may change its parent now.
        QMetaObject::invokeMethod(this, &SidebarPlace::leave, Qt::QueuedConnection);
    }
    return isEscape;
}

} // namespace roamlet
