// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTabBar>

namespace roamlet
{

/// The sections of a window, side by side on a track on which the one that is shown lies like a key.
class SegmentedTabs final : public QTabBar
{
    Q_OBJECT

public:
    explicit SegmentedTabs(QWidget *parent = nullptr);

    /// With one of our symbols before its text.
    int addSection(const QString &symbol, const QString &text);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace roamlet
