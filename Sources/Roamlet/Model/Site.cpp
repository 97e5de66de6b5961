// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Site.h"

#include <algorithm>

namespace roamlet::Site
{

namespace
{

constexpr bool isAlpha(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

constexpr bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

constexpr bool isHexDigit(char16_t c)
{
    return isDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

constexpr bool isSchemeCharacter(char16_t c)
{
    return isAlpha(c) || isDigit(c) || c == u'+' || c == u'-' || c == u'.';
}

/// RFC 3986 "unreserved" and "sub-delims".
constexpr bool isNameCharacter(char16_t c)
{
    return isAlpha(c) || isDigit(c) ||
           (c < 0x80 && c != 0 && QStringView(u"-._~!$&'()*+,;=").contains(QChar(c)));
}

/// Whether every character is one that RFC 3986 allows, percent escapes and those in `also` included.
bool isName(QStringView text, QStringView also = {})
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (c == u'%') {
            if (i + 2 >= text.size() || !isHexDigit(text[i + 1].unicode()) ||
                !isHexDigit(text[i + 2].unicode()))
                return false;
            i += 2;
        } else if (!isNameCharacter(c) && !also.contains(QChar(c))) {
            return false;
        }
    }
    return true;
}

/// Whether the text between brackets can be an IPv6 address (with a zone) or one of a future version.
bool isAddressLiteral(QStringView text)
{
    if (text.startsWith(u'v') || text.startsWith(u'V'))
        return text.contains(u'.') && isName(text, u":");
    const qsizetype zone = text.indexOf(u'%');
    const QStringView address = zone < 0 ? text : text.first(zone);
    return address.contains(u':') && (zone < 0 || isName(text.sliced(zone))) &&
           std::ranges::all_of(address,
                               [](QChar c) { return isHexDigit(c.unicode()) || c == u':' || c == u'.'; });
}

/// What stands between "//" and the first "/", "?" or "#"; nothing when the text has none or its scheme is
/// none.
std::optional<QStringView> authority(QStringView url)
{
    const auto endsFirstPart = [](QChar c) { return c == u'/' || c == u'?' || c == u'#' || c == u':'; };
    const auto *const firstEnd = std::ranges::find_if(url, endsFirstPart);
    if (firstEnd != url.end() && *firstEnd == u':') {
        const QStringView scheme = url.first(firstEnd - url.begin());
        if (scheme.isEmpty() || !isAlpha(scheme.front().unicode()) ||
            !std::ranges::all_of(scheme, [](QChar c) { return isSchemeCharacter(c.unicode()); }))
            return {};
        url = url.sliced(scheme.size() + 1);
    }
    if (!url.startsWith(u"//"))
        return {};
    url = url.sliced(2);
    const auto *const end =
        std::ranges::find_if(url, [](QChar c) { return c == u'/' || c == u'?' || c == u'#'; });
    return url.first(end - url.begin());
}

/// The host of an authority as written, or nothing when the authority does not parse or its host is empty.
std::optional<QStringView> host(QStringView authority)
{
    if (const qsizetype at = authority.indexOf(u'@'); at >= 0) {
        if (!isName(authority.first(at), u":"))
            return {};
        authority = authority.sliced(at + 1);
    }
    qsizetype length = 0;
    if (authority.startsWith(u'[')) {
        const qsizetype close = authority.indexOf(u']');
        if (close < 0 || !isAddressLiteral(authority.sliced(1, close - 1)))
            return {};
        length = close + 1;
    } else {
        const qsizetype colon = authority.indexOf(u':');
        length = colon < 0 ? authority.size() : colon;
        if (!isName(authority.first(length)))
            return {};
    }
    const QStringView rest = authority.sliced(length);
    const bool isPort = rest.startsWith(u':') &&
                        std::ranges::all_of(rest.sliced(1), [](QChar c) { return isDigit(c.unicode()); });
    if (length == 0 || !(rest.isEmpty() || isPort))
        return {};
    return authority.first(length);
}

} // namespace

std::optional<QString> name(QStringView url)
{
    const std::optional<QStringView> authorityText = authority(url);
    if (!authorityText)
        return {};
    const std::optional<QStringView> hostText = host(*authorityText);
    if (!hostText)
        return {};
    QString site = hostText->toString().toLower();
    if (site.startsWith(u"www."))
        site.remove(0, 4);
    return site;
}

} // namespace roamlet::Site
