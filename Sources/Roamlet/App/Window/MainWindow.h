// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/ExportPanel.h"
#include "App/Window/WindowServices.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>

namespace roamlet
{

class ActivationPolicy;
class Alert;
class AppDelegate;
class ContentView;
class SavePanel;
class Updater;
class WindowCommands;

/// The main window: the content, its commands, and the place on the screen that the last one had. One that
/// was closed is not opened again; the next one is new.
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
        /// Ends the program.
        std::function<void()> quit;
    };

    explicit MainWindow(const Services &services);

    ContentView *content() const { return m_content; }
    /// Opens it or brings it forward.
    void open();
    /// Opens the export sheet, as soon as the bookmarks have been read; without any it stays closed.
    void exportBookmarks();
    /// Remembers its place on the screen and its columns, as it does when it is closed.
    void storePlace();

Q_SIGNALS:
    void settingsRequested();
    /// It is closed in a moment.
    void closed();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    /// The first picture of the window waits a moment for the first rows: they are on their way, and drawing
    /// an empty list before them would only make them later.
    void holdFirstPicture();
    void setUpCommands();
    void showMenuBar(bool isShown);
    void updateExportCommand();
    void showExportSheet(const ExportRequest &request);
    void restorePlace();

    Services m_services;
    ContentView *m_content;
    WindowCommands *m_commands;
    QPointer<ExportPanel> m_sheet;
};

} // namespace roamlet
