// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/Feed.h"

#include "Model/XmlText.h"
#include "Platform/Linux/Updates/Versions.h"

#include <QCoreApplication>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The names of the feed format that are not RSS's own.
constexpr QLatin1StringView extensions("http://www.andymatuschak.org/xml-namespaces/sparkle");

/// Notes can hold elements of their own, but no feed comes near to this. Reading the text of an element takes
/// a call for each level below it.
constexpr qsizetype deepest = 50;
/// Each attribute of a tag is compared with all the others, and each name of an element or an attribute with
/// all the namespaces that are declared around it. A feed needs few of either.
constexpr qsizetype mostAttributes = 50;
constexpr qsizetype mostNamespaces = 50;

/// What is wrong with the whole document, if anything is; what follows the end of the feed counts as well.
QString problemOf(const QString &text)
{
    if (mostAttributesOfATag(text) > mostAttributes)
        return QCoreApplication::translate("roamlet::UpdateError", "Too many attributes");
    QXmlStreamReader xml(text);
    // How many namespaces each of the elements declares that are open.
    QList<qsizetype> declared;
    qsizetype namespaces = 0;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::DTD:
            // A document type can define entities that unfold to anything; no feed needs one.
            return QCoreApplication::translate("roamlet::UpdateError", "Document type declaration");
        case QXmlStreamReader::StartElement:
            if (declared.isEmpty() && (!xml.namespaceUri().isEmpty() || xml.name() != "rss"_L1))
                return QCoreApplication::translate("roamlet::UpdateError", "No feed");
            declared.append(xml.namespaceDeclarations().size());
            namespaces += declared.back();
            if (declared.size() > deepest)
                return QCoreApplication::translate("roamlet::UpdateError", "Elements nested too deep");
            if (namespaces > mostNamespaces)
                return QCoreApplication::translate("roamlet::UpdateError", "Too many namespaces");
            break;
        case QXmlStreamReader::EndElement:
            namespaces -= declared.takeLast();
            break;
        default:
            break;
        }
    }
    return xml.hasError() ? xml.errorString() : QString();
}

/// Reads a document that is known to be a feed.
class Parser
{
public:
    Parser(const QString &text, QUrl address) : m_xml(text), m_address(std::move(address)) {}

    QList<FeedItem> parse()
    {
        m_xml.readNextStartElement();
        readChildren([this] {
            if (!isPlain("channel"_L1)) {
                m_xml.skipCurrentElement();
                return;
            }
            readChildren([this] {
                if (isPlain("item"_L1))
                    readItem();
                else
                    m_xml.skipCurrentElement();
            });
        });
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

/// Feeds use either of each processor's two common names.
QString canonicalArchitecture(const QString &name)
{
    if (name == u"x64" || name == u"amd64")
        return u"x86_64"_s;
    return name == u"aarch64" ? u"arm64"_s : name;
}

bool fits(const FeedItem::Package &package, const UpdateHost &host)
{
    // One feed serves every system: what does not say is told by its name.
    if (!package.system.isEmpty()) {
        const QString architecture = package.system.section(u'-', 1);
        if (package.system.section(u'-', 0, 0) != u"linux" ||
            (!architecture.isEmpty() &&
             canonicalArchitecture(architecture) != canonicalArchitecture(host.architecture)))
            return false;
    }
    return package.address.path().endsWith(".deb"_L1, Qt::CaseInsensitive);
}

bool suits(const FeedItem &item, const UpdateHost &host)
{
    const auto isLimit = [](const QString &limit) { return limit.isEmpty() || Versions::isVersion(limit); };
    // A release for systems that nobody can tell is for none.
    if (!isLimit(item.minimumSystemVersion) || !isLimit(item.maximumSystemVersion))
        return false;
    const auto system = [&host](const QString &limit) {
        return Versions::compare(host.systemVersion, limit);
    };
    return item.channel.isEmpty() && Versions::compare(item.version, host.version) > 0 &&
           (item.minimumSystemVersion.isEmpty() || system(item.minimumSystemVersion) >= 0) &&
           (item.maximumSystemVersion.isEmpty() || system(item.maximumSystemVersion) <= 0);
}

/// Whether the release is critical for those who have this version.
bool isCriticalFor(const QString &version, const FeedItem &item)
{
    if (!item.criticalBefore)
        return false;
    // Where nobody can tell whom it concerns, it concerns everybody.
    return !Versions::isVersion(*item.criticalBefore) || Versions::compare(version, *item.criticalBefore) < 0;
}

} // namespace

std::expected<QList<FeedItem>, UpdateError> Feed::parse(const QByteArray &bytes, const QUrl &address)
{
    const auto malformed = [](const QString &problem) {
        return std::unexpected(UpdateError{UpdateError::Code::FeedMalformed, problem});
    };
    if (bytes.size() > longest)
        return malformed(QCoreApplication::translate("roamlet::UpdateError", "Too long"));
    QStringDecoder decoder(QStringConverter::encodingForData(bytes, u'<').value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    if (decoder.hasError())
        return malformed(
            QCoreApplication::translate("roamlet::UpdateError", "Characters in an unknown encoding"));
    if (const QString problem = problemOf(text); !problem.isEmpty())
        return malformed(problem);
    return Parser(text, address).parse();
}

std::optional<UpdateChoice> UpdateChoice::best(const QList<FeedItem> &items, const UpdateHost &host)
{
    std::optional<UpdateChoice> result;
    for (const FeedItem &item : items) {
        if (!suits(item, host) || (result && Versions::compare(item.version, result->item.version) <= 0))
            continue;
        const auto package = std::ranges::find_if(
            item.packages, [&host](const FeedItem::Package &candidate) { return fits(candidate, host); });
        if (package == item.packages.cend())
            continue;
        result =
            UpdateChoice{.item = item, .package = *package, .isCritical = isCriticalFor(host.version, item)};
    }
    return result;
}

Update UpdateChoice::update() const
{
    return {.version = item.version,
            .displayVersion = item.displayVersion,
            .notes = item.notes,
            .size = package.length,
            .isCritical = isCritical};
}

} // namespace roamlet
