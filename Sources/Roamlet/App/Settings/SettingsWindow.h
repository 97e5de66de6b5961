// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QStackedWidget;

namespace roamlet
{

class SegmentedTabs;
struct SettingsServices;

/// The window with the program's settings. Escape closes it.
class SettingsWindow final : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsWindow(const SettingsServices &services, QWidget *parent = nullptr);

    /// Opens the window over the middle of `origin`, if there is one, or brings the open one to the front.
    void open(const QWidget *origin = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addPage(const QString &symbol, const QString &title, QWidget *page);
    void showNextPage(int step);
    void followFont();
    void place(const QWidget *origin);

    SegmentedTabs *m_tabs;
    QStackedWidget *m_pages;
};

} // namespace roamlet
