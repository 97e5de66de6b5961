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
    /// The system's own settings can have changed meanwhile.
    void showEvent(QShowEvent *event) override;

private:
    SwitchRow *addSwitch(QVBoxLayout *group, const QString &name, const QString &text);
    void setOpensAtLogin(bool isOn);
    void showLoginStatus();
    void setShowsDockIcon(bool isOn);

    SettingsServices m_services;
    SwitchRow *m_login;
    NoteLabel *m_loginNote;
    SwitchRow *m_dockIcon;
    /// What went wrong with the last change.
    std::optional<QString> m_loginProblem;
};

} // namespace roamlet
