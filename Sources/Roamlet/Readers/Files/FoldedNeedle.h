// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace roamlet
{

/// Bytes of UTF-8 that are looked for anywhere in a text. Only the case of ASCII letters is ignored, as LIKE
/// does. Many places are tried at once, by the two bytes that are the rarest in addresses and titles.
class FoldedNeedle
{
public:
    enum class Sigmas {
        Apart, ///< the sigma at the end of a word is a letter of its own
        AsOne, ///< it is the plain one
    };
    /// What find() says of a text in which the needle is not.
    static constexpr size_t nowhere = std::string_view::npos;

    /// For bytes of which there is at least one, and of which none is NUL. With Sigmas::AsOne they hold plain
    /// ones only.
    explicit FoldedNeedle(std::string_view bytes, Sigmas sigmas = Sigmas::Apart);
    /// The needle of a LIKE pattern that is a text between two "%"; nothing for every other pattern.
    static std::optional<FoldedNeedle> ofPattern(std::string_view pattern, char escape,
                                                 Sigmas sigmas = Sigmas::Apart);

    size_t size() const { return m_bytes.size(); }
    bool isAscii() const { return m_isAscii; }
    /// The first place from `from` on and before `to` at which it stands in the text. It may reach beyond
    /// `to`.
    size_t find(std::string_view text, size_t from, size_t to) const;

private:
    /// How many places are tried at once.
    static constexpr size_t blockSize = 64;

    /// One byte of what is looked for, and the bits that do not count in it.
    struct Wanted {
        unsigned char byte = 0;
        unsigned char ignored = 0;

        bool isAt(const char *place) const { return (static_cast<unsigned char>(*place) | ignored) == byte; }
    };

    bool isAt(const char *place) const;
    const char *findAmong(const char *places, const char *end) const;
    const char *findInBlocks(const char *places, const char *end) const;

    std::vector<Wanted> m_bytes;
    /// Which two of the bytes are looked at first.
    size_t m_rarest = 0;
    size_t m_secondRarest = 0;
    bool m_isAscii = true;
};

} // namespace roamlet
