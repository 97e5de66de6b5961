// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace roamlet
{

/// Asks the user where to save a file.
class SavePanel
{
public:
    struct Request {
        /// The name to suggest, without extension.
        QString name;
        /// The extension of the file, without a dot; it is added where the user leaves it out.
        QString extension;
        /// The file's MIME type; other files are not offered.
        QString type;
    };
    /// Called once: with the path that the user chose, or without when there is none. What stands there may
    /// be replaced.
    using Answer = std::function<void(const std::optional<QString> &path)>;

    SavePanel() = default;
    SavePanel(const SavePanel &) = delete;
    SavePanel &operator=(const SavePanel &) = delete;
    virtual ~SavePanel() = default;

    /// Returns at once. When `parent` goes before the user has answered, nobody is told.
    virtual void ask(QWidget *parent, const Request &request, Answer answer) = 0;
};

} // namespace roamlet
