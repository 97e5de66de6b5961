// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/XmlText.h"
#include "Readers/Files/PropertyList.h"
#include "Readers/Files/PropertyListTree.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The encoding that the first line of an XML text names, if it does.
QByteArray declaredEncoding(QByteArrayView bytes)
{
    const qsizetype end = bytes.indexOf("?>");
    if (!bytes.startsWith("<?xml") || end < 0)
        return {};
    QXmlStreamReader line(QString::fromLatin1(bytes.first(end + 2)));
    line.readNext();
    return line.documentEncoding().toLatin1();
}

/// The characters of an XML text, broken sequences replaced. Nothing when its encoding is unknown. Qt's
/// reader would do without this, but refuses a whole text for one broken sequence.
std::optional<QString> decoded(QByteArrayView bytes)
{
    if (const auto marked = QStringConverter::encodingForData(bytes, u'<'))
        return QStringDecoder(*marked)(bytes);
    const QByteArray declared = declaredEncoding(bytes);
    QStringDecoder decoder(declared.isEmpty() ? "UTF-8" : declared.constData());
    if (!decoder.isValid())
        return {};
    return decoder(bytes);
}

// XML knows no control characters, but programs write them as they are, and titles have them. Noncharacters,
// which are in no text, take their places while it is read.
constexpr char16_t firstStandIn = 0xFDD0;
constexpr char16_t standIns = 0x20;
/// Two more characters that XML does not know, in the places of the tab and the line feed, which it does.
constexpr char16_t firstOfLast = 0xFFFE;
constexpr char16_t standInOfLast = firstStandIn + u'\t';

QChar standInOf(QChar character)
{
    const char16_t code = character.unicode();
    if (code >= firstOfLast)
        return QChar(static_cast<char16_t>(standInOfLast + (code - firstOfLast)));
    if (code < u' ' && code != u'\t' && code != u'\n' && code != u'\r')
        return QChar(static_cast<char16_t>(firstStandIn + code));
    return code >= firstStandIn && code < firstStandIn + standIns ? QChar(QChar::ReplacementCharacter)
                                                                  : character;
}

QChar originalOf(QChar standIn)
{
    const char16_t code = standIn.unicode();
    if (code == standInOfLast || code == standInOfLast + 1)
        return QChar(static_cast<char16_t>(firstOfLast + (code - standInOfLast)));
    return code >= firstStandIn && code < firstStandIn + standIns
               ? QChar(static_cast<char16_t>(code - firstStandIn))
               : standIn;
}

/// Whether reading the text would take Qt's reader far longer than its length: for its attributes, of which a
/// property list has one, or because what a document type declares can be used again and again.
bool isCostly(QStringView text)
{
    constexpr qsizetype mostAttributes = 1'000;
    return text.contains(u"<!ENTITY") || text.contains(u"<!ATTLIST") ||
           mostAttributesOfATag(text) > mostAttributes;
}

/// Reads the elements of an XML property list.
class XmlReader
{
public:
    explicit XmlReader(const QString &text) : m_reader(text) { m_reader.setNamespaceProcessing(false); }

    std::expected<PropertyListTree, QString> read()
    {
        // What follows the outermost value is of no interest, as long as that one is complete.
        while (!m_isComplete) {
            if (!readNext())
                return std::unexpected(m_refusal);
        }
        return std::move(m_tree);
    }

private:
    /// A dictionary or an array whose elements are being read.
    struct Open {
        bool isDictionary;
        std::vector<std::uint32_t> children;
    };

