// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/HeaderButton.h"

#include <QVariantAnimation>

namespace roamlet
{

/// "Reload", whose arrow turns while a reload runs, and at least once. Where nothing shall move it only dims.
class ReloadButton final : public HeaderButton
{
    Q_OBJECT

public:
    explicit ReloadButton(QWidget *parent = nullptr);

    void setReloading(bool isReloading);
    bool isReloading() const { return m_isReloading; }
    bool isTurning() const { return m_turning.state() == QAbstractAnimation::Running; }

protected:
    void paintSymbol(QPainter &painter, const QRect &place) override;

private:
    bool m_isReloading = false;
    QVariantAnimation m_turning;
};

} // namespace roamlet
