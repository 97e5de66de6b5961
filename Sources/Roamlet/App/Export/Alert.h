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

    /// Says that the file `subject` could not be saved, and below, in the system's words, why. Returns at
    /// once; `parent` is blocked until the user has read it.
    virtual void show(QWidget *parent, const QString &problem, const QString &subject) = 0;
};

} // namespace roamlet
