// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

/// What the release wrote into the program about itself.
struct BundleInformation {
    QString name;
    /// The version that updates are compared with.
    QString version;
    /// Where updates are announced. Builds that nobody released have none.
    QString feedURL;
    /// Whose signature an update has to bear.
    QString publicKey;

    /// The information of this program.
    static BundleInformation ofThisProgram();
};

} // namespace roamlet
