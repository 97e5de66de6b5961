// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/FoldedNeedle.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>

namespace roamlet
{

namespace
{

constexpr unsigned char caseBit = 0x20;
/// The two kinds of small sigma differ in the last bit of their second byte, which is set in the plain one.
constexpr std::string_view plainSigma = "\xCF\x83";
constexpr unsigned char sigmaBit = 0x01;

constexpr bool isLetter(unsigned char byte)
{
    return (byte | caseBit) >= 'a' && (byte | caseBit) <= 'z';
}

/// What addresses and titles are made of, the most frequent first. Everything else is rare.
constexpr std::string_view frequent = "e/ts.aopiwhn-rclm=&d0u123:?gb45678f9ykv%_xjzq";

constexpr size_t rarity(unsigned char byte)
{
    return std::min(frequent.find(static_cast<char>(byte)), frequent.size());
}

/// The byte of a lane with the lowest address that is not zero, as an index.
int firstByte(std::uint64_t lane)
{
    return (std::endian::native == std::endian::little ? std::countr_zero(lane) : std::countl_zero(lane)) / 8;
}

std::uint64_t withoutByte(std::uint64_t lane, int index)
{
    constexpr std::uint64_t byte = 0xFF;
    const int place = std::endian::native == std::endian::little ? index : 7 - index;
    return lane & ~(byte << (8 * place));
}

} // namespace

FoldedNeedle::FoldedNeedle(std::string_view bytes, Sigmas sigmas)
{
    m_bytes.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        const bool endsSigma =
            sigmas == Sigmas::AsOne && i > 0 && bytes.substr(i - 1).starts_with(plainSigma);
        const unsigned char ignoredCase = isLetter(byte) ? caseBit : 0;
        const unsigned char ignored = endsSigma ? sigmaBit : ignoredCase;
        m_bytes.push_back({static_cast<unsigned char>(byte | ignored), ignored});
        m_isAscii = m_isAscii && byte < 0x80;
    }
    const auto rarityAt = [this](size_t i) { return rarity(m_bytes[i].byte); };
    for (size_t i = 1; i < m_bytes.size(); ++i) {
        if (rarityAt(i) > rarityAt(m_rarest))
            m_rarest = i;
    }
    m_secondRarest = m_rarest == 0 ? m_bytes.size() - 1 : 0;
    for (size_t i = 1; i < m_bytes.size(); ++i) {
        if (i != m_rarest && rarityAt(i) > rarityAt(m_secondRarest))
            m_secondRarest = i;
    }
}

std::optional<FoldedNeedle> FoldedNeedle::ofPattern(std::string_view pattern, char escape, Sigmas sigmas)
{
    if (pattern.size() < 3 || !pattern.starts_with('%') || !pattern.ends_with('%'))
        return {};
    pattern = pattern.substr(1, pattern.size() - 2);
    std::string text;
    for (size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == escape) {
            if (++i == pattern.size())
                return {};
        } else if (pattern[i] == '%' || pattern[i] == '_') {
            return {};
        }
        if (pattern[i] == 0)
            return {};
        text += pattern[i];
    }
    return FoldedNeedle(text, sigmas);
}

size_t FoldedNeedle::find(std::string_view text, size_t from, size_t to) const
{
    if (text.size() < m_bytes.size())
        return nowhere;
    // A block may reach beyond the places that are asked for, and not beyond the text.
    const size_t readable = text.size() - m_bytes.size() + 1;
    to = std::min(to, readable);
    if (from >= to)
        return nowhere;
    const char *place = text.data() + from;
    const char *end = text.data() + to;
    const char *found = nullptr;
    if (readable - from < blockSize && m_bytes.size() <= blockSize) {
        // A title alone is shorter than a block: it is looked at as one that ends in NULs, which no needle
        // has.
        std::array<char, 2 * blockSize> padded{};
        std::memcpy(padded.data(), place, text.size() - from);
        found = findInBlocks(padded.data(), padded.data() + blockSize);
        if (found != nullptr)
            found = place + (found - padded.data());
    } else if (readable - from < blockSize) {
        found = findAmong(place, end);
    } else {
        const size_t whole = std::min((to - from + blockSize - 1) / blockSize, (readable - from) / blockSize);
        const char *wholeEnd = place + whole * blockSize;
        found = findInBlocks(place, wholeEnd);
        // The last block overlaps the one before it.
        if (found == nullptr && wholeEnd < end)
            found = findInBlocks(text.data() + readable - blockSize, text.data() + readable);
    }
    return found == nullptr || found >= end ? nowhere : static_cast<size_t>(found - text.data());
}

const char *FoldedNeedle::findAmong(const char *places, const char *end) const
{
    for (; places != end; ++places) {
        if (isAt(places))
            return places;
    }
    return nullptr;
}

const char *FoldedNeedle::findInBlocks(const char *places, const char *end) const
{
    // What every processor of the kind has. Wider vectors wait for the same memory.
    constexpr size_t width = 16;
    constexpr size_t vectorCount = blockSize / width;
    using Vector [[gnu::vector_size(width)]] = unsigned char;
    const Wanted first = m_bytes[m_rarest];
    const Wanted second = m_bytes[m_secondRarest];
    const Vector firstIgnored = Vector{} + first.ignored;
    const Vector firstWanted = Vector{} + first.byte;
    const Vector secondIgnored = Vector{} + second.ignored;
    const Vector secondWanted = Vector{} + second.byte;
    for (; places != end; places += blockSize) {
        Vector fits[vectorCount];
        Vector fitsAny{};
        for (size_t i = 0; i < vectorCount; ++i) {
            Vector atFirst;
            Vector atSecond;
            std::memcpy(&atFirst, places + i * width + m_rarest, width);
            std::memcpy(&atSecond, places + i * width + m_secondRarest, width);
            fits[i] = reinterpret_cast<Vector>(((atFirst | firstIgnored) == firstWanted) &
                                               ((atSecond | secondIgnored) == secondWanted));
            fitsAny |= fits[i];
        }
        std::array<std::uint64_t, width / sizeof(std::uint64_t)> anyLanes{};
        std::memcpy(anyLanes.data(), &fitsAny, width);
        if ((anyLanes[0] | anyLanes[1]) == 0)
            continue;
        std::array<std::uint64_t, blockSize / sizeof(std::uint64_t)> lanes{};
        std::memcpy(lanes.data(), fits, blockSize);
        const char *place = places;
        for (std::uint64_t lane : lanes) {
            for (; lane != 0; lane = withoutByte(lane, firstByte(lane))) {
                if (isAt(place + firstByte(lane)))
                    return place + firstByte(lane);
            }
            place += sizeof(lane);
        }
    }
    return nullptr;
}

bool FoldedNeedle::isAt(const char *place) const
{
    for (const Wanted &wanted : m_bytes) {
        if (!wanted.isAt(place++))
            return false;
    }
    return true;
}

} // namespace roamlet
