// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>

class QPainter;

namespace roamlet
{

struct Look;

/// What a switch looks like: a knob that lies at one end of its track.
struct SwitchLook {
    bool isOn = false;
    bool isEnabled = true;
    bool hasFocus = false;
    Qt::LayoutDirection direction = Qt::LeftToRight;

    /// Fills the rectangle.
    void paint(QPainter &painter, const QRectF &rect, const Look &look) const;
    /// The size beside a text of this font.
    static QSize size(const QFontMetrics &metrics);
};

/// A switch without words of its own. Whoever uses it gives it an accessible name.
class Switch final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit Switch(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace roamlet
