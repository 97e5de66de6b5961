// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/GeneralSettings.h"

#include "App/AppDelegate.h"
#include "App/Look/BoxedList.h"
#include "App/Look/ButtonRow.h"
#include "App/Look/Look.h"
#include "App/Look/NoteLabel.h"
#include "App/Look/Switch.h"
#include "App/Look/SwitchRow.h"
#include "App/Settings/LoginItem.h"
#include "App/Updates/Updater.h"
#include "DesktopSearch/DesktopAnswers.h"
#include "Platform/ActivationPolicy.h"
#include "Platform/LoginService.h"
#include "Platform/UserDefaults.h"

#include <QShowEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QStringView showDockIconKey = u"showDockIcon";

} // namespace

GeneralSettings::GeneralSettings(const SettingsServices &services, QWidget *parent)
    : QScrollArea(parent), m_services(services)
{
    // Only where the letters are too large for the screen is there anything to scroll.
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    auto *presence = new BoxedList;
    m_login = addSwitch(*presence, u"openAtLogin"_s, tr("Open at login"));
    m_login->note().setObjectName(u"openAtLoginNote"_s);
    m_dockIcon = addSwitch(*presence, u"showDockIcon"_s, tr("Show Dock icon"));
    m_dockIcon->control().setChecked(m_services.defaults.boolean(showDockIconKey.toString()).value_or(false));
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    const Measures measures = Look::of(*this).measures;
    layout->setContentsMargins(measures.lift, 0, measures.lift, 0);
    layout->setSpacing(measures.boxPadding);
    layout->addWidget(presence);
    if (m_services.updater != nullptr && m_services.updater->isAvailable())
        layout->addWidget(makeUpdates());
    layout->addWidget(makeDesktopSearch());
    layout->addStretch(1);
    setWidget(page);
    // The window's own ground shows.
    viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);

    showLoginStatus();
    connect(&m_login->control(), &Switch::toggled, this, &GeneralSettings::setOpensAtLogin);
    connect(&m_dockIcon->control(), &Switch::toggled, this, &GeneralSettings::setShowsDockIcon);
}

SwitchRow *GeneralSettings::addSwitch(BoxedList &group, const QString &name, const QString &text)
{
    auto *row = new SwitchRow(text);
    row->control().setObjectName(name);
    group.addRow(row);
    return row;
}

BoxedList *GeneralSettings::makeUpdates()
{
    auto *updates = new BoxedList;
    m_updateChecks =
        addSwitch(*updates, u"checkForUpdatesAutomatically"_s, tr("Check for updates automatically"));
    auto *check = new ButtonRow(tr("Check for Updates…"));
    check->setObjectName(u"checkForUpdates"_s);
    updates->addRow(check);

    showUpdateChecks();
    connect(&m_updateChecks->control(), &Switch::toggled, this,
            [this](bool isOn) { m_services.updater->setAutomaticallyChecksForUpdates(isOn); });
    connect(check, &QPushButton::clicked, this, [this] {
        m_services.activation.bringToFront();
        m_services.updater->checkForUpdates();
    });
    return updates;
}

BoxedList *GeneralSettings::makeDesktopSearch()
{
    auto *group = new BoxedList;
    Switch &control =
        addSwitch(*group, DesktopAnswers::isOnKey, tr("Show pages in the desktop's search"))->control();
    UserDefaults &defaults = m_services.defaults;
    control.setChecked(defaults.boolean(DesktopAnswers::isOnKey).value_or(true));
    connect(&control, &Switch::toggled, this,
            [&defaults](bool isOn) { defaults.setBoolean(DesktopAnswers::isOnKey, isOn); });
    return group;
}

void GeneralSettings::showEvent(QShowEvent *event)
{
    // What went wrong was said; it need not be so any more.
    if (!event->spontaneous())
        m_loginProblem.reset();
    showLoginStatus();
    showUpdateChecks();
    QScrollArea::showEvent(event);
}

void GeneralSettings::setOpensAtLogin(bool isOn)
{
    m_loginProblem = LoginItem::set(isOn, m_services.loginService);
    showLoginStatus();
}

void GeneralSettings::showLoginStatus()
{
    const LoginService::Status status = m_services.loginService.status();
    {
        // The switch shows what is, not what was wished for.
        const QSignalBlocker blocker(m_login->control());
        m_login->control().setChecked(status == LoginService::Status::Enabled);
    }
    QString text;
    if (m_loginProblem)
        text = *m_loginProblem;
    else if (status == LoginService::Status::RequiresApproval)
        text = tr("Approve Roamlet in System Settings › General › Login Items.");
    NoteLabel &note = m_login->note();
    note.setTone(m_loginProblem ? NoteLabel::Tone::Problem : NoteLabel::Tone::Secondary);
    note.setText(text);
    note.setVisible(!text.isEmpty());
    m_login->control().setAccessibleDescription(text);
}

void GeneralSettings::showUpdateChecks()
{
    if (m_updateChecks == nullptr)
        return;
    const QSignalBlocker blocker(m_updateChecks->control());
    m_updateChecks->control().setChecked(m_services.updater->automaticallyChecksForUpdates());
}

void GeneralSettings::setShowsDockIcon(bool isOn)
{
    m_services.defaults.setBoolean(showDockIconKey.toString(), isOn);
    m_services.delegate.showDockIconDidChange();
}

} // namespace roamlet
