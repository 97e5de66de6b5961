// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Updates/UpdateDialog.h"
#include "Platform/UpdateUserInterface.h"

namespace roamlet
{

class ReleaseNotesView;
struct ReleaseNotes;
struct Update;

/// The window about a newer version: what it brings, and whether to install it.
class UpdateFoundDialog final : public UpdateDialog
{
    Q_OBJECT

public:
    using Choose = std::function<void(UpdateUserInterface::Choice)>;

    UpdateFoundDialog(const Update &update, const QString &currentVersion, const Choose &choose,
                      std::function<void(const QString &url)> openLink, QWidget *parent = nullptr);

    void showNotes(const ReleaseNotes &notes);

private:
    ReleaseNotesView *m_notes;
};

} // namespace roamlet
