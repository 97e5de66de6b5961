// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace roamlet
{

/// What the release wrote into the program about itself. A text that is missing, or that is no text, is
/// empty.
struct BundleInformation {
    /// "CFBundleName"
    QString name;
    /// "CFBundleVersion": the version that updates are compared with.
    QString version;
    /// "SUFeedURL": where updates are announced. Builds that nobody released have none.
    QString feedURL;
    /// "SUPublicEDKey": whose signature an update has to bear.
    QString publicKey;

    bool operator==(const BundleInformation &) const = default;

    /// The information in a property list; all empty when it is none.
    static BundleInformation parse(const QByteArray &propertyList);
    /// The information of this program.
    static BundleInformation ofThisProgram();
};

} // namespace roamlet
