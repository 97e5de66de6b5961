// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace roamlet
{

/// A thin line along which something runs, for work of which nobody knows how long it takes. It moves only
/// while it is shown, and where nothing shall move it is a still line.
class BusyBar final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int thickness = 2;

    explicit BusyBar(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QVariantAnimation m_running;
};

} // namespace roamlet
