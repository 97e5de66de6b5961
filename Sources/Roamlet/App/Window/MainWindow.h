// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/ExportPanel.h"
#include "App/Window/WindowServices.h"

#include <QMainWindow>
#include <QPointer>

namespace roamlet
{

class ActivationPolicy;
class Alert;
class AppDelegate;
class ContentView;
class SavePanel;
class Updater;

/// The main window: the content, the menus above it, and the place on the screen that it had last time.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    struct Services {
        WindowServices content;
        AppDelegate &delegate;
        ActivationPolicy &activation;
        SavePanel &savePanel;
        Alert &alert;
        Updater &updater;
    };

    explicit MainWindow(const Services &services);

    ContentView *content() const { return m_content; }
    /// Opens it or brings it forward.
    void open();
    /// Lets go of what is only needed while it is seen, if nobody sees it. It opens again as it was.
    void putAway();

Q_SIGNALS:
    void settingsRequested();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    /// The first picture of the window waits a moment for the first rows: they are on their way, and drawing
    /// an empty list before them would only make them later.
    void holdFirstPicture();
    void buildMenus();
    void updateExportCommand();
    void showExportSheet(const ExportRequest &request);
    void restorePlace();
    void storePlace();

    Services m_services;
    ContentView *m_content;
    QAction *m_exportCommand = nullptr;
    QAction *m_reloadCommand = nullptr;
    QPointer<ExportPanel> m_sheet;
    bool m_wasOpened = false;
};

} // namespace roamlet
