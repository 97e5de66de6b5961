// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Settings/SettingsServices.h"

#include <QScrollArea>
#include <QString>

#include <optional>

namespace roamlet
{

class BoxedList;
class SwitchRow;

/// The tab for the program's general behaviour.
class GeneralSettings final : public QScrollArea
{
    Q_OBJECT

public:
    explicit GeneralSettings(const SettingsServices &services, QWidget *parent = nullptr);

protected:
    /// What is set elsewhere can have changed meanwhile.
    void showEvent(QShowEvent *event) override;

private:
    SwitchRow *addSwitch(BoxedList &group, const QString &name, const QString &text);
    void setOpensAtLogin(bool isOn);
    BoxedList *makeUpdates();
    BoxedList *makeDesktopSearch();
    void showLoginStatus();
    void showUpdateChecks();
    void setShowsDockIcon(bool isOn);

    SettingsServices m_services;
    SwitchRow *m_login;
    SwitchRow *m_dockIcon;
    /// Absent where there are no updates.
    SwitchRow *m_updateChecks = nullptr;
    /// What went wrong with the last change.
    std::optional<QString> m_loginProblem;
};

} // namespace roamlet
