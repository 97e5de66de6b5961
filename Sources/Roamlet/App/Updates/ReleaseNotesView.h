// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextBrowser>

#include <functional>

namespace roamlet
{

struct ReleaseNotes;

/// Shows release notes, which come from elsewhere: nothing that they name is loaded, they have no colours of
/// their own, only links to web pages lead anywhere, and whatever they are, they are laid out at once.
class ReleaseNotesView final : public QTextBrowser
{
    Q_OBJECT

public:
    explicit ReleaseNotesView(std::function<void(const QString &url)> openLink, QWidget *parent = nullptr);

    void show(const ReleaseNotes &notes);

    /// Nothing, whatever is asked for.
    QVariant loadResource(int type, const QUrl &name) override;
};

} // namespace roamlet
