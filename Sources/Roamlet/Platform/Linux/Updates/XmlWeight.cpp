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

struct Tag {
    /// Up to its angle bracket.
    QStringView text;
    qsizetype attributes = 0;
};

/// The tag that the text begins with. An angle bracket in quotes does not end it.
Tag tagOf(QStringView text)
{
    QChar quote;
    qsizetype attributes = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar each = text[i];
        if (!quote.isNull())
            quote = each == quote ? QChar() : quote;
        else if (each == u'"' || each == u'\'')
            quote = each;
        else if (each == u'=')
            ++attributes;
        else if (each == u'>')
            return {.text = text.first(i), .attributes = attributes};
    }
    return {.text = text, .attributes = attributes};
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
            const Tag tag = tagOf(rest);
            rest = rest.sliced(tag.text.size());
            if (tag.text.startsWith(u'/')) {
                --depth;
                continue;
            }
            ++result.elements;
            result.attributes = std::max(result.attributes, tag.attributes);
            result.depth = std::max(result.depth, ++depth);
            if (tag.text.endsWith(u'/'))
                --depth;
        }
    }
    return result;
}

} // namespace roamlet
