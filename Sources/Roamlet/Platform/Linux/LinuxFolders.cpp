// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxFolders.h"

#include "Platform/Files.h"
#include "Platform/Linux/ConfigHome.h"
#include "Platform/UserDefaults.h"

#include <QDir>

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The setting that names the data folder of an installation outright, or nothing.
std::optional<QString> configuredFolder(const UserDefaults &defaults, Source::Kind browser,
                                        const QString &installation, const QString &home)
{
    const QString suffix = installation.isEmpty() ? QString() : QString(u'@' % installation);
    const std::optional<QString> value = defaults.string(u"dataRoot." % Source::rawValue(browser) % suffix);
    if (!value || value->isEmpty())
        return {};
    const QString path =
        *value == u"~" || value->startsWith(u"~/") ? QString(home % value->sliced(1)) : *value;
    return QDir::cleanPath(path);
}

} // namespace

LinuxFolders::Environment LinuxFolders::Environment::ofThisProcess()
{
    // As it stands: where it does not exist, making the private copies there makes it or says why it cannot.
    const QString temporary = qEnvironmentVariable("TMPDIR");
    return {.home = homeFolder(),
            .configHome = roamlet::configHome(),
            .temporary = QDir::isAbsolutePath(temporary) ? QDir::cleanPath(temporary) : u"/tmp"_s};
}

LinuxFolders::LinuxFolders(Environment environment, const Files &files, const UserDefaults &defaults)
    : m_environment(std::move(environment)), m_files(files), m_defaults(defaults)
{
    if (m_environment.configHome.isEmpty())
        m_environment.configHome = m_environment.home % u"/.config";
}

QString LinuxFolders::home() const
{
    return m_environment.home;
}

QString LinuxFolders::temporary() const
{
    return m_environment.temporary;
}

QString LinuxFolders::folder(Browser::Place::Base base) const
{
    switch (base) {
    case Browser::Place::Base::Config:
        return m_environment.configHome;
    case Browser::Place::Base::MacSupport:
        return m_environment.home % u"/Library/Application Support";
    case Browser::Place::Base::Home:
        break;
    }
    return m_environment.home;
}

QStringList LinuxFolders::dataFolders(Source::Kind browser, const QString &installation) const
{
    if (const auto path = configuredFolder(m_defaults, browser, installation, m_environment.home))
        return {*path};
    const QList<Browser::Installation> &installations = Browser::of(browser).installations;
    const auto found = std::ranges::find(installations, installation, &Browser::Installation::key);
    QStringList result;
    if (found == installations.end())
        return result;
    for (const auto &[base, path] : found->places)
        result.append(folder(base) % u'/' % path);
    return result;
}

QString LinuxFolders::safariContainer() const
{
    // Beside the data folder, as in a Mac's Library folder. A data folder that was copied alone holds
    // everything itself.
    const auto configured = configuredFolder(m_defaults, Source::Kind::Safari, {}, m_environment.home);
    const QString root = dataFolders(Source::Kind::Safari, {}).first();
    const QString container = QDir::cleanPath(root % u"/../Containers/com.apple.Safari/Data/Library/Safari");
    return configured && !m_files.exists(container) ? root : container;
}

} // namespace roamlet
