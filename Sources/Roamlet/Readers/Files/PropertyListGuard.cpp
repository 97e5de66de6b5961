// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/PropertyListGuard.h"

#include <QtEndian>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace roamlet::PropertyListGuard
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QByteArrayView binaryHeader("bplist00");

/// The object table of a binary property list, read without following anything.
class BinaryObjects
{
public:
    explicit BinaryObjects(QByteArrayView bytes) : m_bytes(bytes) {}

    /// Whether the trailer describes a table that lies within the file.
    bool readTrailer()
    {
        constexpr qsizetype trailerSize = 32;
        constexpr std::uint64_t widest = 8;
        if (m_bytes.size() < binaryHeader.size() + trailerSize)
            return false;
        const auto trailer = static_cast<std::uint64_t>(m_bytes.size() - trailerSize);
        m_offsetWidth = number(trailer + 6, 1);
        m_referenceWidth = number(trailer + 7, 1);
        m_count = number(trailer + 8, 8);
        m_root = number(trailer + 16, 8);
        m_table = number(trailer + 24, 8);
        const bool areWidthsValid = m_offsetWidth >= 1 && m_offsetWidth <= widest && m_referenceWidth >= 1 &&
                                    m_referenceWidth <= widest;
        return areWidthsValid && m_root < m_count && m_table < trailer &&
               m_count <= (trailer - m_table) / m_offsetWidth;
    }

    std::uint64_t count() const { return m_count; }
    std::uint64_t root() const { return m_root; }

    /// The objects that an array, a set or a dictionary refers to; none for everything else. False when they
    /// do not lie within the file.
    bool references(std::uint64_t object, std::vector<std::uint64_t> &result) const
    {
        constexpr std::uint64_t arrayType = 0xA;
        constexpr std::uint64_t setType = 0xC;
        constexpr std::uint64_t dictionaryType = 0xD;
        constexpr std::uint64_t countFollows = 0xF;
        result.clear();
        std::uint64_t position = number(m_table + (object * m_offsetWidth), m_offsetWidth);
        if (position >= m_table)
            return false;
        const std::uint64_t marker = number(position++, 1);
        const std::uint64_t type = marker >> 4U;
        if (type != arrayType && type != setType && type != dictionaryType)
            return true;
        std::uint64_t length = marker & 0xFU;
        if (length == countFollows) {
            if (position >= m_table)
                return false;
            const std::uint64_t width = std::uint64_t{1} << (number(position++, 1) & 0x3U);
            if (width > m_table - position)
                return false;
            length = number(position, width);
            position += width;
        }
        // A dictionary has a key for each value.
        const std::uint64_t perEntry = type == dictionaryType ? 2 : 1;
        if (length > (m_table - position) / m_referenceWidth / perEntry)
            return false;
        const std::uint64_t references = perEntry * length;
        result.reserve(references);
        for (std::uint64_t i = 0; i < references; ++i) {
            result.push_back(number(position + (i * m_referenceWidth), m_referenceWidth));
            if (result.back() >= m_count)
                return false;
        }
        return true;
    }

private:
    /// A big-endian number. The caller has checked that it lies within the file.
    std::uint64_t number(std::uint64_t position, std::uint64_t width) const
    {
        std::uint64_t value = 0;
        for (const char byte :
             m_bytes.sliced(static_cast<qsizetype>(position), static_cast<qsizetype>(width)))
            value = (value << 8U) | static_cast<unsigned char>(byte);
        return value;
    }

    QByteArrayView m_bytes;
    std::uint64_t m_offsetWidth = 0;
    std::uint64_t m_referenceWidth = 0;
    std::uint64_t m_count = 0;
    std::uint64_t m_root = 0;
    std::uint64_t m_table = 0;
};

