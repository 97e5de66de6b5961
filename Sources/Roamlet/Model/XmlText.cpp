// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/XmlText.h"

#include <algorithm>
#include <array>

namespace roamlet
{

namespace
{

/// What has no tags in it, whatever it looks like.
struct Enclosed {
    QStringView begin;
    QStringView end;
};

/// Where the text goes on after something enclosed that begins here, or -1 where nothing of the kind does.
qsizetype endOfEnclosed(QStringView xml, qsizetype place)
{
    constexpr std::array kinds{Enclosed{u"<!--", u"-->"}, Enclosed{u"<![CDATA[", u"]]>"}};
    for (const Enclosed &kind : kinds) {
        if (!xml.sliced(place).startsWith(kind.begin))
            continue;
        const qsizetype end = xml.indexOf(kind.end, place + kind.begin.size());
        return end < 0 ? xml.size() : end + kind.end.size();
    }
    return -1;
}

} // namespace

qsizetype mostAttributesOfATag(QStringView xml)
{
    qsizetype most = 0;
    qsizetype attributes = 0;
    bool isTag = false;
    QChar quote;
    for (qsizetype place = 0; place < xml.size(); ++place) {
        const QChar character = xml[place];
        if (character == u'<') {
            const qsizetype end = endOfEnclosed(xml, place);
            isTag = end < 0;
            attributes = 0;
            quote = {};
            if (!isTag)
                place = end - 1;
        } else if (!isTag) {
            continue;
        } else if (!quote.isNull()) {
            quote = character == quote ? QChar() : quote;
        } else if (character == u'"' || character == u'\'') {
            quote = character;
        } else if (character == u'>') {
            isTag = false;
        } else if (character == u'=') {
            most = std::max(most, ++attributes);
        }
    }
    return most;
}

} // namespace roamlet
