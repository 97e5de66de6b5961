// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace roamlet
{

class Switch;

/// A line of a form: a text, and a switch at its end. A click anywhere on the line turns the switch.
class SwitchRow final : public QWidget
{
    Q_OBJECT

public:
    explicit SwitchRow(const QString &text, QWidget *parent = nullptr);

    /// Named after the text for those who hear it.
    Switch &control() { return *m_switch; }

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Switch *m_switch;
};

} // namespace roamlet