    /// False when this is no property list.
    bool readNext()
    {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::StartElement:
            return begin(m_reader.name());
        case QXmlStreamReader::EndElement:
            return end();
        case QXmlStreamReader::Characters:
            return m_reader.isWhitespace();
        case QXmlStreamReader::StartDocument:
        case QXmlStreamReader::DTD:
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            return true;
        default:
            return false;
        }
    }

    bool begin(QStringView element)
    {
        if (element == u"plist")
            return m_open.empty() && !std::exchange(m_isInside, true);
        // In a dictionary, keys and values take turns.
        if (!m_open.empty() && m_open.back().isDictionary &&
            (m_open.back().children.size() % 2 == 0) != (element == u"key"))
            return false;
        if (element == u"dict" || element == u"array") {
            if (m_open.size() >= PropertyListTree::deepestNesting) {
                m_refusal = QCoreApplication::translate("roamlet::ReadError", "it is nested too deeply");
                return false;
            }
            m_open.push_back({.isDictionary = element == u"dict", .children = {}});
            return true;
        }
        const std::optional<PropertyListTree::Node> value = valueOf(element);
        if (value)
            add(*value);
        return value.has_value();
    }

    /// The value of an element that holds text alone, up to its end; nothing for any other one.
    std::optional<PropertyListTree::Node> valueOf(QStringView element)
    {
        const bool isText = element == u"string" || element == u"key";
        const bool isDate = element == u"date";
        const bool isOther = element == u"integer" || element == u"real" || element == u"true" ||
                             element == u"false" || element == u"data";
        if (!isText && !isDate && !isOther)
            return {};
        const std::optional<QString> text = readText();
        if (!text)
            return {};
        if (isText)
            return *text;
        if (isDate)
            return dateOf(text->trimmed());
        return PropertyListTree::Other();
    }

    /// Up to the end of the element; nothing when there are others in it.
    std::optional<QString> readText()
    {
        QString text;
        for (;;) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::Characters:
                text += m_reader.text();
                break;
            case QXmlStreamReader::Comment:
            case QXmlStreamReader::ProcessingInstruction:
                break;
            case QXmlStreamReader::EndElement:
                std::ranges::transform(text, text.begin(), originalOf);
                return text;
            default:
                return {};
            }
        }
    }

    /// Dates are always in Greenwich's time.
    static PropertyListTree::Node dateOf(const QString &text)
    {
        const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
        if (!time.isValid() || !text.endsWith(u'Z'))
            return PropertyListTree::Other();
        constexpr qint64 millisecondsPerSecond = 1000;
        const qint64 since2001 = time.toMSecsSinceEpoch() - (secondsUntil2001 * millisecondsPerSecond);
        return PropertyListTree::Date{static_cast<double>(since2001) / millisecondsPerSecond};
    }

    /// Ends the innermost open value. False at the end of a list without any.
    bool end()
    {
        if (m_open.empty())
            return false;
        const Open open = std::move(m_open.back());
        m_open.pop_back();
        const auto first = static_cast<std::uint32_t>(m_tree.children.size());
        const auto count = static_cast<std::uint32_t>(open.children.size());
        m_tree.children.insert(m_tree.children.end(), open.children.begin(), open.children.end());
        // A last key without a value is none.
        if (open.isDictionary)
            add(PropertyListTree::Dictionary{.first = first, .count = count / 2});
        else
            add(PropertyListTree::Array{.first = first, .count = count});
        return true;
    }

    void add(PropertyListTree::Node node)
    {
        const auto place = static_cast<std::uint32_t>(m_tree.nodes.size());
        m_tree.nodes.push_back(std::move(node));
        if (m_open.empty())
            m_tree.root = place;
        else
            m_open.back().children.push_back(place);
        m_isComplete = m_open.empty();
    }

    QXmlStreamReader m_reader;
    QString m_refusal = QCoreApplication::translate("roamlet::ReadError", "not a property list");
    /// Whether the list itself has begun.
    bool m_isInside = false;
    bool m_isComplete = false;
    std::vector<Open> m_open;
    PropertyListTree m_tree;
};

} // namespace

std::expected<PropertyListTree, QString> PropertyListTree::ofXml(QByteArrayView bytes)
{
    std::optional<QString> text = decoded(bytes);
    if (!text || isCostly(*text))
        return std::unexpected(QCoreApplication::translate("roamlet::ReadError", "not a property list"));
    std::ranges::transform(*text, text->begin(), standInOf);
    return XmlReader(text->trimmed()).read();
}

} // namespace roamlet
