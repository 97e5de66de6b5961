// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QWidget;

namespace roamlet
{

/// Tells the user about a failure that is too important for a line of text.
class Alert
{
public:
    Alert() = default;
    Alert(const Alert &) = delete;
    Alert &operator=(const Alert &) = delete;
    virtual ~Alert() = default;

    /// Shows the system's words for what went wrong, and below what they are about. Returns at once; `parent`
    /// is blocked until the user has read it.
    virtual void show(QWidget *parent, const QString &problem, const QString &subject) = 0;
};

} // namespace roamlet
