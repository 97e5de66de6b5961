// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Utf8.h"
#include "Readers/Files/PropertyListTree.h"

#include <QCoreApplication>
#include <QStringDecoder>

#include <algorithm>
#include <bit>
#include <limits>
#include <optional>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Characters in UTF-16, big end first, halves of pairs replaced. A mark of the byte order is a character.
QString utf16Text(QByteArrayView bytes)
{
    using Flag = QStringConverter::Flag;
    QString text =
        QStringDecoder(QStringConverter::Utf16BE, Flag::Stateless | Flag::ConvertInitialBom)(bytes);
    for (auto character = text.begin(); character != text.end(); ++character) {
        const auto next = character + 1;
        if (character->isHighSurrogate() && next != text.end() && next->isLowSurrogate())
            character = next;
        else if (character->isSurrogate())
            *character = QChar::ReplacementCharacter;
    }
    return text;
}

/// Reads a binary property list: objects anywhere in the file, a table of their offsets, and a trailer that
/// says where the table is and which object is the outermost. Arrays and dictionaries refer to objects by
/// number, several to the same one if they like.
class BinaryReader
{
public:
    explicit BinaryReader(QByteArrayView bytes)
        : m_bytes(bytes), m_size(static_cast<std::uint64_t>(bytes.size()))
    {
    }

    std::expected<PropertyListTree, QString> read()
    {
        if (!readTrailer() || !add(m_root))
            return damaged();
        while (!m_open.empty()) {
            Open &container = m_open.back();
            if (container.next == container.end) {
                if (!close())
                    return std::unexpected(QCoreApplication::translate(
                        "roamlet::ReadError", "not a property list: it unfolds to more than it holds"));
                continue;
            }
            const std::uint32_t object = m_tree.children[container.next];
            const std::uint32_t place = m_placeOf[object];
            const bool isNew = place == unread;
            m_tree.children[container.next++] = isNew ? nextPlace() : place;
            if (isNew && !add(object))
                return damaged();
            if (!isNew && m_weights[place].unfolded == 0)
                return std::unexpected(QCoreApplication::translate(
                    "roamlet::ReadError", "not a property list: a value contains itself"));
            if (m_open.size() + (isNew ? 0 : m_weights[place].height) > PropertyListTree::deepestNesting)
                return std::unexpected(
                    QCoreApplication::translate("roamlet::ReadError", "it is nested too deeply"));
        }
        return std::move(m_tree);
    }

private:
    /// An array, a set or a dictionary whose elements are being read: in `children`, those from `next` on are
    /// still numbers of objects.
    struct Open {
        std::uint32_t place;
        std::uint32_t first;
        std::uint32_t next;
        std::uint32_t end;
    };
    /// What a value is with all that is in it.
    struct Weight {
        /// Its objects, each counted as often as it is referred to, and a hundred characters like one object;
        /// 0 as long as the value is open.
        std::uint64_t unfolded = 0;
        /// How many arrays, sets and dictionaries are inside each other.
        std::size_t height = 0;
    };

    static constexpr std::uint32_t unread = std::numeric_limits<std::uint32_t>::max();

    static std::unexpected<QString> damaged()
    {
        return std::unexpected(QCoreApplication::translate(
            "roamlet::ReadError", "not a property list: its object table is damaged"));
    }

    /// Whether the trailer describes a table that lies within the file.
    bool readTrailer()
    {
        constexpr std::uint64_t headerSize = 8;
        constexpr std::uint64_t trailerSize = 32;
        constexpr std::uint64_t widest = 8;
        if (m_size < headerSize + trailerSize)
            return false;
        const std::uint64_t trailer = m_size - trailerSize;
        m_offsetWidth = number(trailer + 6, 1);
        m_referenceWidth = number(trailer + 7, 1);
        const std::uint64_t count = number(trailer + 8, 8);
        m_root = number(trailer + 16, 8);
        m_table = number(trailer + 24, 8);
        const bool areWidthsValid = m_offsetWidth >= 1 && m_offsetWidth <= widest && m_referenceWidth >= 1 &&
                                    m_referenceWidth <= widest;
        if (!areWidthsValid || m_root >= count || m_table >= trailer ||
            count > (trailer - m_table) / m_offsetWidth)
            return false;
        m_placeOf.assign(count, unread);
        return true;
    }

    /// Reads an object into the next place, and opens it if it has elements. False when it does not lie
    /// within the file or refers to what is no object.
    bool add(std::uint64_t object)
    {
        enum Type : std::uint8_t { Date = 3, Ascii = 5, Utf16 = 6, Array = 10, Set = 12, Dictionary = 13 };
        constexpr std::uint64_t isDouble = 3;
        m_placeOf[object] = nextPlace();
        const std::uint64_t position = number(m_table + (object * m_offsetWidth), m_offsetWidth);
        if (position >= m_table)
            return false;
        const std::uint64_t marker = number(position, 1);
        switch (marker >> 4U) {
        case Date:
            if ((marker & 0xFU) != isDouble)
                return append(PropertyListTree::Other());
            if (m_table - position <= sizeof(double))
                return false;
            return append(
                PropertyListTree::Date{std::bit_cast<double>(number(position + 1, sizeof(double)))});
        case Ascii: {
            const auto bytes = content(position, 1);
            return bytes && append(utf8Text(*bytes));
        }
        case Utf16: {
            const auto bytes = content(position, sizeof(char16_t));
            return bytes && append(utf16Text(*bytes));
        }
        case Array:
            return open(content(position, m_referenceWidth), 1, [](std::uint32_t first, std::uint32_t count) {
                return PropertyListTree::Array{.first = first, .count = count};
            });
        case Set:
            return open(content(position, m_referenceWidth), 1,
                        [](std::uint32_t, std::uint32_t) { return PropertyListTree::Other(); });
        case Dictionary:
            return open(content(position, 2 * m_referenceWidth), 2,
                        [](std::uint32_t first, std::uint32_t count) {
                            return PropertyListTree::Dictionary{.first = first, .count = count};
                        });
        default:
            return append(PropertyListTree::Other());
        }
    }

