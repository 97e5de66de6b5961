// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRadioButton>

namespace roamlet
{

/// A row of a boxed list that is one of several choices: a radio button, its text, and a note below. All of
/// the row is the button.
class ChoiceRow final : public QRadioButton
{
    Q_OBJECT

public:
    ChoiceRow(const QString &text, QString note, QWidget *parent = nullptr);

    const QString &note() const { return m_note; }

    QSize sizeHint() const override;
    /// The note goes on in another line where it has no room.
    int heightForWidth(int width) const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    int noteHeight(int width, const QFont &font) const;

    QString m_note;
};

} // namespace roamlet
