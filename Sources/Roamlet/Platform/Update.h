// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace roamlet
{

/// What a release has to say about itself. Foreign text: to be shown without scripts, and without loading
/// anything that it names.
struct ReleaseNotes {
    enum class Format { Html, Markdown, Plain };

    Format format = Format::Html;
    QString text;

    bool operator==(const ReleaseNotes &) const = default;
};

/// A newer version of the program that can be had.
struct Update {
    /// The version that decides what is newer.
    QString version;
    /// The version as people read it.
    QString displayVersion;
    /// Absent when there are none, or when they still have to be fetched.
    std::optional<ReleaseNotes> notes;
    /// The bytes to be downloaded, when that is known.
    std::optional<std::int64_t> size;
    /// Whether the release asks not to be put off.
    bool isCritical = false;

    bool operator==(const Update &) const = default;
};

/// Why there is no update. Only the app turns it into words.
struct UpdateError {
    enum class Code {
        NotConfigured,    ///< this build names no feed or no usable key, or it lacks a part: the detail
        InsecureAddress,  ///< an address is no address, or one that anybody on the way could answer for
        TooManyRedirects, ///< the server sends us in circles
        NetworkFailed,    ///< the detail is the system's words, if it has any
        TimedOut,         ///< nothing came for too long
        ServerRefused,    ///< the detail is the server's status
        FeedTooLarge,     ///< the feed is longer than any honest one
        FeedMalformed,    ///< the detail is the parser's words
        PackageUnsigned,  ///< the update has no signature
        PackageTooLarge,  ///< the package is larger than any honest one
        WrongLength,      ///< the package is not as long as the feed says
        WrongSignature,   ///< the package is not what was signed
        WrongPackage,     ///< it is signed, but is not what was announced; the detail says what it is
        CannotWrite,      ///< the detail is the system's words
        InstallRefused,   ///< the system did not get the permission to install it
        CannotInstall,    ///< the system could not install it; the detail is its words
        RestartNeeded,    ///< another version was installed while this one runs
        NoInstaller,      ///< the package arrived and nobody takes it; the detail is its path
    };

    Code code = Code::NetworkFailed;
    QString detail;

    bool operator==(const UpdateError &) const = default;
};

} // namespace roamlet
