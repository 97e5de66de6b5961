// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/Targets.h"

namespace roamlet::fuzz
{

const std::vector<Target> &allTargets()
{
    static const std::vector<Target> targets{
        chromiumBookmarks(), chromiumFavicons(),  chromiumHistory(), chromiumProfiles(), columnLayout(),
        desktopEntry(),      exportedBookmarks(), faviconImage(),    firefoxFavicons(),  firefoxGroup(),
        firefoxPlaces(),     firefoxProfiles(),   historyText(),     likePattern(),      linkOpening(),
        packageControl(),    propertyList(),      safariBookmarks(), safariFavicons(),   safariHistory(),
        safariTabs(),        settingsFile(),      siteName(),        updateFeed(),       updateVersions(),
    };
    return targets;
}

} // namespace roamlet::fuzz
