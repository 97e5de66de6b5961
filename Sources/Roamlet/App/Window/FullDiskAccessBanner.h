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

Q_SIGNALS:
    void openSettingsRequested();
    void reloadRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void drawLock();

    QLabel *m_lock;
};

} // namespace roamlet
