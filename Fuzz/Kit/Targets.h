// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Kit/Target.h"

namespace roamlet::fuzz
{

// Each stands in the file of its name in Targets.
Target chromiumBookmarks();
Target chromiumFavicons();
Target chromiumHistory();
Target chromiumProfiles();
Target columnLayout();
Target desktopEntry();
Target exportedBookmarks();
Target faviconImage();
Target firefoxFavicons();
Target firefoxGroup();
Target firefoxPlaces();
Target firefoxProfiles();
Target historyText();
Target likePattern();
Target linkOpening();
Target packageControl();
Target propertyList();
Target safariBookmarks();
Target safariFavicons();
Target safariHistory();
Target safariTabs();
Target settingsFile();
Target siteName();
Target updateFeed();
Target updateVersions();

} // namespace roamlet::fuzz
