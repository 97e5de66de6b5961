// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Update.h"
#include "Platform/UpdateUserInterface.h"

#include <QList>
#include <QStringList>

#include <utility>

namespace roamlet::testing
{

/// Windows that write down what they show, and whose buttons a test presses.
class FakeUpdateUserInterface final : public UpdateUserInterface
{
public:
    void showChecking(std::function<void()> cancelAction) override
    {
        note(QStringLiteral("checking"));
        cancel = std::move(cancelAction);
    }
    void showUpToDate(std::function<void()> acknowledgeAction) override
    {
        note(QStringLiteral("up to date"));
        acknowledge = std::move(acknowledgeAction);
    }
    void showUpdate(const Update &shownUpdate, std::function<void(Choice)> chooseAction) override
    {
        note(QStringLiteral("update"));
        update = shownUpdate;
        choose = std::move(chooseAction);
    }
    void showReleaseNotes(const ReleaseNotes &shownNotes) override
    {
        note(QStringLiteral("notes"));
        notes = shownNotes;
    }
    void showDownload(const Update & /*update*/, std::function<void()> cancelAction) override
    {
        note(QStringLiteral("download"));
        cancel = std::move(cancelAction);
    }
    void setDownloadProgress(std::int64_t received, std::optional<std::int64_t> total) override
    {
        progress.append({received, total});
        if (onProgress)
            onProgress();
    }
    void showVerifying() override { note(QStringLiteral("verifying")); }
    void showInstalling(std::function<void()> cancelAction) override
    {
        note(QStringLiteral("installing"));
        cancel = std::move(cancelAction);
    }
    void setInstallProgress(std::optional<int> percent) override { installProgress.append(percent); }
    void showInstalled(const Update & /*update*/, std::function<void()> acknowledgeAction) override
    {
        note(QStringLiteral("installed"));
        acknowledge = std::move(acknowledgeAction);
    }
    void showHandedOver(const Update & /*update*/, std::function<void()> acknowledgeAction) override
    {
        note(QStringLiteral("handed over"));
        acknowledge = std::move(acknowledgeAction);
    }
    void showError(const UpdateError &shownError, std::function<void()> acknowledgeAction) override
    {
        note(QStringLiteral("error"));
        error = shownError;
        acknowledge = std::move(acknowledgeAction);
    }
    void focus() override { note(QStringLiteral("focus")); }
    void close() override
    {
        note(QStringLiteral("close"));
        cancel = nullptr;
        acknowledge = nullptr;
        choose = nullptr;
    }

    /// Everything that happened, in order.
    QStringList events;
    Update update;
    ReleaseNotes notes;
    UpdateError error;
    QList<std::pair<std::int64_t, std::optional<std::int64_t>>> progress;
    QList<std::optional<int>> installProgress;
    /// Called with each progress of a download.
    std::function<void()> onProgress;
    std::function<void()> cancel;
    std::function<void()> acknowledge;
    std::function<void(Choice)> choose;

private:
    void note(const QString &event) { events.append(event); }
};

} // namespace roamlet::testing
