// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>

namespace roamlet
{

/// A row of a boxed list that does something: its words in the colour of links, and nothing else.
class ButtonRow final : public QPushButton
{
    Q_OBJECT

public:
    explicit ButtonRow(const QString &text, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace roamlet
