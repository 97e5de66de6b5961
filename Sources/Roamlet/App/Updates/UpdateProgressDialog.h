// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Updates/UpdateDialog.h"

#include <cstdint>
#include <optional>

class QProgressBar;

namespace roamlet
{

/// A window that shows how far something is, with a button to cancel it.
class UpdateProgressDialog final : public UpdateDialog
{
    Q_OBJECT

public:
    UpdateProgressDialog(const QString &name, const QString &heading, const Answer &cancel,
                         QWidget *parent = nullptr);

    /// In bytes. Without a total, or without `received`, it only shows that something is going on.
    void setProgress(std::optional<std::int64_t> received, std::optional<std::int64_t> total);

private:
    QProgressBar *m_bar;
};

} // namespace roamlet
