// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QLabel>

namespace roamlet
{

/// A line of text that ends in an ellipsis where it does not fit, and then shows itself whole in a tip. Text
/// from outside may be of any length and hold line ends. To a screen reader it is a text, of whose changes it
/// is told.
class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// `strong` follows the text in bold letters, and `after` follows that.
    void setText(const QString &text, const QString &strong = {}, const QString &after = {});
    /// As it was set, with the strong part and what follows.
    const QString &text() const { return m_text; }
    /// A picture before the text; none when it is null.
    void setSign(const QIcon &sign);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    QFont strongFont() const;
    /// How much of the width is the sign's and the space after it.
    int signWidth() const;
    int textWidth() const;

    QString m_text;
    /// Without line ends, and no longer than any screen is wide.
    QString m_line;
    QString m_strong;
    QString m_after;
    QIcon m_sign;
};

} // namespace roamlet
