// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QScrollArea>
#include <QString>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace roamlet
{

/// What stands in the place of a list that there is not: why, and what can be done. Scrolls only where large
/// letters leave no room for all of it.
class EmptyState final : public QScrollArea
{
    Q_OBJECT

public:
    EmptyState(const QString &symbol, const QString &title, QWidget *parent = nullptr);

    void setSymbol(const QString &symbol);
    void setTitle(const QString &title);
    /// A longer text under the title; empty for none.
    void setText(const QString &text);
    /// What stands under the text and belongs to it.
    void setBox(QWidget *box);
    /// A button under the text that says what can be done.
    QPushButton *addAction(const QString &title, const QString &objectName);
    QString title() const;
    QString text() const;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    void updateLook();
    /// Without the sign and with narrow margins, where these would leave too little to what is said.
    void makeRoom();
    QVBoxLayout &column() const;

    QWidget *m_page;
    QString m_symbol;
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_text;
    QHBoxLayout *m_actions;
    /// Around the box, if there is one.
    QHBoxLayout *m_box = nullptr;
};

} // namespace roamlet
