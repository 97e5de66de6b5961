// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

namespace roamlet
{

/// The field at the top of the list into which is typed what shall be found. It has a ring while it has the
/// keyboard, and a button that clears it while there is something to clear.
class SearchField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchField(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// It has got the focus.
    void searchExpected();
    /// The user is done typing and wants to go on in the list.
    void listRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateColors();
    /// What is typed, and what says what for, begins beside the magnifier.
    void alignToMagnifier();
    QSize sizeOfWidth(int width) const;

    QAction *m_magnifier;
    QAction *m_clear;
};

} // namespace roamlet
