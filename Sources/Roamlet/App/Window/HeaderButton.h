// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/Fade.h"

#include <QString>
#include <QToolButton>

namespace roamlet
{

/// A flat button of the header: a symbol in the ink of the list, on a ground of its own only while the
/// pointer or the keyboard is at it.
class HeaderButton : public QToolButton
{
    Q_OBJECT

public:
    /// `name` is the text, the tip, and what it is called to those who cannot see it.
    HeaderButton(const QString &symbol, const QString &name, QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// Before and after the content.
    int padding() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    /// Draws what the button shows between its paddings.
    virtual void paintContent(QPainter &painter, const QRect &content);
    virtual void paintSymbol(QPainter &painter, const QRect &place);
    /// The colour of what is drawn.
    QColor ink() const;

private:
    QString m_symbol;
    Fade m_lighting;
};

} // namespace roamlet
