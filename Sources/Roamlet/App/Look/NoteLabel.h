// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace roamlet
{

/// A small, wrapping text that explains what stands above it, in a colour made from the palette around it.
class NoteLabel final : public QLabel
{
    Q_OBJECT

public:
    enum class Tone {
        Secondary, ///< quieter than the text around it
        Problem,   ///< red, as light or as dark as the background needs
    };

    explicit NoteLabel(QWidget *parent = nullptr);

    void setTone(Tone tone);
    Tone tone() const { return m_tone; }

protected:
    bool event(QEvent *event) override;

private:
    void updateColor();

    Tone m_tone = Tone::Secondary;
};

} // namespace roamlet
