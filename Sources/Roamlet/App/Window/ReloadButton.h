// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QToolButton>
#include <QVariantAnimation>

namespace roamlet
{

/// "Reload", whose arrow turns while a reload runs.
class ReloadButton final : public QToolButton
{
    Q_OBJECT

public:
    explicit ReloadButton(QWidget *parent = nullptr);

    void setReloading(bool isReloading);
    bool isReloading() const { return m_turning.state() == QAbstractAnimation::Running; }

private:
    void showTurnedBy(qreal degrees);

    QVariantAnimation m_turning;
};

} // namespace roamlet
