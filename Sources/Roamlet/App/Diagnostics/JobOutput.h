// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Diagnostics/JsonLines.h"
#include "App/Diagnostics/Printing.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <stop_token>
#include <utility>

namespace roamlet
{

/// Where a job prints. Once the run shall end, nothing more is printed.
class JobOutput
{
public:
    static constexpr int success = 0;
    static constexpr int failure = 1;
    /// Titles and labels wider than this do not push the next column of all the other rows away.
    static constexpr int widestCell = 60;

    JobOutput(Console &console, std::stop_token stop) : m_console(console), m_stop(std::move(stop)) {}

    /// A text of the user's as it may be shown: unchanged, but never obeyed by a terminal.
    QString text(const QString &stored) const;
    /// The same for a text of many lines.
    QString lines(const QString &stored) const;
    /// A title, which may be of any length, as a column has it.
    QString titleCell(const QString &title) const;

    /// Each of these prints and returns the process's status: lines,
    int print(const QStringList &lines) { return write(lines.join(u'\n') % u'\n'); }
    /// a whole text,
    int write(const QString &output);
    /// and rows for other programs.
    template<typename Row>
    int printJson(const QList<Row> &rows);
    /// Whether somebody reads what is printed; true before anything is.
    bool canWrite() const { return m_canWrite; }

    void complain(const QString &message) { roamlet::complain(m_console, message); }

private:
    Console &m_console;
    std::stop_token m_stop;
    bool m_canWrite = true;
};

template<typename Row>
int JobOutput::printJson(const QList<Row> &rows)
{
    // Not a line at a time, and not all of a million at once.
    constexpr qsizetype portion = qsizetype{1} << 20U;
    int status = success;
    QString lines;
    for (const Row &row : rows) {
        lines += JsonLines::line(JsonLines::object(row));
        if (lines.size() < portion)
            continue;
        status = write(lines);
        lines.clear();
        if (!m_canWrite)
            return status;
    }
    return lines.isEmpty() ? status : write(lines);
}

} // namespace roamlet
