// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QSet>
#include <QString>

#include <cstdint>
#include <optional>
#include <variant>

namespace roamlet
{

/// One browser profile that can be read.
struct Source {
    /// Which browser: a row of the table of browsers. Only the first ones have names here; all others are
    /// found by what they are called.
    enum class Kind : std::uint8_t { Safari, Chrome, Edge };

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
    /// The key of the browser's installation that it belongs to; empty for the native release.
    // The compiler wants it from whoever names only some of the members.
    // NOLINTNEXTLINE(readability-redundant-member-init)
    QString installation = {};
    /// Whether the label tells the installation, because several of them have profiles.
    bool namesInstallation = false;

    bool operator==(const Source &) const = default;

    /// The key of this source everywhere: in maps, in stored settings, in reports, as the prefix of record
    /// ids.
    QString id() const;
    /// The text shown for this source: "Chrome - Work", "Chrome Beta - Work", or only the browser's name when
    /// the profile has it too.
    QString label() const;

    /// Whether it holds the bookmarks of all of Safari, which no other source can stand in for.
    bool holdsMainSafariBookmarks() const;

    /// Safari's default profile on a machine without named Safari profiles.
    static Source safari();
    /// The text that stands for the kind in ids and settings: "safari", "chrome", "edge" …
    static QString rawValue(Kind kind);
    /// The kind with this raw value, or nothing.
    static std::optional<Kind> kindFromRawValue(QStringView rawValue);
    /// What people call the browser: "Safari", "Chrome", "Edge" …
    static QString displayName(Kind kind);
};

size_t qHash(const Source::SafariBookmarks &selection, size_t seed = 0);
size_t qHash(const Source &source, size_t seed = 0);

} // namespace roamlet
