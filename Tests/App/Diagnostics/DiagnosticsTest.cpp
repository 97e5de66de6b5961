// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsTest.h"

#include "App/Diagnostics/Diagnostics.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SafariFiles.h"
#include "Support/FolderFingerprint.h"

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

const std::string DiagnosticsTest::seconds = "[0-9]+\\.[0-9][0-9]";

int DiagnosticsTest::run(const QStringList &arguments)
{
    const FolderFingerprint before(home.path());
    const int status = Diagnostics::run(Command::of(arguments), home.platform(), console, stop.get_token());
    EXPECT_EQ(before.differencesTo(FolderFingerprint(home.path())), "");
    EXPECT_EQ(home.leftovers(), QStringList());
    return status;
}

QByteArray DiagnosticsTest::outputOf(const QStringList &arguments)
{
    console.output.clear();
    EXPECT_EQ(run(arguments), 0);
    return console.output;
}

QStringList DiagnosticsTest::linesOf(const QStringList &arguments)
{
    outputOf(arguments);
    return console.lines();
}

QStringList DiagnosticsTest::rowsOf(const QStringList &arguments)
{
    QStringList lines = linesOf(arguments);
    if (!lines.isEmpty())
        lines.removeLast();
    return lines;
}

void DiagnosticsTest::switchOff(const QStringList &ids)
{
    home.defaults.setStringList(u"disabledProfiles"_s, ids);
}

void DiagnosticsTest::addSafari() const
{
    sample::writeSafariHistory(
        safari(u"History.db"_s), {{.id = 1, .url = u"https://apple.example/"_s}},
        {{.itemID = 1, .time = sample::safariTime(BrowserHome::newest), .title = u"Apple"_s}});
    const QVariantMap bookmark = sample::safariBookmark(u"A"_s, u"Apple"_s, u"https://apple.example/"_s, {});
    const QVariantMap bar = sample::safariFolder(u"B"_s, u"BookmarksBar"_s, {bookmark});
    sample::writePropertyList(safari(u"Bookmarks.plist"_s), QVariantMap{{u"Children"_s, QVariantList{bar}}},
                              sample::PropertyListFormat::Binary);
}

} // namespace roamlet::testing
