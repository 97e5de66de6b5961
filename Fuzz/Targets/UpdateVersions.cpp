// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/Portions.h"
#include "Kit/Targets.h"
#include "Platform/Linux/Updates/Versions.h"

#include <compare>

namespace roamlet::fuzz
{

namespace
{

void attackUpdateVersions(QByteArrayView bytes)
{
    Portions portions(bytes);
    const QString a = portions.text();
    const QString b = portions.text();
    const QString c = portions.text();
    for (const QString &version : {a, b, c}) {
        if (!Versions::isVersion(version))
            return;
        require(Versions::compare(version, version) == 0, "a version is no other than itself");
    }
    const auto ab = Versions::compare(a, b);
    const auto bc = Versions::compare(b, c);
    const auto ac = Versions::compare(a, c);
    require((ab < 0) == (Versions::compare(b, a) > 0) && (ab == 0) == (Versions::compare(b, a) == 0),
            "an order is the same from both sides");
    if (ab <= 0 && bc <= 0)
        require(ac <= 0, "an order has no circles");
}

QList<QByteArray> updateVersionSeeds()
{
    const auto seed = [](const char *a, const char *b, const char *c) {
        return PortionWriter().text(a).text(b).text(c).bytes();
    };
    return {seed("1.0", "1.0.1", "1.1"), seed("1.0b2", "1.0", "1.0-1"),
            seed("2024.12", "2024.012", "99999999999999999999"), seed("1.0 (3)", "1.0rc1", "1.0.0")};
}

} // namespace

Target updateVersions()
{
    return {.name = "UpdateVersions",
            .attack = attackUpdateVersions,
            .seeds = updateVersionSeeds,
            .longest = 128};
}

} // namespace roamlet::fuzz
