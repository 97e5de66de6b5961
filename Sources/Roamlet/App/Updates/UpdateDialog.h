// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace roamlet
{

class NoteLabel;

/// A window about updates: a heading, a text, whatever comes in between, and buttons. It is answered once at
/// most, and then it closes.
class UpdateDialog : public QDialog
{
    Q_OBJECT

public:
    using Answer = std::function<void()>;

    /// `closed` is the answer of whoever closes the window by its title bar or with Escape.
    UpdateDialog(const QString &name, Answer closed, QWidget *parent = nullptr);

    void setHeading(const QString &text);
    void setText(const QString &text);
    /// Closes the window without an answer.
    void withdraw();
    void reject() override;

protected:
    enum class Role { Default, Other };

    /// Where the contents of a kind of window go.
    QVBoxLayout &contents() { return *m_contents; }
    QPushButton *addButton(const QString &name, const QString &text, Role role, Answer answer);
    /// Buttons that are added from now on stand at the far end of the window.
    void addButtonSpace();

private:
    void give(const Answer &answer);

    bool m_isAnswered = false;
    Answer m_closed;
    QLabel *m_heading;
    NoteLabel *m_text;
    QVBoxLayout *m_contents;
    QHBoxLayout *m_buttons;
};

/// A window that says something and has one button.
class UpdateMessageDialog final : public UpdateDialog
{
    Q_OBJECT

public:
    UpdateMessageDialog(const QString &name, const QString &heading, const QString &text, const Answer &read,
                        QWidget *parent = nullptr);
};

} // namespace roamlet
