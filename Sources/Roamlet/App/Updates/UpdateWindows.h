// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/UpdateUserInterface.h"

#include <QCoreApplication>
#include <QPointer>
#include <QString>

#include <memory>

namespace roamlet
{

class ReleaseNotesView;
class UpdateDialog;

/// The windows that show a check for updates and what comes of it.
class UpdateWindows final : public UpdateUserInterface
{
    Q_DECLARE_TR_FUNCTIONS(roamlet::UpdateWindows)

public:
    /// `openLink` opens a web page that the release notes name.
    UpdateWindows(QString currentVersion, std::function<void(const QString &url)> openLink);
    ~UpdateWindows() override;

    void showChecking(std::function<void()> cancel) override;
    void showUpToDate(std::function<void()> acknowledge) override;
    void showUpdate(const Update &update, std::function<void(Choice)> choose) override;
    void showReleaseNotes(const ReleaseNotes &notes) override;
    void showDownload(const Update &update, std::function<void()> cancel) override;
    void setDownloadProgress(std::int64_t received, std::optional<std::int64_t> total) override;
    void showVerifying() override;
    void showInstalling(std::function<void()> cancel) override;
    void setInstallProgress(std::optional<int> percent) override;
    void showInstalled(const Update &update, std::function<void()> acknowledge) override;
    void showHandedOver(const Update &update, std::function<void()> acknowledge) override;
    void showError(const UpdateError &error, std::function<void()> acknowledge) override;
    void focus() override;
    void close() override;

private:
    /// The window's own button may be what brings the next one: it goes when that is over.
    struct DeleteLater {
        void operator()(UpdateDialog *window) const;
    };

    void show(UpdateDialog *window);
    void showProgress(const QString &name, const QString &heading, const std::function<void()> &cancel);
    void showMessage(const QString &name, const QString &heading, const QString &text,
                     const std::function<void()> &read);

    QString m_currentVersion;
    std::function<void(const QString &url)> m_openLink;
    std::unique_ptr<UpdateDialog, DeleteLater> m_window;
    /// Where the notes of the window that is open go, if it is about an update.
    QPointer<ReleaseNotesView> m_notes;
};

} // namespace roamlet
