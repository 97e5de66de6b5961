// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringView>

namespace roamlet::sample
{

enum class Layout;

/// How a browser arranges its files. The first is what most of Chromium's relatives do.
enum class Arrangement {
    Chromium,
    /// The names of its profiles follow from more than one value.
    Edge,
    /// Keeps what was deleted in a root of its own.
    Vivaldi,
    /// Further profiles in a folder of their own, and a root with more folders.
    Opera,
    /// The same with the first profile in the data folder itself.
    OldOpera,
    Firefox
};

/// One installed browser. The program has a table of its own, which this one must not follow: the samples
/// would prove nothing.
struct Installation {
    QStringView kind;
    /// What else is installed has a key, such as "flatpak"; the folders of earlier versions have "old".
    QStringView key;
    Arrangement arrangement = Arrangement::Chromium;
    /// Below "Library/Application Support"; empty where there is none.
    QStringView macFolder;
    /// Below the home.
    QStringView linuxFolder;

    /// The data folder, seen from the home. Throws Failure where this layout has none.
    QString dataFolder(Layout layout) const;
};

/// Every one that the samples know.
QList<Installation> allInstallations();
/// What is asked for as "KIND" or "KIND@KEY". Throws Failure.
const Installation &installation(const QString &name);

} // namespace roamlet::sample
