// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace roamlet
{

/// All that is known of one browser. One table holds every browser; a further one of a known family is one
/// more row there.
struct Browser {
    /// Browsers of one family keep the same files and are started with the same arguments.
    enum class Family { Safari, Chromium, Firefox };

    /// A folder of the user's.
    struct Place {
        enum class Base {
            Home,       ///< below the home folder
            Config,     ///< below the folder for configurations
            MacSupport, ///< below "Library/Application Support", as a home folder that came from a Mac has it
        };

        Base base = Base::Home;
        QString path;
    };

    /// One way in which the browser comes to a machine. A machine may have several, each with its own
    /// profiles.
    struct Installation {
        enum class Packaging { Native, Flatpak, Snap };

        /// Empty for the native release, otherwise the channel, the sandbox or both: "beta", "beta-flatpak".
        QString key;
        /// Where its data may lie, best first.
        QList<Place> places;
        /// The names that its desktop entry may have, without the suffix.
        QStringList desktopEntries;
        /// The classes of its windows, where the desktop entry names none.
        QStringList windowClasses;

        /// What its key says.
        Packaging packaging() const;
    };

    Source::Kind kind = {};
    QString rawValue;
    QString displayName;
    Family family = Family::Chromium;
    /// What it is called on a Mac; empty where we do not know, and the application has the display name.
    QString bundleID;
    /// The address of its page of the history.
    QString historyPage;
    /// The address of its bookmark manager.
    QString bookmarksPage;
    /// What follows in that address before a folder's number; empty where no folder can be shown.
    QString folderQuery;
    QList<Installation> installations;
    /// Whether profiles of guests, and those that go when they are closed, are listed, too.
    bool listsEphemeralProfiles = false;
    /// Whether a profile that was never named is called "Personal" where its account is a private one.
    bool namesPersonalProfiles = false;
    /// Whether a profile may lie in the data folder itself, others lie in "_side_profiles", and bookmarks
    /// have further roots in "custom_root".
    bool hasOperaLayout = false;

    /// Every browser, in the order in which they are listed.
    static const QList<Browser> &all();
    /// The row of a kind, which must be one of the table's.
    static const Browser &of(Source::Kind kind);
    /// The file in a data folder that lists the profiles. A folder without it has none.
    static QString profileList(Family family);
    /// The file in a profile's folder that holds its history.
    static QString historyFile(Family family);
    /// Where an Opera keeps its further profiles.
    static constexpr QStringView sideProfilesFolder = u"_side_profiles";
    /// The name of Opera's side profile that has this key, "_side_profiles/Work" or
    /// "_side_profiles/Work/Default"; empty for any other profile.
    static QString sideProfile(const QString &key);
    /// "Beta", "(Snap)", "Beta (Flatpak)": how an installation with this key is told apart.
    static QString installationName(const QString &key);
};

} // namespace roamlet
