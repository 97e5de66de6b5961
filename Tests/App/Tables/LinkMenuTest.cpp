// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/LinkMenu.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using Kind = Source::Kind;

const QList<Kind> all{Kind::Safari, Kind::Chrome, Kind::Edge};

Source profile(Kind kind, const QString &name)
{
    return {.kind = kind, .profile = name, .name = name, .safariBookmarks = Source::None{}};
}

const Source workProfile = profile(Kind::Chrome, u"Work"_s);
const Source homeProfile = profile(Kind::Chrome, u"Home"_s);
const Source officeProfile = profile(Kind::Edge, u"Office"_s);

TableRow link(const Source &source, const QString &site = u"example.org"_s,
              const std::optional<QString> &folderID = {})
{
    TableRow row;
    row.id = source.id() % u"/1";
    row.url = u"https://" % site % u'/';
    row.site = site;
    row.folderID = folderID;
    row.source = source;
    return row;
}

TableRow folder(const Source &source, const QString &id)
{
    TableRow row;
    row.kind = TableRow::Kind::Folder;
    row.id = id;
    row.source = source;
    return row;
}

/// The titles, with "-" for a separator.
std::vector<std::string> titles(const LinkMenuSubject &subject, const QList<Kind> &installed = all)
{
    std::vector<std::string> result;
    for (const LinkMenuEntry &entry : linkMenuEntries(subject, installed)) {
        const bool isSeparator = entry.action == LinkMenuEntry::Action::Separator;
        result.push_back(isSeparator ? "-" : entry.title.toStdString());
    }
    return result;
}

} // namespace

TEST(LinkMenuTest, oneRowOfEdgeNamesEdge)
{
    EXPECT_THAT(titles(LinkMenuSubject::ofHistory({link(officeProfile)})),
                ElementsAre("Show Edge History", "-", "Open in Edge", "Open in Safari", "Open in Chrome", "-",
                            "Copy URL", "-", "Show Only example.org"));
}

TEST(LinkMenuTest, threeRowsAreCounted)
{
    EXPECT_THAT(
        titles(LinkMenuSubject::ofHistory({link(workProfile), link(homeProfile), link(officeProfile)})),
        ElementsAre("Open in Original Browsers", "Open in Safari", "Open in Chrome", "Open in Edge", "-",
                    "Copy 3 URLs", "-", "Show Only example.org"));
}

TEST(LinkMenuTest, severalRowsOfOneBrowserAreOfferedTheOthers)
{
    EXPECT_THAT(titles(LinkMenuSubject::ofHistory({link(workProfile), link(homeProfile)})),
                ElementsAre("Open in Original Browsers", "Open in Safari", "Open in Edge", "-", "Copy 2 URLs",
                            "-", "Show Only example.org"));
}

TEST(LinkMenuTest, onlyInstalledBrowsersAreOfferedBesideTheOwnOne)
{
    EXPECT_THAT(titles(LinkMenuSubject::ofHistory({link(workProfile)}), {Kind::Edge}),
                ElementsAre("Show Chrome History", "-", "Open in Chrome", "Open in Edge", "-", "Copy URL",
                            "-", "Show Only example.org"));
    EXPECT_THAT(titles(LinkMenuSubject::ofHistory({link(workProfile)}), {}),
                ElementsAre("Show Chrome History", "-", "Open in Chrome", "-", "Copy URL", "-",
                            "Show Only example.org"));
}

TEST(LinkMenuTest, aHistoryIsShownForRowsOfOneProfileOnly)
{
    EXPECT_EQ(LinkMenuSubject::ofHistory({link(workProfile), link(workProfile)}).historySource, workProfile);
    EXPECT_EQ(LinkMenuSubject::ofHistory({link(workProfile), link(homeProfile)}).historySource, std::nullopt);
    EXPECT_EQ(LinkMenuSubject::ofHistory({link(workProfile)}).editTarget, std::nullopt);
}

