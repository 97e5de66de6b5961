// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

namespace roamlet
{

/// A box of choices of which only the chosen one is seen, with its icon, in a box as lists have it. What
/// opens from it is the desktop's own list.
class BoxedComboBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit BoxedComboBox(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace roamlet
