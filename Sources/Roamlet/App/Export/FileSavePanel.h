// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/SavePanel.h"

#include <QCoreApplication>

class QFileDialog;

namespace roamlet
{

/// Asks with the desktop's own file dialog where there is one. Nothing is chosen that exists unless the user
/// has agreed to replace it.
class FileSavePanel final : public SavePanel
{
    Q_DECLARE_TR_FUNCTIONS(roamlet::FileSavePanel)

public:
    /// Starts in this folder; later in the one that was chosen last.
    explicit FileSavePanel(const QString &folder);

    void ask(QWidget *parent, const Request &request, Answer answer) override;

    /// The name as one that a file can have: no separators, no control characters, short enough for the file
    /// system.
    static QString suggestedFileName(const Request &request);
    /// The path with the extension, unless it ends in one that files of the type have.
    static QString completed(const QString &path, const Request &request);

private:
    void accept(QFileDialog *dialog, const Request &request, const Answer &answer);

    QString m_folder;
};

} // namespace roamlet
