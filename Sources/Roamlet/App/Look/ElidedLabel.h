// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace roamlet
{

/// A line of text that ends in an ellipsis where it does not fit, and then shows itself whole in a tip. Text
/// from outside may be of any length and hold line ends.
class ElidedLabel final : public QWidget
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    void setText(const QString &text);
    /// As it was set.
    const QString &text() const { return m_text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    QString m_text;
    /// Without line ends, and no longer than any screen is wide.
    QString m_line;
};

} // namespace roamlet
