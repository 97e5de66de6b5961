// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Settings/SettingsServices.h"

#include <QString>
#include <QWidget>

#include <optional>

class QVBoxLayout;

namespace roamlet
{

class NoteLabel;
class SwitchRow;

/// The tab for the program's general behaviour.
class GeneralSettings final : public QWidget
{
    Q_OBJECT

public:
    explicit GeneralSettings(const SettingsServices &services, QWidget *parent = nullptr);

protected:
    /// What is set elsewhere can have changed meanwhile.
    void showEvent(QShowEvent *event) override;

private:
    SwitchRow *addSwitch(QVBoxLayout *group, const QString &name, const QString &text);
    void setOpensAtLogin(bool isOn);
    void addUpdates(QVBoxLayout *layout);
    void showLoginStatus();
    void showUpdateChecks();
    void setShowsDockIcon(bool isOn);

    SettingsServices m_services;
    SwitchRow *m_login;
    NoteLabel *m_loginNote;
    SwitchRow *m_dockIcon;
    /// Absent where there are no updates.
    SwitchRow *m_updateChecks = nullptr;
    /// What went wrong with the last change.
    std::optional<QString> m_loginProblem;
};

} // namespace roamlet
