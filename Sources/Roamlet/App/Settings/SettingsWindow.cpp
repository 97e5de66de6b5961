// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/SettingsWindow.h"

#include "App/Look/Look.h"
#include "App/Look/RoamletStyle.h"
#include "App/Look/SegmentedTabs.h"
#include "App/Settings/BrowserProfileSettings.h"
#include "App/Settings/GeneralSettings.h"

#include <QEvent>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

SettingsWindow::SettingsWindow(const SettingsServices &services, QWidget *parent)
    : QWidget(parent, Qt::Window), m_tabs(new SegmentedTabs), m_pages(new QStackedWidget)
{
    setObjectName(u"settingsWindow"_s);
    setWindowRole(objectName());
    setWindowTitle(tr("Settings"));
    m_tabs->setObjectName(u"settingsTabBar"_s);
    m_tabs->setAccessibleName(tr("Settings"));
    m_pages->setObjectName(u"settingsPages"_s);
    addPage(u"gearshape"_s, tr("General"), new GeneralSettings(services));
    addPage(u"person.2"_s, tr("Browser Profiles"),
            new BrowserProfileSettings(services.library, services.opener));
    connect(m_tabs, &SegmentedTabs::currentChanged, m_pages, &QStackedWidget::setCurrentIndex);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 0, Qt::AlignHCenter);
    layout->addWidget(m_pages, 1);
    RoamletStyle::applyTo(*this);
    followFont();
    const Measures measures = Look::of(*this).measures;
    resize(measures.settingsWidth, measures.settingsHeight);

    for (const QKeySequence &keys : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &SettingsWindow::close);
    connect(new QShortcut(QKeySequence(u"Ctrl+Tab"_s), this), &QShortcut::activated, this,
            [this] { showNextPage(1); });
    connect(new QShortcut(QKeySequence(u"Ctrl+Shift+Tab"_s), this), &QShortcut::activated, this,
            [this] { showNextPage(-1); });
}

void SettingsWindow::addPage(const QString &symbol, const QString &title, QWidget *page)
{
    m_tabs->addSection(symbol, title);
    m_pages->addWidget(page);
}

void SettingsWindow::showNextPage(int step)
{
    m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + m_tabs->count()) % m_tabs->count());
}

void SettingsWindow::open(const QWidget *origin)
{
    if (!isVisible())
        place(origin);
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void SettingsWindow::place(const QWidget *origin)
{
    const bool isOver = origin != nullptr && origin->isVisible() && !origin->isMinimized();
    const QRect free = (isOver ? origin->screen() : screen())->availableGeometry();
    // A window that was never shown does not know its frame; that of another one is as wide.
    const QWidget &framed = isOver ? *origin : *this;
    const QSize frame = framed.frameGeometry().size() - framed.size();
    // In some fonts, and in some languages, a row needs more than usual.
    resize(size().expandedTo({sizeHint().width(), 0}).boundedTo(free.size() - frame));
    QRect wanted(QPoint(), size() + frame);
    wanted.moveCenter(isOver ? origin->frameGeometry().center() : free.center());
    // All of it on the screen.
    wanted.moveTo(std::clamp(wanted.left(), free.left(), free.right() + 1 - wanted.width()),
                  std::clamp(wanted.top(), free.top(), free.bottom() + 1 - wanted.height()));
    move(wanted.topLeft());
}

void SettingsWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        followFont();
}

void SettingsWindow::followFont()
{
    const Measures measures = Look::of(*this).measures;
    // The boxes begin on the line; at their sides there is room for a row that is lifted.
    const int side = measures.alignmentLine - measures.lift;
    layout()->setContentsMargins(side, measures.boxPadding, side, measures.boxPadding);
    layout()->setSpacing(measures.boxPadding);
}

} // namespace roamlet
