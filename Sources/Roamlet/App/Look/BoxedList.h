// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QVBoxLayout;

namespace roamlet
{

/// Rows in a box with round corners and hairlines between them. The box draws what lies below a row: a row
/// that takes clicks as a whole (it has Qt::WA_Hover) is lit under the pointer, and one that has the keyboard
/// gets the focus ring.
class BoxedList final : public QWidget
{
    Q_OBJECT

public:
    explicit BoxedList(QWidget *parent = nullptr);

    void addRow(QWidget *row);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QVBoxLayout *m_rows;
};

} // namespace roamlet