    /// The bytes behind an object's marker, which says how many units of this size they are. Nothing when
    /// they do not lie within the file.
    std::optional<QByteArrayView> content(std::uint64_t position, std::uint64_t unit)
    {
        constexpr std::uint64_t lengthFollows = 0xF;
        std::uint64_t length = number(position++, 1) & 0xFU;
        if (length == lengthFollows) {
            if (position >= m_table)
                return {};
            const std::uint64_t width = std::uint64_t{1} << (number(position++, 1) & 0x3U);
            if (width > m_table - position)
                return {};
            length = number(position, width);
            position += width;
        }
        if (length > (m_table - position) / unit)
            return {};
        // The objects of a damaged file may overlap, and would cost far more than the file has bytes.
        m_claimed += length * unit;
        if (m_claimed > m_size)
            return {};
        return part(position, length * unit);
    }

    bool append(PropertyListTree::Node node)
    {
        constexpr std::uint64_t charactersPerObject = 100;
        const auto *text = std::get_if<QString>(&node);
        const auto characters = static_cast<std::uint64_t>(text != nullptr ? text->size() : 0);
        m_weights.push_back({.unfolded = 1 + (characters / charactersPerObject), .height = 0});
        m_tree.nodes.push_back(std::move(node));
        return true;
    }

    /// Opens a value with so many references for each of its entries: a dictionary has all its keys first and
    /// then its values.
    bool open(std::optional<QByteArrayView> references, std::uint64_t perEntry, const auto &nodeOf)
    {
        if (!references)
            return false;
        const std::uint64_t count =
            static_cast<std::uint64_t>(references->size()) / m_referenceWidth / perEntry;
        const auto first = static_cast<std::uint32_t>(m_tree.children.size());
        for (std::uint64_t entry = 0; entry < count; ++entry) {
            for (std::uint64_t list = 0; list < perEntry; ++list) {
                const std::uint64_t object = number(
                    references->sliced(static_cast<qsizetype>(((list * count) + entry) * m_referenceWidth),
                                       static_cast<qsizetype>(m_referenceWidth)));
                if (object >= m_placeOf.size())
                    return false;
                m_tree.children.push_back(static_cast<std::uint32_t>(object));
            }
        }
        m_open.push_back({.place = nextPlace(),
                          .first = first,
                          .next = first,
                          .end = static_cast<std::uint32_t>(m_tree.children.size())});
        append(nodeOf(first, static_cast<std::uint32_t>(count)));
        m_weights.back().unfolded = 0;
        return true;
    }

    /// Weighs the innermost open value, whose elements are all known now. False when a file that shares
    /// honestly could not stand for so much: only small values are shared, so it never unfolds to more
    /// objects than it has bytes.
    bool close()
    {
        const Open &container = m_open.back();
        Weight weight{.unfolded = 1, .height = 0};
        for (std::uint32_t i = container.first; i < container.end; ++i) {
            const Weight &element = m_weights[m_tree.children[i]];
            weight.unfolded += element.unfolded;
            weight.height = std::max(weight.height, element.height);
        }
        ++weight.height;
        m_weights[container.place] = weight;
        m_open.pop_back();
        return weight.unfolded <= m_size;
    }

    std::uint32_t nextPlace() const { return static_cast<std::uint32_t>(m_tree.nodes.size()); }

    /// The caller has checked that it lies within the file.
    QByteArrayView part(std::uint64_t position, std::uint64_t length) const
    {
        return m_bytes.sliced(static_cast<qsizetype>(position), static_cast<qsizetype>(length));
    }

    /// A big-endian number.
    static std::uint64_t number(QByteArrayView bytes)
    {
        std::uint64_t value = 0;
        for (const char byte : bytes)
            value = (value << 8U) | static_cast<unsigned char>(byte);
        return value;
    }
    std::uint64_t number(std::uint64_t position, std::uint64_t width) const
    {
        return number(part(position, width));
    }

    QByteArrayView m_bytes;
    std::uint64_t m_size;
    std::uint64_t m_offsetWidth = 0;
    std::uint64_t m_referenceWidth = 0;
    std::uint64_t m_root = 0;
    /// Where the table begins. All objects stand before it.
    std::uint64_t m_table = 0;
    /// The bytes of all texts and references so far.
    std::uint64_t m_claimed = 0;
    /// Each object's place in the tree.
    std::vector<std::uint32_t> m_placeOf;
    std::vector<Weight> m_weights;
    std::vector<Open> m_open;
    PropertyListTree m_tree;
};

} // namespace

std::expected<PropertyListTree, QString> PropertyListTree::ofBinary(QByteArrayView bytes)
{
    return BinaryReader(bytes).read();
}

} // namespace roamlet
