// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <functional>
#include <optional>

class QHBoxLayout;
class QLabel;
class QProgressBar;
class QVBoxLayout;

namespace roamlet
{

class NoteLabel;

/// A window about updates: a heading, a text, whatever comes in between, and buttons. It is answered once at
/// most, and then it closes.
class UpdateDialog final : public QDialog
{
    Q_OBJECT

public:
    using Answer = std::function<void()>;
    enum class Role { Default, Other };

    /// `closed` is the answer of whoever closes the window by its title bar or with Escape.
    UpdateDialog(const QString &name, const QString &heading, Answer closed);

    void setHeading(const QString &text);
    void setText(const QString &text);
    /// Shows a bar: how much is done, of one; or only that something is going on.
    void setProgress(std::optional<double> share);
    bool hasProgress() const { return m_bar != nullptr; }
    /// Buttons stand in the order in which they are added, those after a space at the far end of the window.
    void addButton(const QString &name, const QString &text, Role role, Answer answer);
    void addButtonSpace();
    /// Where the contents of a kind of window go.
    QVBoxLayout &contents() { return *m_contents; }
    /// Closes the window without an answer.
    void withdraw();
    void reject() override;

private:
    void growToText();
    void give(const Answer &answer);

    bool m_isAnswered = false;
    Answer m_closed;
    QLabel *m_heading;
    NoteLabel *m_text;
    QProgressBar *m_bar = nullptr;
    QVBoxLayout *m_contents;
    QHBoxLayout *m_buttons;
};

} // namespace roamlet
