// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace roamlet
{

/// A picture as desktops take it: row by row, of each pixel a byte for red, green, blue and opacity.
struct IconPixels {
    int width = 0;
    int height = 0;
    QByteArray bytes;

    bool operator==(const IconPixels &) const = default;
};

/// A page as a desktop shows it among what else it has found.
struct FoundPage {
    /// Holds all that it takes to open the page: it is good for ever, whoever answers.
    QString id;
    QString title;
    QString url;
    /// The browser and the profile that it came from.
    QString source;
    std::optional<IconPixels> icon;

    bool operator==(const FoundPage &) const = default;
};

/// What a desktop asks when its user searches. Nothing here waits: answers come in a later turn of the event
/// loop, or at once. On the main thread.
class DesktopQuestions
{
public:
    using Answer = std::function<void(const QList<FoundPage> &)>;

    DesktopQuestions() = default;
    DesktopQuestions(const DesktopQuestions &) = delete;
    DesktopQuestions &operator=(const DesktopQuestions &) = delete;
    virtual ~DesktopQuestions() = default;

    /// The pages that answer a text best, the best first, with the icons that are known by now.
    virtual void search(const QString &text, const Answer &answer) = 0;
    /// The pages with these ids, with their icons; those of what is no id are left out.
    virtual void describe(const QStringList &ids, const Answer &answer) = 0;
    /// Opens a page in the browser and the profile that it came from. The token lets the browser come
    /// forward; it may be empty.
    virtual void open(const QString &id, const QString &activationToken) = 0;
};

} // namespace roamlet
