// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QVariantAnimation>

class QPainter;

namespace roamlet
{

struct Look;
struct Measures;

/// What a switch looks like: a knob that lies at one end of its track.
struct SwitchLook {
    bool isOn = false;
    bool isEnabled = true;
    bool hasFocus = false;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    /// How much of its way to that end the knob has behind it.
    double way = 1;

    /// Fills the rectangle, but for the room that the focus ring needs.
    void paint(QPainter &painter, const QRectF &rect, const Look &look) const;
    /// The size with that room.
    static QSize size(const Measures &measures);
};

/// A switch without words of its own. Its knob moves when the user turns it, and is at its end at once when
/// the program does. Whoever uses it gives it an accessible name.
class Switch final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit Switch(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent *event) override;

private:
    QVariantAnimation m_moving;
};

} // namespace roamlet
