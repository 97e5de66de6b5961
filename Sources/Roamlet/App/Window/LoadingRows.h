// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace roamlet
{

/// Stands where the rows will be until the first of them are read: grey shapes of rows that fade downwards.
class LoadingRows final : public QWidget
{
    Q_OBJECT

public:
    explicit LoadingRows(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace roamlet
