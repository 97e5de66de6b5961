// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace roamlet
{

/// What stands in the place of a list that there is not: why, and what can be done.
class EmptyState final : public QWidget
{
    Q_OBJECT

public:
    EmptyState(const QString &symbol, const QString &title, QWidget *parent = nullptr);

    /// A longer text under the title; empty for none.
    void setText(const QString &text);
    /// A button under the text that says what can be done.
    void setAction(const QString &title);
    QString title() const;
    QString text() const;

Q_SIGNALS:
    /// The button was pressed.
    void actionRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void drawSymbol();

    QString m_symbol;
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_text;
    QPushButton *m_action;
};

} // namespace roamlet
