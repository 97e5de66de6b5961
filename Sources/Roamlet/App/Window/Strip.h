// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/Look.h"

#include <QVariantAnimation>
#include <QWidget>

class QHBoxLayout;

namespace roamlet
{

/// A slim strip across the top of the list, lightly coloured, with a line under it. It slides open and shut.
class Strip : public QWidget
{
    Q_OBJECT

public:
    /// What the colour says.
    enum class Tone { Notice, Warning };

    explicit Strip(Tone tone, QWidget *parent = nullptr);

    /// Opens or shuts it. While it shuts it is still seen.
    void setOpen(bool isOpen);
    bool isOpen() const { return m_isOpen; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    QHBoxLayout *row() const { return m_row; }
    /// The palette or the font is another one.
    virtual void updateLook();
    /// What the strip is drawn on.
    static const Ground &groundOf(const Look &look, Tone tone)
    {
        return tone == Tone::Warning ? look.warning : look.notice;
    }

private:
    Tone m_tone;
    QHBoxLayout *m_row;
    bool m_isOpen = false;
    QVariantAnimation m_sliding;
};

} // namespace roamlet
