// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/ActivationPolicy.h"

#include <QObject>
#include <QPointer>
#include <QWindow>

namespace roamlet
{

/// How present the program is on a Linux desktop: as an accessory its windows stay out of the task switcher.
/// Only X11 lets a program ask for that; on Wayland its windows are always there.
class LinuxActivationPolicy final : public QObject, public ActivationPolicy
{
    Q_OBJECT

public:
    /// After the application object.
    LinuxActivationPolicy();

    void setPolicy(Policy policy) override;
    /// The window that was used last comes before the others.
    void bringToFront() override;

protected:
    /// Windows that are opened later follow the policy as well.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void apply(const QWindow &window) const;

    Policy m_policy = Policy::Regular;
    QPointer<QWindow> m_usedLast;
};

} // namespace roamlet
