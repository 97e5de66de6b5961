// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QTabWidget;

namespace roamlet
{

struct SettingsServices;

/// The window with the program's settings. Escape closes it.
class SettingsWindow final : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsWindow(const SettingsServices &services, QWidget *parent = nullptr);

    /// Opens the window, or brings the open one to the front.
    void open();

private:
    QTabWidget *m_tabs;
};

} // namespace roamlet
