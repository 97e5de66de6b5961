// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/ReadContext.h"

#include "Platform/Folders.h"

namespace roamlet
{

BrowserFolders BrowserFolders::of(const Folders &folders)
{
    const QString safari = Source::rawValue(Source::Kind::Safari);
    return {.temporary = folders.temporary(),
            .safari = folders.dataRoot(safari),
            .safariContainer = folders.safariContainer(),
            .chrome = folders.dataRoot(Source::rawValue(Source::Kind::Chrome)),
            .edge = folders.dataRoot(Source::rawValue(Source::Kind::Edge)),
            .hasSafari = folders.hasData(safari)};
}

QString BrowserFolders::safariProfiles() const
{
    return safariContainer % u"/Profiles";
}

QString BrowserFolders::chromium(Source::Kind kind) const
{
    switch (kind) {
    case Source::Kind::Chrome:
        return chrome;
    case Source::Kind::Edge:
        return edge;
    case Source::Kind::Safari:
        break;
    }
    return {};
}

} // namespace roamlet
