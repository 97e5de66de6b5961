// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/XmlWeight.h"

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Where the rest of the document begins that follows `end`; empty when that does not come.
QStringView after(QStringView end, QStringView text)
{
    const qsizetype position = text.indexOf(end);
    return position < 0 ? QStringView() : text.sliced(position + end.size());
}

/// The tag that the text begins with, up to its angle bracket; those in quotes do not end it.
QStringView tagOf(QStringView text)
{
    QChar quote;
    const auto *const end = std::ranges::find_if(text, [&quote](QChar each) {
        if (quote.isNull() && (each == u'"' || each == u'\''))
            quote = each;
        else if (each == quote)
            quote = {};
        return quote.isNull() && each == u'>';
    });
    return text.first(end - text.begin());
}

} // namespace

XmlWeight XmlWeight::of(QStringView document)
{
    XmlWeight result;
    qsizetype depth = 0;
    for (QStringView rest = after(u"<", document); !rest.isEmpty(); rest = after(u"<", rest)) {
        if (rest.startsWith(u"!--")) {
            rest = after(u"-->", rest.sliced(3));
        } else if (rest.startsWith(u"![CDATA[")) {
            rest = after(u"]]>", rest);
        } else if (rest.startsWith(u'?')) {
            rest = after(u"?>", rest);
        } else {
            const QStringView tag = tagOf(rest);
            rest = rest.sliced(tag.size());
            if (tag.startsWith(u'/'))
                --depth;
            else
                result.depth = std::max(result.depth, ++depth);
            if (tag.endsWith(u'/') && !tag.startsWith(u'/'))
                --depth;
        }
    }
    return result;
}

} // namespace roamlet
