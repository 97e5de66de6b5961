// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/GeneralSettings.h"

#include "App/AppDelegate.h"
#include "App/Look/NoteLabel.h"
#include "App/Look/Switch.h"
#include "App/Look/SwitchRow.h"
#include "App/Settings/LoginItem.h"
#include "App/Updates/Updater.h"
#include "Platform/ActivationPolicy.h"
#include "Platform/LoginService.h"
#include "Platform/UserDefaults.h"

#include <QGroupBox>
#include <QPushButton>
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
    : QWidget(parent), m_services(services), m_loginNote(new NoteLabel)
{
    auto *presence = new QGroupBox;
    auto *rows = new QVBoxLayout(presence);
    m_login = addSwitch(rows, u"openAtLogin"_s, tr("Open at login"));
    m_loginNote->setObjectName(u"openAtLoginNote"_s);
    rows->addWidget(m_loginNote);
    m_dockIcon = addSwitch(rows, u"showDockIcon"_s, tr("Show Dock icon"));
    m_dockIcon->control().setChecked(m_services.defaults.boolean(showDockIconKey.toString()).value_or(false));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(presence);
    addUpdates(layout);
    layout->addStretch();

    showLoginStatus();
    connect(&m_login->control(), &Switch::toggled, this, &GeneralSettings::setOpensAtLogin);
    connect(&m_dockIcon->control(), &Switch::toggled, this, &GeneralSettings::setShowsDockIcon);
}

SwitchRow *GeneralSettings::addSwitch(QVBoxLayout *group, const QString &name, const QString &text)
{
    auto *row = new SwitchRow(text);
    row->control().setObjectName(name);
    group->addWidget(row);
    return row;
}

void GeneralSettings::addUpdates(QVBoxLayout *layout)
{
    if (m_services.updater == nullptr || !m_services.updater->isAvailable())
        return;
    auto *updates = new QGroupBox;
    auto *rows = new QVBoxLayout(updates);
    m_updateChecks =
        addSwitch(rows, u"checkForUpdatesAutomatically"_s, tr("Check for updates automatically"));
    auto *check = new QPushButton(tr("Check for Updates…"));
    check->setObjectName(u"checkForUpdates"_s);
    check->setAccessibleName(check->text());
    rows->addWidget(check, 0, Qt::AlignLeading);
    layout->addWidget(updates);

    showUpdateChecks();
    connect(&m_updateChecks->control(), &Switch::toggled, this,
            [this](bool isOn) { m_services.updater->setAutomaticallyChecksForUpdates(isOn); });
    connect(check, &QPushButton::clicked, this, [this] {
        m_services.activation.bringToFront();
        m_services.updater->checkForUpdates();
    });
}

void GeneralSettings::showEvent(QShowEvent *event)
{
    // What went wrong was said; it need not be so any more.
    if (!event->spontaneous())
        m_loginProblem.reset();
    showLoginStatus();
    showUpdateChecks();
    QWidget::showEvent(event);
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
    m_loginNote->setTone(m_loginProblem ? NoteLabel::Tone::Problem : NoteLabel::Tone::Secondary);
    m_loginNote->setText(text);
    m_loginNote->setVisible(!text.isEmpty());
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
