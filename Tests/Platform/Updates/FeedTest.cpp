// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/Feed.h"

#include "FeedText.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

const QUrl feedAddress(u"https://updates.example.org/roamlet/feed.xml"_s);

QList<FeedItem> items(const QByteArray &bytes)
{
    const auto result = Feed::parse(bytes, feedAddress);
    EXPECT_TRUE(result) << (result ? "" : qPrintable(result.error().detail));
    return result ? *result : QList<FeedItem>();
}

FeedItem item(const QByteArray &content)
{
    const QList<FeedItem> all = items(feedText(itemText("2.0", content)));
    EXPECT_EQ(all.size(), 1);
    return all.value(0);
}

void expectMalformed(const QByteArray &bytes)
{
    const auto result = Feed::parse(bytes, feedAddress);
    ASSERT_FALSE(result) << bytes.left(200).constData();
    EXPECT_EQ(result.error().code, UpdateError::Code::FeedMalformed);
    EXPECT_FALSE(result.error().detail.isEmpty());
}

TEST(FeedTest, anItemIsReadWithEverythingItHas)
{
    const FeedItem read = item("<sparkle:shortVersionString>2.0 Spring</sparkle:shortVersionString>"
                               "<sparkle:minimumSystemVersion>5.10</sparkle:minimumSystemVersion>"
                               "<sparkle:maximumSystemVersion>7</sparkle:maximumSystemVersion>"
                               "<sparkle:channel> beta </sparkle:channel>"
                               "<sparkle:criticalUpdate sparkle:version=\"1.5\"/>"
                               "<description><![CDATA[<h1>New & nice</h1>]]></description>"
                               "<enclosure url=\"https://example.org/Roamlet.deb\" length=\"1234\""
                               " type=\"application/vnd.debian.binary-package\" sparkle:os=\"Linux-arm64\""
                               " sparkle:edSignature=\"c2lnbmF0dXJl\"/>");
    EXPECT_EQ(read.version, u"2.0"_s);
    EXPECT_EQ(read.displayVersion, u"2.0 Spring"_s);
    EXPECT_EQ(read.minimumSystemVersion, u"5.10"_s);
    EXPECT_EQ(read.maximumSystemVersion, u"7"_s);
    EXPECT_EQ(read.channel, u"beta"_s);
    EXPECT_EQ(read.criticalBefore, u"1.5"_s);
    EXPECT_EQ(read.notes, (ReleaseNotes{ReleaseNotes::Format::Html, u"<h1>New & nice</h1>"_s}));
    EXPECT_EQ(read.packages, (QList<FeedItem::Package>{{.address = QUrl(u"https://example.org/Roamlet.deb"_s),
                                                        .length = 1234,
                                                        .signature = "c2lnbmF0dXJl",
                                                        .system = u"linux-arm64"_s}}));
}

TEST(FeedTest, itemsKeepTheOrderOfTheFeed)
{
    const QList<FeedItem> all =
        items(feedText(itemText("1.0", {}) + itemText("3.0", {}) + itemText("2.0", {})));
    ASSERT_EQ(all.size(), 3);
    EXPECT_EQ(all[0].version, u"1.0"_s);
    EXPECT_EQ(all[1].version, u"3.0"_s);
    EXPECT_EQ(all[2].version, u"2.0"_s);
}

TEST(FeedTest, olderFeedsHaveTheVersionsInTheEnclosure)
{
    const QList<FeedItem> all =
        items(feedText("<item><enclosure url=\"https://example.org/Roamlet.deb\" sparkle:version=\"205\""
                       " sparkle:shortVersionString=\"2.0.5\"/></item>"));
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(all[0].version, u"205"_s);
    EXPECT_EQ(all[0].displayVersion, u"2.0.5"_s);
}

