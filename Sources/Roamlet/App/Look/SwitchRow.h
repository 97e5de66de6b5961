// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace roamlet
{

class NoteLabel;
class Switch;

/// A row of a boxed list: a text, and a switch at its end. A click anywhere on the row turns the switch.
class SwitchRow final : public QWidget
{
    Q_OBJECT

public:
    explicit SwitchRow(const QString &text, QWidget *parent = nullptr);

    /// Named after the text for those who hear it.
    Switch &control() { return *m_switch; }
    /// What stands below the text, if anything: hidden at first.
    NoteLabel &note() { return *m_note; }

protected:
    void changeEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void followWindow();

    QLabel *m_name;
    NoteLabel *m_note;
    Switch *m_switch;
    QVBoxLayout *m_words;
    QHBoxLayout *m_row;
};

} // namespace roamlet
