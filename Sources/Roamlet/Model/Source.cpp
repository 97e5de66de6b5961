// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Source.h"

#include "Model/Browser.h"

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

QString Source::id() const
{
    // Only the profile decides, whatever the kind: ids in stored settings depend on it.
    if (!profile)
        return u"safari"_s;
    const QString browser =
        installation.isEmpty() ? rawValue(kind) : QString(rawValue(kind) % u'@' % installation);
    return browser % u'/' % *profile;
}

QString Source::label() const
{
    const QString browser = displayName(kind);
    const QString shown = namesInstallation && !installation.isEmpty()
                              ? QString(browser % u' ' % Browser::installationName(installation))
                              : browser;
    return name == browser ? shown : QString(shown % u" - " % name);
}

bool Source::holdsMainSafariBookmarks() const
{
    return kind == Kind::Safari && std::holds_alternative<AllExcept>(safariBookmarks);
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
    return Browser::of(kind).rawValue;
}

std::optional<Source::Kind> Source::kindFromRawValue(QStringView rawValue)
{
    const QList<Browser> &browsers = Browser::all();
    const auto found = std::ranges::find(browsers, rawValue, &Browser::rawValue);
    return found == browsers.end() ? std::nullopt : std::optional(found->kind);
}

QString Source::displayName(Kind kind)
{
    return Browser::of(kind).displayName;
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
                      source.profile.value_or(QString()), source.name, source.safariBookmarks,
                      source.installation, source.namesInstallation);
}

} // namespace roamlet
