// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QSet>
#include <QString>

#include <array>
#include <optional>
#include <variant>

namespace roamlet
{

/// One browser profile that can be read.
struct Source {
    enum class Kind { Safari, Chrome, Edge };

    /// The kinds that keep Chromium's file layout, in the order in which they are listed.
    static constexpr std::array chromium{Kind::Chrome, Kind::Edge};

    /// Which part of Safari's single bookmark file belongs to a source.
    struct AllExcept {
        QSet<QString> serverIDs;
        bool operator==(const AllExcept &) const = default;
    };
    struct Folder {
        QString serverID;
        bool operator==(const Folder &) const = default;
    };
    struct None {
        bool operator==(const None &) const = default;
    };
    using SafariBookmarks = std::variant<AllExcept, Folder, None>;

    Kind kind = Kind::Safari;
    /// The browser's own key of the profile; absent for Safari's default profile.
    std::optional<QString> profile;
    /// The profile's display name as the browser shows it.
    QString name;
    SafariBookmarks safariBookmarks;

    bool operator==(const Source &) const = default;

    /// The key of this source everywhere: in maps, in stored settings, in reports, as the prefix of record
    /// ids.
    QString id() const;
    /// The text shown for this source: "Chrome - Work", or only the browser's name when the profile has it
    /// too.
    QString label() const;

    /// Safari's default profile on a machine without named Safari profiles.
    static Source safari();
    /// "safari", "chrome" or "edge".
    static QString rawValue(Kind kind);
    /// The kind with this raw value, or nothing.
    static std::optional<Kind> kindFromRawValue(QStringView rawValue);
    /// "Safari", "Chrome" or "Edge".
    static QString displayName(Kind kind);
};

size_t qHash(const Source::SafariBookmarks &selection, size_t seed = 0);
size_t qHash(const Source &source, size_t seed = 0);

} // namespace roamlet