TEST(LinkMenuTest, rowsOfDifferentSitesAreNotNarrowedToOne)
{
    EXPECT_THAT(titles(LinkMenuSubject::ofHistory(
                    {link(workProfile, u"a.example"_s), link(workProfile, u"b.example"_s)})),
                ElementsAre("Show Chrome History", "-", "Open in Original Browsers", "Open in Safari",
                            "Open in Edge", "-", "Copy 2 URLs"));
}

TEST(LinkMenuTest, aRowWithoutASiteIsNotNarrowedToIt)
{
    EXPECT_THAT(titles(LinkMenuSubject::ofHistory({link(workProfile, {})}), {}),
                ElementsAre("Show Chrome History", "-", "Open in Chrome", "-", "Copy URL"));
}

TEST(LinkMenuTest, bookmarksAreEditedInTheirFolder)
{
    const LinkMenuSubject subject =
        LinkMenuSubject::ofBookmarks({link(workProfile, u"example.org"_s, u"chrome/Work/7"_s)});
    EXPECT_EQ(subject.editTarget, (EditTarget{workProfile, u"chrome/Work/7"_s}));
    EXPECT_THAT(titles(subject), ElementsAre("Edit Chrome Bookmarks", "-", "Open in Chrome", "Open in Safari",
                                             "Open in Edge", "-", "Copy URL", "-", "Show Only example.org"));
}

TEST(LinkMenuTest, bookmarksOfDifferentFoldersAreEditedWithoutOne)
{
    EXPECT_EQ(LinkMenuSubject::ofBookmarks(
                  {link(workProfile, {}, u"chrome/Work/7"_s), link(workProfile, {}, u"chrome/Work/8"_s)})
                  .editTarget,
              (EditTarget{workProfile, {}}));
    EXPECT_EQ(LinkMenuSubject::ofBookmarks({link(workProfile), link(homeProfile)}).editTarget, std::nullopt);
}

TEST(LinkMenuTest, aFolderIsOnlyEdited)
{
    const LinkMenuSubject subject = LinkMenuSubject::ofBookmarks({folder(officeProfile, u"edge/Office/3"_s)});
    EXPECT_EQ(subject.editTarget, (EditTarget{officeProfile, u"edge/Office/3"_s}));
    EXPECT_THAT(titles(subject), ElementsAre("Edit Edge Bookmarks"));
}

TEST(LinkMenuTest, theFolderOfAWholeSourceIsNoneOfTheBrowsers)
{
    EXPECT_EQ(LinkMenuSubject::ofBookmarks({folder(workProfile, u"source/chrome/Work"_s)}).editTarget,
              (EditTarget{workProfile, {}}));
    EXPECT_EQ(LinkMenuSubject::ofBookmarks({link(workProfile, {}, u"source/chrome/Work"_s)}).editTarget,
              (EditTarget{workProfile, {}}));
}

TEST(LinkMenuTest, foldersAmongLinksDoNotCount)
{
    const LinkMenuSubject subject =
        LinkMenuSubject::ofBookmarks({folder(workProfile, u"chrome/Work/3"_s), link(workProfile)});
    EXPECT_EQ(subject.items.size(), 1);
    EXPECT_EQ(subject.site, u"example.org"_s);
}

TEST(LinkMenuTest, noRowsHaveNoMenu)
{
    EXPECT_THAT(titles(LinkMenuSubject::ofHistory({})), IsEmpty());
    EXPECT_THAT(titles(LinkMenuSubject::ofBookmarks({})), IsEmpty());
}

TEST(LinkMenuTest, urlsAreCopiedLineByLine)
{
    EXPECT_EQ(clipboardText({{u"https://a/"_s, workProfile}, {u"https://b/"_s, homeProfile}}),
              u"https://a/\nhttps://b/");
    EXPECT_EQ(clipboardText({{u"https://a/"_s, workProfile}}), u"https://a/");
}

} // namespace roamlet::testing
