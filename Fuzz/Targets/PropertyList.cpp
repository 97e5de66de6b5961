// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/PropertyList.h"

#include "Kit/Targets.h"
#include "SampleHome/PropertyLists.h"

#include <QDateTime>
#include <QVariant>

#include <utility>
#include <vector>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackPropertyList(QByteArrayView bytes)
{
    const auto list = PropertyList::parse(bytes);
    if (!list) {
        require(!list.error().isEmpty(), "what fails has a reason");
        return;
    }
    // As far as anybody follows it, and no more steps than an honest list has: values may be shared.
    constexpr int mostSteps = 10'000;
    std::vector<PropertyListValue> open{list->root()};
    for (int steps = 0; !open.empty() && steps < mostSteps; ++steps) {
        const PropertyListValue value = open.back();
        open.pop_back();
        const int kinds =
            int{value.string().has_value()} + int{value.date().has_value()} + int{value.isDictionary()};
        require(kinds <= 1, "a value is of one kind");
        for (const char *key :
             {"Children", "Sync", "URIDictionary", "ServerID", "Title", "title", "WebBookmarkUUID"}) {
            const PropertyListValue member = value.member(key);
            if (member.isDictionary() || member.string())
                open.push_back(member);
            for (const PropertyListValue &element : member.dictionaries()) {
                require(element.isDictionary(), "dictionaries are dictionaries");
                open.push_back(element);
            }
        }
        for (const PropertyListValue &element : value.dictionaries())
            open.push_back(element);
    }
}

QList<QByteArray> propertyListSeeds()
{
    const QVariantMap leaf{{u"Title"_s, u"Zoë 😀"_s},
                           {u"ServerID"_s, u"X"_s},
                           {u"date"_s, QDateTime(QDate(2026, 5, 9), QTime(6, 13, 20), Qt::UTC)},
                           {u"data"_s, QByteArray("bytes")},
                           {u"flag"_s, true},
                           {u"number"_s, 300},
                           {u"real"_s, 1.5}};
    const QVariantMap root{{u"Children"_s, QVariantList{leaf, QVariantMap{{u"Sync"_s, leaf}}}},
                           {u"Title"_s, QString(20, u'x')},
                           {u"WebBookmarkUUID"_s, u"root"_s}};
    QList<QByteArray> seeds{QByteArray("<?xml version=\"1.0\" encoding=\"UTF-16\"?><plist><dict><key>a</key>"
                                       "<string>&amp;&#x41;<![CDATA[<b>]]></string></dict></plist>")};
    for (const auto format : {sample::PropertyListFormat::Binary, sample::PropertyListFormat::Xml}) {
        for (const QVariant &value :
             {QVariant(root), QVariant(leaf), QVariant(QVariantList()), QVariant(u"text"_s)})
            seeds.append(sample::propertyList(value, format));
    }
    return seeds;
}

} // namespace

Target propertyList()
{
    return {.name = "PropertyList",
            .attack = attackPropertyList,
            .seeds = propertyListSeeds,
            .dictionary = "PropertyList",
            .longest = 8192};
}

} // namespace roamlet::fuzz
