// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/UpdateChoice.h"

#include "Platform/Linux/AppImage.h"
#include "Platform/Linux/Updates/Versions.h"

#include <QSysInfo>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Feeds use either of each processor's two common names.
QString canonicalArchitecture(const QString &name)
{
    if (name == u"x64" || name == u"amd64")
        return u"x86_64"_s;
    return name == u"aarch64" ? u"arm64"_s : name;
}

bool fits(const FeedItem::Package &package, const UpdateHost &host)
{
    // One feed serves every system: what does not say is told by its name.
    if (!package.system.isEmpty()) {
        const QString system = package.system.section(u'-', 0, 0);
        const QString architecture = package.system.section(u'-', 1);
        if (system != u"linux")
            return false;
        if (!architecture.isEmpty() &&
            canonicalArchitecture(architecture) != canonicalArchitecture(host.architecture))
            return false;
    }
    const QLatin1StringView ending = host.kind == PackageKind::AppImage ? ".appimage"_L1 : ".deb"_L1;
    return package.address.path().endsWith(ending, Qt::CaseInsensitive);
}

bool suits(const FeedItem &item, const UpdateHost &host)
{
    const auto isLimit = [](const QString &limit) { return limit.isEmpty() || Versions::isVersion(limit); };
    // A release for systems that nobody can tell is for none.
    if (!isLimit(item.minimumSystemVersion) || !isLimit(item.maximumSystemVersion))
        return false;
    const auto system = [&host](const QString &limit) {
        return Versions::compare(host.systemVersion, limit);
    };
    return item.channel.isEmpty() && Versions::compare(item.version, host.version) > 0 &&
           (item.minimumSystemVersion.isEmpty() || system(item.minimumSystemVersion) >= 0) &&
           (item.maximumSystemVersion.isEmpty() || system(item.maximumSystemVersion) <= 0);
}

/// Whether the release is critical for those who have this version.
bool isCriticalFor(const QString &version, const FeedItem &item)
{
    if (!item.criticalBefore)
        return false;
    // Where nobody can tell whom it concerns, it concerns everybody.
    return !Versions::isVersion(*item.criticalBefore) || Versions::compare(version, *item.criticalBefore) < 0;
}

} // namespace

UpdateHost UpdateHost::ofThisProcess(const QString &version)
{
    return {.version = version,
            .kind = ownAppImage().isEmpty() ? PackageKind::Debian : PackageKind::AppImage,
            .systemVersion = QSysInfo::kernelVersion(),
            .architecture = QSysInfo::currentCpuArchitecture()};
}

std::optional<UpdateChoice> UpdateChoice::best(const QList<FeedItem> &items, const UpdateHost &host)
{
    std::optional<UpdateChoice> result;
    for (const FeedItem &item : items) {
        if (!suits(item, host) || (result && Versions::compare(item.version, result->item.version) <= 0))
            continue;
        const auto package = std::ranges::find_if(
            item.packages, [&host](const FeedItem::Package &candidate) { return fits(candidate, host); });
        if (package == item.packages.cend())
            continue;
        result =
            UpdateChoice{.item = item, .package = *package, .isCritical = isCriticalFor(host.version, item)};
    }
    return result;
}

Update UpdateChoice::update() const
{
    return {.version = item.version,
            .displayVersion = item.displayVersion,
            .notes = item.notes,
            .size = package.length,
            .isCritical = isCritical};
}

} // namespace roamlet
