// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/ExportRequest.h"
#include "App/Look/Sheet.h"
#include "App/Look/SourceIcons.h"
#include "Export/BookmarkExport.h"
#include "Platform/BackgroundTasks.h"

#include <QList>

#include <array>

class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace roamlet
{

class ActivationPolicy;
class Alert;
class BoxedComboBox;
class ChoiceRow;
class Library;
class Opener;
class SavePanel;
class UserDefaults;

/// The sheet in which the user chooses which bookmarks to export and in which format. Rendering and writing
/// happen away from the main thread; until they are done, the sheet waits.
class ExportPanel final : public Sheet
{
    Q_OBJECT

public:
    /// What it works with; all of them outlive it.
    struct Services {
        Library &library;
        UserDefaults &defaults;
        SavePanel &savePanel;
        Alert &alert;
        ActivationPolicy &activation;
        Opener &opener;
    };

    /// `window` is what it lies over.
    ExportPanel(const ExportRequest &request, const Services &services, QWidget *window);

    /// Closes the sheet, unless a file is being written.
    void reject() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    /// What one export works on, taken when the button is pressed: a reload meanwhile changes nothing.
    struct Job {
        BookmarkExport::Format format;
        QList<BookmarkNode> tree;
        QList<Bookmark> bookmarks;
        std::optional<QString> sourceID;
    };

    void followWindow();
    void buildFormats(QVBoxLayout *layout);
    void buildButtons(QVBoxLayout *layout);
    void fillSources();
    /// What is stored, or HTML.
    BookmarkExport::Format storedFormat() const;
    void askWhereToSave();
    void write(const Job &job, const QString &path);
    void setBusy(bool isBusy);

    Services m_services;
    std::optional<QString> m_sourceID;
    /// The source ids of the choices.
    QList<std::optional<QString>> m_choices;
    QLabel *m_heading;
    QLabel *m_from;
    BoxedComboBox *m_sources;
    SourceIcons m_icons;
    QLabel *m_format;
    std::array<ChoiceRow *, BookmarkExport::formats.size()> m_formats{};
    QProgressBar *m_progress;
    QPushButton *m_cancel;
    QPushButton *m_export;
    bool m_isBusy = false;
    BackgroundTasks m_tasks;
};

} // namespace roamlet
