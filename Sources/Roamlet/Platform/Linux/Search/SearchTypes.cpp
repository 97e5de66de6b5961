// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Search/SearchTypes.h"

#include <QDBusMetaType>

namespace roamlet
{

namespace
{

constexpr int channels = 4;
constexpr int bitsOfChannel = 8;

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const BusIcon &icon)
{
    constexpr bool hasOpacity = true;
    const auto &[width, height, bytes] = icon.pixels;
    argument.beginStructure();
    argument << width << height << width * channels << hasOpacity << bitsOfChannel << channels << bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, BusIcon &icon)
{
    int rowSize = 0;
    bool hasOpacity = false;
    int bits = 0;
    int channelCount = 0;
    argument.beginStructure();
    argument >> icon.pixels.width >> icon.pixels.height >> rowSize >> hasOpacity >> bits >> channelCount >>
        icon.pixels.bytes;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const KRunnerMatch &match)
{
    argument.beginStructure();
    argument << match.id << match.text << match.icon << match.category << match.relevance << match.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, KRunnerMatch &match)
{
    argument.beginStructure();
    argument >> match.id >> match.text >> match.icon >> match.category >> match.relevance >> match.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const KRunnerAction &action)
{
    argument.beginStructure();
    argument << action.id << action.text << action.icon;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, KRunnerAction &action)
{
    argument.beginStructure();
    argument >> action.id >> action.text >> action.icon;
    argument.endStructure();
    return argument;
}

void registerSearchTypes()
{
    qDBusRegisterMetaType<BusIcon>();
    qDBusRegisterMetaType<KRunnerMatch>();
    qDBusRegisterMetaType<QList<KRunnerMatch>>();
    qDBusRegisterMetaType<KRunnerAction>();
    qDBusRegisterMetaType<QList<KRunnerAction>>();
    qDBusRegisterMetaType<QList<QVariantMap>>();
}

} // namespace roamlet
