// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/Targets.h"
#include "Platform/Linux/Updates/Session/Feed.h"
#include "Platform/Linux/Updates/Versions.h"
#include "Platform/Updates/FeedText.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackUpdateFeed(QByteArrayView bytes)
{
    static const QUrl address(u"https://updates.example/feed/appcast.xml"_s);
    const auto items = Feed::parse(bytes.toByteArray(), address);
    if (!items) {
        require(items.error().code == UpdateError::Code::FeedMalformed, "bytes can only be malformed");
        return;
    }
    for (const FeedItem &item : *items) {
        require(Versions::isVersion(item.version) && Versions::isVersion(item.displayVersion),
                "a release has a version");
        for (const FeedItem::Package &package : item.packages) {
            require(package.length.value_or(1) > 0, "a length is one");
            require(!package.address.isValid() || !package.address.isRelative(), "an address is whole");
        }
        require(!item.notesAddress.isValid() || !item.notesAddress.isRelative(), "an address is whole");
        require(!item.notes || !item.notes->text.isEmpty(), "notes say something");
    }
    const UpdateHost host{.version = u"1.0"_s, .systemVersion = u"6.1"_s, .architecture = u"x86_64"_s};
    const auto best = UpdateChoice::best(*items, host);
    if (!best)
        return;
    require(Versions::compare(best->item.version, host.version) > 0, "an update is newer");
    require(best->item.packages.contains(best->package), "the package is the release's");
    require(best->update().version == best->item.version, "what is told is what was chosen");
    for (const FeedItem &item : *items) {
        const auto alone = UpdateChoice::best({item}, host);
        require(!alone || Versions::compare(item.version, best->item.version) <= 0,
                "the best one is the newest");
    }
}

QList<QByteArray> updateFeedSeeds()
{
    using testing::feedText;
    using testing::itemText;
    const QByteArray package = "<enclosure url=\"roamlet_2.0_amd64.deb\" length=\"100\" sparkle:os=\"linux\" "
                               "sparkle:edSignature=\"YWJj\" type=\"application/octet-stream\"/>";
    return {
        feedText({}),
        feedText(itemText("2.0", package + "<description sparkle:format=\"markdown\">*new*</description>") +
                 itemText("1.5", package + "<sparkle:tags><sparkle:criticalUpdate/></sparkle:tags>")),
        feedText(itemText("2.0b1", package +
                                       "<sparkle:criticalUpdate sparkle:version=\"1.2\"/>"
                                       "<sparkle:minimumSystemVersion>5.0</sparkle:minimumSystemVersion>"
                                       "<sparkle:maximumSystemVersion>7.0</sparkle:maximumSystemVersion>"
                                       "<sparkle:shortVersionString>2</sparkle:shortVersionString>"
                                       "<sparkle:releaseNotesLink xml:lang=\"de\">n.html"
                                       "</sparkle:releaseNotesLink><sparkle:channel>x</sparkle:channel>")),
        feedText("<item><enclosure url=\"https://b.example/a.DEB\" sparkle:version=\"3\" "
                 "sparkle:os=\"linux-arm64\"/><description><![CDATA[<b>bold</b>]]></description></item>")};
}

} // namespace

Target updateFeed()
{
    return {.name = "UpdateFeed",
            .attack = attackUpdateFeed,
            .seeds = updateFeedSeeds,
            .dictionary = "UpdateFeed",
            .longest = 8192};
}

} // namespace roamlet::fuzz