TEST(FeedTest, withoutAVersionForPeopleTheOtherOneIsShown)
{
    EXPECT_EQ(item({}).displayVersion, u"2.0"_s);
    EXPECT_EQ(
        item("<sparkle:shortVersionString>" + QByteArray(100'000, 'x') + "</sparkle:shortVersionString>")
            .displayVersion,
        u"2.0"_s);
}

TEST(FeedTest, anItemWhoseVersionIsNoVersionIsLeftOut)
{
    const QList<FeedItem> all =
        items(feedText(itemText("", {}) + itemText("latest", {}) + itemText("v3", {}) +
                       itemText(QByteArray(200'000, '1'), {}) + "<item/>" + itemText(" 2.0\n", {})));
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(all[0].version, u"2.0"_s);
}

TEST(FeedTest, addressesMayBeRelativeToTheFeed)
{
    const FeedItem read = item("<enclosure url=\"../files/Roamlet 2.deb\"/>"
                               "<sparkle:releaseNotesLink> /notes.html </sparkle:releaseNotesLink>");
    EXPECT_EQ(read.packages.value(0).address, QUrl(u"https://updates.example.org/files/Roamlet 2.deb"_s));
    EXPECT_EQ(read.notesAddress, QUrl(u"https://updates.example.org/notes.html"_s));
}

TEST(FeedTest, anAddressThatDoesNotParseIsNone)
{
    for (const QByteArray text : {"https://exa mple.org:port/x.deb", "https://[::1/x.deb", "", "http://%zz/"})
        EXPECT_FALSE(item("<enclosure url=\"" + text + "\"/>").packages.value(0).address.isValid())
            << text.constData();
}

TEST(FeedTest, aLengthThatIsNoLengthIsNone)
{
    for (const QByteArray text : {"", "abc", "-5", "0", "1e9", "99999999999999999999999"})
        EXPECT_EQ(item("<enclosure url=\"x.deb\" length=\"" + text + "\"/>").packages.value(0).length,
                  std::nullopt)
            << text.constData();
}

TEST(FeedTest, theEnclosuresOfDeltasAreNoPackages)
{
    EXPECT_TRUE(item("<sparkle:deltas><enclosure url=\"x.deb\" sparkle:deltaFrom=\"1.0\"/></sparkle:deltas>")
                    .packages.isEmpty());
}

TEST(FeedTest, elementsOfOtherNamespacesAreNotOurs)
{
    const FeedItem read = item("<x:version xmlns:x=\"urn:x\">9</x:version><version>9</version>"
                               "<x:enclosure xmlns:x=\"urn:x\" url=\"x.deb\"/>");
    EXPECT_EQ(read.version, u"2.0"_s);
    EXPECT_TRUE(read.packages.isEmpty());
}

TEST(FeedTest, notesSayWhatTheyAreWrittenIn)
{
    EXPECT_EQ(item("<description sparkle:format=\"markdown\"># New</description>").notes,
              (ReleaseNotes{ReleaseNotes::Format::Markdown, u"# New"_s}));
    EXPECT_EQ(item("<description sparkle:format=\"plain-text\">New</description>").notes,
              (ReleaseNotes{ReleaseNotes::Format::Plain, u"New"_s}));
    EXPECT_EQ(item("<description>  </description>").notes, std::nullopt);
}

TEST(FeedTest, notesForEverybodyComeBeforeThoseInOneLanguage)
{
    EXPECT_EQ(item("<sparkle:releaseNotesLink xml:lang=\"de\">de.html</sparkle:releaseNotesLink>"
                   "<sparkle:releaseNotesLink>all.html</sparkle:releaseNotesLink>"
                   "<sparkle:releaseNotesLink xml:lang=\"fr\">fr.html</sparkle:releaseNotesLink>")
                  .notesAddress.fileName(),
              u"all.html"_s);
    EXPECT_EQ(item("<sparkle:releaseNotesLink xml:lang=\"de\">de.html</sparkle:releaseNotesLink>")
                  .notesAddress.fileName(),
              u"de.html"_s);
}

TEST(FeedTest, aCriticalUpdateMayBeATag)
{
    EXPECT_EQ(item({}).criticalBefore, std::nullopt);
    EXPECT_EQ(item("<sparkle:criticalUpdate/>").criticalBefore, QString());
    EXPECT_EQ(item("<sparkle:tags><sparkle:criticalUpdate/></sparkle:tags>").criticalBefore, QString());
}

TEST(FeedTest, aFeedWithoutItemsIsAFeed)
{
    EXPECT_TRUE(items(feedText({})).isEmpty());
    EXPECT_TRUE(items("<rss/>").isEmpty());
}

TEST(FeedTest, whatIsNoFeedIsAnErrorWithAReason)
{
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("\0\0\0", 3), QByteArray("not xml"), QByteArray("<html><body/></html>"),
          QByteArray("<?xml version=\"1.0\"?>"), QByteArray("<rss xmlns=\"urn:x\"/>"), QByteArray("\xff\xfe"),
          QByteArray("<rss><channel><item>&undefined;</item></channel></rss>"),
          QByteArray("<rss><channel></rss>"), QByteArray("<rss/><rss/>"), QByteArray("{\"rss\": 1}")})
        expectMalformed(bytes);
}

TEST(FeedTest, aFeedThatIsCutAnywhereIsAnError)
{
    const QByteArray whole = feedText(itemText("2.0", "<enclosure url=\"x.deb\" length=\"1\"/>")).trimmed();
    for (qsizetype length = 0; length < whole.size(); ++length)
        expectMalformed(whole.first(length));
}

TEST(FeedTest, entitiesDoNotExpand)
{
    QByteArray bomb = "<!DOCTYPE rss [<!ENTITY a0 \"ha\">";
    for (int i = 1; i < 30; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + before + before + "\">";
    }
    bomb += "]>";
    expectMalformed(bomb + "<rss><channel><item><title>&a29;</title></item></channel></rss>");
    expectMalformed("<!DOCTYPE rss SYSTEM \"file:///etc/passwd\"><rss/>");
    expectMalformed("<!DOCTYPE rss [<!ENTITY x SYSTEM \"file:///etc/passwd\">]><rss>&x;</rss>");
}

TEST(FeedTest, deepNestingIsRefusedWhereverItIs)
{
    const auto nested = [](qsizetype depth) -> QByteArray {
        return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
    };
    for (const QByteArray element : {"description", "sparkle:channel", "sparkle:deltas", "unknown"}) {
        const auto within = [&element](const QByteArray &content) {
            return feedText(itemText("2.0", "<" + element + ">" + content + "</" + element + ">"));
        };
        EXPECT_EQ(items(within(nested(40))).size(), 1) << element.constData();
        expectMalformed(within(nested(100'000)));
    }
    expectMalformed(nested(100'000));
    expectMalformed(feedText(itemText(nested(100'000), {})));
}

TEST(FeedTest, noTagHasMoreAttributesThanAFeedNeeds)
{
    const auto attributes = [](int count, const QByteArray &before = "a", const QByteArray &value = "1") {
        QByteArray result;
        for (int i = 0; i < count; ++i)
            result += ' ' + before + QByteArray::number(i) + "='" + value + '\'';
        return result;
    };
    EXPECT_EQ(item("<a" + attributes(50) + "/><b" + attributes(50) + "></b>").version, u"2.0"_s);
    for (const int count : {51, 60'000})
        expectMalformed(feedText(itemText("2.0", "<a" + attributes(count) + "/>")));
    expectMalformed(feedText(itemText("2.0", "<!-- - --><a" + attributes(51, "b", ">") + "/>")));
    // What is no tag has none.
    const QByteArray notes = "<![CDATA[a <" + attributes(100) + "]]>";
    EXPECT_EQ(item("<!-- <a" + attributes(100) + " --><description>" + notes + "</description>").version,
              u"2.0"_s);
}

TEST(FeedTest, noMoreNamespacesAreDeclaredAroundAnElementThanAFeedNeeds)
{
    const auto nested = [](int depth, int each) -> QByteArray {
        QByteArray content;
        for (int level = 0; level < depth; ++level) {
            content += "<a";
            for (int i = 0; i < each; ++i)
                content += " xmlns:n" + QByteArray::number((level * each) + i) + "='x'";
            content += '>';
        }
        return content + QByteArray("</a>").repeated(depth);
    };
    EXPECT_EQ(item(nested(20, 2)).version, u"2.0"_s);
    expectMalformed(feedText(itemText("2.0", nested(30, 2))));
    EXPECT_EQ(item(nested(1, 40).repeated(100)).version, u"2.0"_s) << "they end with their element";
}

TEST(FeedTest, whatIsNoElementIsNotNested)
{
    const QByteArray tags = QByteArray("<a>").repeated(1'000);
    EXPECT_EQ(item("<!-- " + tags + " --><description><![CDATA[" + tags + "]]></description>").notes,
              (ReleaseNotes{ReleaseNotes::Format::Html, QString::fromLatin1(tags)}));
    EXPECT_EQ(item(QByteArray("<a b='/>'/><c d=\"'>\"></c>").repeated(1'000)).version, u"2.0"_s);
}

TEST(FeedTest, aFeedThatIsTooLongIsRefused)
{
    EXPECT_EQ(item(QByteArray(Feed::longest - 1'000, ' ')).version, u"2.0"_s);
    expectMalformed(feedText(itemText("2.0", QByteArray(Feed::longest, ' '))));
}

TEST(FeedTest, aFeedMayBeInEitherEncodingOfXml)
{
    const QString text = QString::fromUtf8(feedText(itemText("2.0", "<description>é€𝄞</description>")));
    for (const auto encoding :
         {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        const QList<FeedItem> read = items(encoder(text));
        ASSERT_EQ(read.size(), 1);
        EXPECT_EQ(read[0].notes, (ReleaseNotes{ReleaseNotes::Format::Html, u"é€𝄞"_s}));
    }
    expectMalformed(feedText(itemText("2.0", "<description>\xE9 </description>")));
}

} // namespace
} // namespace roamlet::testing
