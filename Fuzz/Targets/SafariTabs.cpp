// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseInput.h"
#include "Kit/Looks.h"
#include "Kit/Targets.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SafariFiles.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackSafariTabs(QByteArrayView bytes)
{
    static const FuzzHome home(u"Library/Containers/com.apple.Safari/Data/Library/Safari/SafariTabs.db"_s);
    DatabaseInput::of(bytes).attack(home, [] {
        static const ReadContext context = home.context();
        const QList<Source> profiles = SafariReader::profiles(context);
        require(!profiles.isEmpty() && !profiles.first().profile, "the default profile comes first");
        require(profiles.first().name == (profiles.size() == 1 ? u"Safari" : u"Personal"), "it has its name");
        lookAt(profiles);
    });
}

QList<QByteArray> safariTabSeeds()
{
    return databaseSeeds({.tables =
                              "CREATE TABLE bookmarks(id INTEGER PRIMARY KEY, title TEXT, server_id TEXT,"
                              "extra_attributes BLOB, subtype INTEGER, deleted INTEGER, order_index INTEGER)",
                          .earlier = "INSERT INTO bookmarks VALUES(1, 'Work', 'ID', NULL, 2, 0, 1)",
                          .later = "INSERT INTO bookmarks VALUES(2, 'Home', 'ID2', x'62706C697374', 2, 0, 2)",
                          .change = "UPDATE bookmarks SET title = 'wrong'"}) +
           QList<QByteArray>{databaseSeed([](const QString &path) {
               const QByteArray attributes =
                   sample::propertyList(QVariantMap{{u"CustomFavoritesFolderServerID"_s, u"X"_s}},
                                        sample::PropertyListFormat::Binary);
               sample::writeSafariTabs(
                   path, {{.title = u"Work"_s, .serverID = u"ID"_s, .extraAttributes = attributes}});
           })};
}

} // namespace

Target safariTabs()
{
    return {.name = "SafariTabs",
            .attack = attackSafariTabs,
            .seeds = safariTabSeeds,
            .dictionary = "Database",
            .longest = 60'000,
            .input = Target::Input::Database};
}

} // namespace roamlet::fuzz
