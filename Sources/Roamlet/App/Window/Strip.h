// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QHBoxLayout;

namespace roamlet
{

/// A slim strip across the top of the list, lightly coloured, with a line under it.
class Strip : public QWidget
{
    Q_OBJECT

public:
    /// What the colour says.
    enum class Tone { Notice, Warning };

    explicit Strip(Tone tone, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    QHBoxLayout *row() const { return m_row; }

private:
    Tone m_tone;
    QHBoxLayout *m_row;
};

} // namespace roamlet
