// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Feed.h"

#include "Platform/Linux/Updates/Versions.h"
#include "Platform/Linux/Updates/XmlWeight.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

#include <utility>

namespace roamlet::Feed
{

using namespace Qt::StringLiterals;

namespace
{

/// The names of the feed format that are not RSS's own.
constexpr QLatin1StringView extensions("http://www.andymatuschak.org/xml-namespaces/sparkle");

/// Notes can hold elements of their own, but no feed comes near to this; and what stays below is read at
/// once.
constexpr XmlWeight heaviestFeed{.elements = 20'000, .attributes = 50, .depth = 50};

class Parser
{
public:
    Parser(const QString &text, QUrl address) : m_xml(text), m_address(std::move(address)) {}

    std::expected<QList<FeedItem>, UpdateError> parse()
    {
        // A document type can define entities that unfold to anything; no feed needs one.
        while (!m_xml.atEnd() && !m_xml.isStartElement()) {
            if (m_xml.readNext() == QXmlStreamReader::DTD)
                m_xml.raiseError(u"Document type declaration"_s);
        }
        if (!m_xml.hasError() && !isPlain("rss"_L1))
            m_xml.raiseError(u"No feed"_s);
        readChildren([this] {
            if (isPlain("channel"_L1))
                readChannel();
            else
                m_xml.skipCurrentElement();
        });
        // What follows the end of the feed counts as well.
        while (!m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError())
            return std::unexpected(UpdateError{UpdateError::Code::FeedMalformed, m_xml.errorString()});
        return std::move(m_items);
    }

private:
    bool isPlain(QLatin1StringView name) const
    {
        return m_xml.namespaceUri().isEmpty() && m_xml.name() == name;
    }
    bool isExtension(QLatin1StringView name) const
    {
        return m_xml.namespaceUri() == extensions && m_xml.name() == name;
    }

    /// Calls `read` at each child of the current element; it has to read to that child's end.
    template<typename Read>
    void readChildren(Read read)
    {
        while (m_xml.readNextStartElement())
            read();
    }

    QString text() { return m_xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed(); }

    QUrl absolute(const QString &address) const
    {
        const QUrl url(address.trimmed(), QUrl::TolerantMode);
        return url.isValid() && !url.isEmpty() ? m_address.resolved(url) : QUrl();
    }

    void readChannel()
    {
        readChildren([this] {
            if (isPlain("item"_L1))
                readItem();
            else
                m_xml.skipCurrentElement();
        });
    }

    void readItem()
    {
        FeedItem item;
        readChildren([this, &item] { readItemPart(item); });
        if (!Versions::isVersion(item.version))
            return;
        if (!Versions::isVersion(item.displayVersion))
            item.displayVersion = item.version;
        m_items.append(std::move(item));
    }

    void readItemPart(FeedItem &item)
    {
        if (isPlain("enclosure"_L1))
            readEnclosure(item);
        else if (isPlain("description"_L1))
            readNotes(item);
        else if (isExtension("version"_L1))
            item.version = text();
        else if (isExtension("shortVersionString"_L1))
            item.displayVersion = text();
        else if (isExtension("channel"_L1))
            item.channel = text();
        else if (isExtension("minimumSystemVersion"_L1))
            item.minimumSystemVersion = text();
        else if (isExtension("maximumSystemVersion"_L1))
            item.maximumSystemVersion = text();
        else if (isExtension("releaseNotesLink"_L1))
            readNotesLink(item);
        else if (isExtension("criticalUpdate"_L1))
            readCriticalUpdate(item);
        else if (isExtension("tags"_L1))
            readTags(item);
        else
            // Among these are the "deltas", whose enclosures are no packages of their own.
            m_xml.skipCurrentElement();
    }

    void readEnclosure(FeedItem &item)
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        // Older feeds have the versions here.
        if (const auto version = attributes.value(extensions, "version"_L1); item.version.isEmpty())
            item.version = version.trimmed().toString();
        if (const auto version = attributes.value(extensions, "shortVersionString"_L1);
            item.displayVersion.isEmpty())
            item.displayVersion = version.trimmed().toString();
        FeedItem::Package package;
        package.address = absolute(attributes.value("url"_L1).toString());
        bool isNumber = false;
        const qint64 length = attributes.value("length"_L1).trimmed().toLongLong(&isNumber);
        if (isNumber && length > 0)
            package.length = length;
        package.signature = attributes.value(extensions, "edSignature"_L1).trimmed().toLatin1();
        package.system = attributes.value(extensions, "os"_L1).trimmed().toString().toLower();
        item.packages.append(std::move(package));
        m_xml.skipCurrentElement();
    }

    void readNotes(FeedItem &item)
    {
        const QString format = m_xml.attributes().value(extensions, "format"_L1).toString();
        ReleaseNotes notes;
        if (format == u"plain-text")
            notes.format = ReleaseNotes::Format::Plain;
        else if (format == u"markdown")
            notes.format = ReleaseNotes::Format::Markdown;
        notes.text = text();
        if (!notes.text.isEmpty())
            item.notes = std::move(notes);
    }

    void readNotesLink(FeedItem &item)
    {
        // One without a language is for everybody.
        const bool isForEverybody =
            m_xml.attributes().value("http://www.w3.org/XML/1998/namespace"_L1, "lang"_L1).isEmpty();
        const QUrl address = absolute(text());
        if (isForEverybody || !item.notesAddress.isValid())
            item.notesAddress = address;
    }

    void readCriticalUpdate(FeedItem &item)
    {
        item.criticalBefore = m_xml.attributes().value(extensions, "version"_L1).trimmed().toString();
        m_xml.skipCurrentElement();
    }

    void readTags(FeedItem &item)
    {
        readChildren([this, &item] {
            if (isExtension("criticalUpdate"_L1) && !item.criticalBefore)
                item.criticalBefore = QString();
            m_xml.skipCurrentElement();
        });
    }

    QXmlStreamReader m_xml;
    QUrl m_address;
    QList<FeedItem> m_items;
};

} // namespace

std::expected<QList<FeedItem>, UpdateError> parse(const QByteArray &bytes, const QUrl &address)
{
    const auto malformed = [](const QString &detail) {
        return std::unexpected(UpdateError{UpdateError::Code::FeedMalformed, detail});
    };
    if (bytes.size() > longest)
        return malformed(u"Too long"_s);
    // In the two encodings that XML asks for, so that what is weighed is what is read.
    QStringDecoder decoder(QStringConverter::encodingForData(bytes, u'<').value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    if (decoder.hasError())
        return malformed(u"Characters in an unknown encoding"_s);
    const XmlWeight weight = XmlWeight::of(text);
    if (weight.depth > heaviestFeed.depth)
        return malformed(u"Elements nested too deep"_s);
    if (weight.elements > heaviestFeed.elements || weight.attributes > heaviestFeed.attributes)
        return malformed(u"Too many elements or attributes"_s);
    return Parser(text, address).parse();
}

} // namespace roamlet::Feed
