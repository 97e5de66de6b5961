// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/Strip.h"

class QLabel;

namespace roamlet
{

/// Says that the system keeps Safari's files from us, and how to change that.
class FullDiskAccessBanner final : public Strip
{
    Q_OBJECT

public:
    explicit FullDiskAccessBanner(QWidget *parent = nullptr);

    /// What is in the way on this computer, below the text; empty for nothing.
    void setDetails(const QString &details);

Q_SIGNALS:
    void openSettingsRequested();
    void reloadRequested();

protected:
    void updateLook() override;

private:
    QLabel *m_lock;
    QLabel *m_heading;
    QLabel *m_text;
    QLabel *m_details;
};

} // namespace roamlet