std::optional<QString> binaryRefusal(QByteArrayView bytes)
{
    const auto damaged = [] { return u"not a property list: its object table is damaged"_s; };
    BinaryObjects objects(bytes);
    if (!objects.readTrailer())
        return damaged();

    // Programs share only values without content of their own, so a list never unfolds to more objects than
    // its file has bytes.
    const auto most = static_cast<std::uint64_t>(bytes.size());
    enum class State : std::uint8_t { New, Open, Done };
    struct Visit {
        std::uint64_t object;
        std::vector<std::uint64_t> references;
        size_t next = 0;
    };
    std::vector<State> states(objects.count(), State::New);
    std::vector<std::uint64_t> unfolded(objects.count(), 1);
    std::vector<Visit> open;
    // Lists that overlap in a damaged file would cost far more memory here than the file has bytes.
    std::uint64_t followed = 0;
    std::uint64_t deepest = 0;
    const auto enter = [&](std::uint64_t object) {
        Visit visit{object, {}};
        if (!objects.references(object, visit.references))
            return false;
        followed += visit.references.size();
        if (followed > most)
            return false;
        states[object] = State::Open;
        open.push_back(std::move(visit));
        deepest = std::max<std::uint64_t>(deepest, open.size());
        return true;
    };
    if (!enter(objects.root()))
        return damaged();
    while (!open.empty()) {
        Visit &visit = open.back();
        if (visit.next == visit.references.size()) {
            for (const std::uint64_t reference : visit.references)
                unfolded[visit.object] = std::min(most + 1, unfolded[visit.object] + unfolded[reference]);
            if (unfolded[visit.object] > most)
                return u"not a property list: it unfolds to more than it holds"_s;
            states[visit.object] = State::Done;
            open.pop_back();
            continue;
        }
        const std::uint64_t reference = visit.references[visit.next++];
        if (states[reference] == State::Open)
            return u"not a property list: a value contains itself"_s;
        if (states[reference] == State::Done)
            continue;
        if (open.size() >= deepestNesting)
            return u"it is nested too deeply"_s;
        if (!enter(reference))
            return damaged();
    }
    // The library compares each value with everything around it.
    constexpr std::uint64_t mostComparisons = 1'000'000'000;
    if (unfolded[objects.root()] > mostComparisons / deepest)
        return u"it is nested too deeply"_s;
    return {};
}

/// The elements of an XML text, seen as the library sees them: what it skips must not count here either.
class XmlElements
{
public:
    explicit XmlElements(QByteArrayView text) : m_text(text) {}

    /// The inside of the next tag, without its brackets; nothing at the end.
    std::optional<QByteArrayView> next()
    {
        for (;;) {
            const qsizetype start = m_text.indexOf('<', m_position);
            if (start < 0)
                return {};
            m_position = start + 1;
            const QByteArrayView rest = m_text.sliced(m_position);
            if (rest.startsWith("!--")) {
                m_position += 3;
                skipTo("-->");
            } else if (rest.startsWith("![CDATA[")) {
                skipTo("]]>");
            } else if (rest.startsWith('?')) {
                skipQuotedTo("?>");
            } else if (rest.startsWith("!DOCTYPE")) {
                m_position += 8;
                skipDocumentType();
            } else {
                skipQuotedTo(">");
                return m_text.sliced(start + 1, std::max<qsizetype>(m_position - start - 2, 0));
            }
        }
    }

private:
    void skipTo(QByteArrayView end)
    {
        const qsizetype place = m_text.indexOf(end, m_position);
        m_position = place < 0 ? m_text.size() : place + end.size();
    }

    /// An end between double quotes is none.
    void skipQuotedTo(QByteArrayView end)
    {
        while (m_position < m_text.size() && !m_text.sliced(m_position).startsWith(end)) {
            const bool isQuote = m_text[m_position++] == '"';
            if (isQuote)
                skipTo("\"");
        }
        m_position = std::min(m_position + end.size(), m_text.size());
    }

    /// Up to its ">", or up to "]>" when there is a "[" before that; neither counts between double quotes.
    void skipDocumentType()
    {
        while (m_position < m_text.size()) {
            const char character = m_text[m_position++];
            if (character == '>')
                return;
            if (character == '[') {
                skipQuotedTo("]>");
                return;
            }
            if (character == '"')
                skipTo("\"");
        }
    }

    QByteArrayView m_text;
    qsizetype m_position = 0;
};

std::optional<QString> xmlRefusal(QByteArrayView bytes)
{
    int depth = 0;
    XmlElements elements(bytes);
    while (const std::optional<QByteArrayView> tag = elements.next()) {
        if (tag->endsWith('/'))
            continue;
        if (tag->startsWith("dict") || tag->startsWith("array"))
            ++depth;
        else if (tag->startsWith("/dict") || tag->startsWith("/array"))
            --depth;
        if (depth > deepestNesting)
            return u"it is nested too deeply"_s;
    }
    return {};
}

} // namespace

std::optional<QString> refusal(QByteArrayView bytes)
{
    if (bytes.size() >= std::numeric_limits<std::int32_t>::max())
        return u"it is too large"_s;
    return bytes.startsWith(binaryHeader) ? binaryRefusal(bytes) : xmlRefusal(bytes);
}

} // namespace roamlet::PropertyListGuard
