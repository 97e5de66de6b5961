// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Menu/MenuBarMenu.h"

#include "App/Look/ForeignText.h"
#include "App/Look/RoamletStyle.h"
#include "App/Tables/LocalText.h"
#include "Library/Library.h"
#include "Opening/Opener.h"
#include "Platform/ActivationPolicy.h"

#include <QKeyEvent>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

MenuBarMenu::MenuBarMenu(const Services &services, QWidget *parent)
    : QMenu(parent),
      m_services(services),
      m_icons(services.library, services.opener, *this),
      m_recent(new QMenu(tr("Recently Visited"), this))
{
    setObjectName(u"menuBarMenu"_s);
    setAccessibleName(u"Roamlet"_s);
    addItem(u"open"_s, tr("Open Roamlet"), QKeySequence(u"Ctrl+O"_s), [this] {
        m_services.openMainWindow();
        m_services.activation.bringToFront();
    });
    m_recent->setObjectName(u"recentlyVisited"_s);
    m_recent->setToolTipsVisible(true);
    m_recent->installEventFilter(this);
    addMenu(m_recent);
    for (QMenu *menu : {static_cast<QMenu *>(this), m_recent})
        RoamletStyle::outline(*menu);
    addSeparator();
    m_updated = addAction(QString());
    m_updated->setObjectName(u"updated"_s);
    m_updated->setEnabled(false);
    addItem(u"reload"_s, tr("Reload"), QKeySequence(u"Ctrl+R"_s), [this] { m_services.library.load({}); });
    addItem(u"settings"_s, tr("Settings…"), QKeySequence(u"Ctrl+,"_s), [this] {
        m_services.openSettings();
        m_services.activation.bringToFront();
    });
    addSeparator();
    m_updateIsWaiting = addItem(u"updateAvailable"_s, tr("Update Available…"), {}, [this] {
        m_services.activation.bringToFront();
        m_services.checkForUpdates();
    });
    m_updateIsWaiting->setVisible(false);
    addItem(u"quit"_s, tr("Quit Roamlet"), QKeySequence(u"Ctrl+Q"_s), [this] { m_services.quit(); });

    fill();
    connect(&services.library, &Library::menuRecentChanged, this, &MenuBarMenu::fill);
    connect(this, &QMenu::aboutToShow, this, [this] { setOpen(true); });
    // A menu closes before the item that was chosen is triggered: until then it must stay as it is.
    connect(this, &QMenu::aboutToHide, this, [this] { setOpen(false); }, Qt::QueuedConnection);
}

QAction *MenuBarMenu::addItem(const QString &name, const QString &text, const QKeySequence &shortcut,
                              std::function<void()> action)
{
    QAction *item = addAction(text);
    item->setObjectName(name);
    item->setShortcut(shortcut);
    connect(item, &QAction::triggered, this, std::move(action));
    return item;
}

void MenuBarMenu::addLine(const QString &name, const QString &text)
{
    QAction *line = m_recent->addAction(text);
    line->setObjectName(name);
    line->setEnabled(false);
}

void MenuBarMenu::setUpdateIsWaiting(bool isWaiting)
{
    m_updateIsWaiting->setVisible(isWaiting);
}

void MenuBarMenu::setOpen(bool isOpen)
{
    // A desktop that draws the menu by itself may say when it opens, and never that it has closed.
    if (isOpen && std::exchange(m_isOpen, isOpen))
        m_services.library.setMenuOpen(false);
    m_isOpen = isOpen;
    m_services.library.setMenuOpen(isOpen);
}

void MenuBarMenu::keyPressEvent(QKeyEvent *event)
{
    if (!chooseByShortcut(*event))
        QMenu::keyPressEvent(event);
}

bool MenuBarMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_recent && event->type() == QEvent::KeyPress &&
        chooseByShortcut(*static_cast<QKeyEvent *>(event)))
        return true;
    return QMenu::eventFilter(watched, event);
}

bool MenuBarMenu::chooseByShortcut(const QKeyEvent &keys)
{
    const QKeySequence sequence(keys.keyCombination());
    for (QAction *item : actions()) {
        if (!item->shortcut().isEmpty() && item->shortcut() == sequence) {
            m_recent->close();
            close();
            item->trigger();
            return true;
        }
    }
    return false;
}

void MenuBarMenu::fill()
{
    const Library &library = m_services.library;
    const std::optional<PointInTime> updated = library.menuUpdated();
    m_updated->setVisible(updated.has_value());
    if (updated) {
        const LocalText local(m_services.calendar(), *updated);
        m_updated->setText(tr("Updated at %1").arg(local.timeOfDay(*updated)));
    }

    m_recent->clear();
    if (library.menuRecent().isEmpty())
        addLine(u"nothingRecent"_s, updated ? tr("No history") : tr("Reading…"));
    for (const HistoryItem &item : library.menuRecent()) {
        QAction *page = m_recent->addAction(m_icons.of(item.source), ForeignText::titleInMenu(item.title));
        page->setObjectName(u"page"_s);
        page->setToolTip(ForeignText::toolTip({item.title, item.url}));
        connect(page, &QAction::triggered, this,
                [this, item] { m_services.opener.openLinks({{.url = item.url, .source = item.source}}); });
    }
}

} // namespace roamlet
