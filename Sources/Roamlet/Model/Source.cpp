// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Source.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{
struct KindNames {
    Source::Kind kind;
    QLatin1StringView rawValue;
    QLatin1StringView displayName;
};
constexpr std::array kindNames{
    KindNames{Source::Kind::Safari, "safari"_L1, "Safari"_L1},
    KindNames{Source::Kind::Chrome, "chrome"_L1, "Chrome"_L1},
    KindNames{Source::Kind::Edge, "edge"_L1, "Edge"_L1},
};

const KindNames &names(Source::Kind kind)
{
    return kindNames.at(static_cast<size_t>(kind));
}
} // namespace

QString Source::id() const
{
    // Only the profile decides, whatever the kind: ids in stored settings depend on it.
    return profile ? QString(rawValue(kind) % u'/' % *profile) : u"safari"_s;
}

QString Source::label() const
{
    const QString browser = displayName(kind);
    return name == browser ? name : QString(browser % u" - " % name);
}

Source Source::safari()
{
    return {.kind = Kind::Safari,
            .profile = {},
            .name = displayName(Kind::Safari),
            .safariBookmarks = AllExcept{}};
}

QString Source::rawValue(Kind kind)
{
    return names(kind).rawValue;
}

std::optional<Source::Kind> Source::kindFromRawValue(QStringView rawValue)
{
    for (const KindNames &candidate : kindNames) {
        if (candidate.rawValue == rawValue)
            return candidate.kind;
    }
    return {};
}

QString Source::displayName(Kind kind)
{
    return names(kind).displayName;
}

size_t qHash(const Source::SafariBookmarks &selection, size_t seed)
{
    struct Payload {
        size_t seed;
        size_t operator()(const Source::AllExcept &all) const { return qHash(all.serverIDs, seed); }
        size_t operator()(const Source::Folder &folder) const { return qHash(folder.serverID, seed); }
        size_t operator()(const Source::None & /*none*/) const { return seed; }
    };
    return qHashMulti(seed, selection.index(), std::visit(Payload{seed}, selection));
}

size_t qHash(const Source &source, size_t seed)
{
    return qHashMulti(seed, Source::rawValue(source.kind), source.profile.has_value(),
                      source.profile.value_or(QString()), source.name, source.safariBookmarks);
}

} // namespace roamlet
