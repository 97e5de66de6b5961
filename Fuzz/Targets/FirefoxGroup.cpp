// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseInput.h"
#include "Kit/Looks.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Readers/BrowserReader.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PlainFiles.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

const QString folderOfFirefox = u"Library/Application Support/Firefox/"_s;

void attackFirefoxGroup(QByteArrayView bytes)
{
    static const FuzzHome home(folderOfFirefox % u"Profile Groups/1234abcd.sqlite"_s);
    [[maybe_unused]] static const bool isListed = [] {
        const QString folder = home.path() % u'/' % folderOfFirefox;
        for (const QString &profile : {u"abcd.default"_s, u"efgh.work"_s})
            sample::writeFile(folder % profile % u"/places.sqlite"_s, {});
        sample::writeFirefoxProfiles(
            folder % u"profiles.ini"_s,
            {{.name = u"default"_s, .path = u"abcd.default"_s, .isDefault = true, .storeID = u"1234abcd"_s}});
        return true;
    }();
    DatabaseInput::of(bytes).attack(home, [] {
        static const ReadContext context = home.context();
        const QList<Source> profiles = BrowserReader::profiles(firefox().kind, context);
        lookAt(profiles);
        for (const Source &source : profiles)
            require(context.files->exists(context.folders.profile(source, *context.files)),
                    "a profile has a folder");
    });
}

QList<QByteArray> firefoxGroupSeeds()
{
    return databaseSeeds(
               {.tables = "CREATE TABLE Profiles(id INTEGER PRIMARY KEY, path TEXT NOT NULL, name TEXT)",
                .earlier = "INSERT INTO Profiles VALUES(1, 'abcd.default', 'Default')",
                .later = "INSERT INTO Profiles VALUES(2, 'efgh.work', 'Work'), (3, '../x', 'Zoë')",
                .change = "UPDATE Profiles SET name = 'wrong'"}) +
           QList<QByteArray>{databaseSeed([](const QString &path) {
               sample::writeFirefoxGroup(path, {{.path = u"abcd.default"_s, .name = u"Default"_s},
                                                {.path = u"efgh.work"_s, .name = u"Work"_s}});
           })};
}

} // namespace

Target firefoxGroup()
{
    return {.name = "FirefoxGroup",
            .attack = attackFirefoxGroup,
            .seeds = firefoxGroupSeeds,
            .dictionary = "Database",
            .longest = 60'000,
            .input = Target::Input::Database};
}

} // namespace roamlet::fuzz
