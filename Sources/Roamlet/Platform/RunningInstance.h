// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <utility>

namespace roamlet
{

/// Sees to it that the program runs once for each user session. On the main thread.
class RunningInstance
{
public:
    enum class Claim {
        First,      ///< this is the one; later starts activate it
        HandedOver, ///< another one runs already and has heard the wish; this process is to end
        Alone,      ///< the system offers no way to find out; run as if it were the first
    };
    /// What a start wants of the one that runs already.
    struct Wish {
        enum Kind {
            ComeForward,     ///< the user has started the program once more
            RestoreSession,  ///< the desktop has, and the windows of its last session shall come back
            Nothing,         ///< the desktop has, and nobody waits for a window
            Search,          ///< to look for pages
            Bookmarks,       ///< to see all bookmarks
            ExportBookmarks, ///< to save them
        };

        // Most wishes are no more than their kind.
        // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions)
        Wish(Kind wished, QString typed = {}) : kind(wished), words(std::move(typed)) {}

        bool operator==(const Wish &) const = default;

        Kind kind;
        /// What to search for; empty where that is still to be typed.
        QString words;
    };

    RunningInstance() = default;
    RunningInstance(const RunningInstance &) = delete;
    RunningInstance &operator=(const RunningInstance &) = delete;
    virtual ~RunningInstance() = default;

    /// Claims to be the running program. As the first one, `activated` is called for each later start that
    /// wishes something.
    virtual Claim claim(const Wish &wish, std::function<void(const Wish &)> activated) = 0;
    /// The program is about to end: from now on a later start is the first one.
    virtual void release() = 0;
};

} // namespace roamlet
