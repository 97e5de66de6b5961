// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxFolders.h"

#include "Platform/Files.h"
#include "Platform/Linux/ConfigHome.h"
#include "Platform/UserDefaults.h"

#include <QDir>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The setting that names a browser's data root outright, or nothing.
std::optional<QString> configuredRoot(const UserDefaults &defaults, const QString &browser,
                                      const QString &home)
{
    const std::optional<QString> value = defaults.string(u"dataRoot." % browser);
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
    return {.home = QDir::homePath(),
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

QStringList LinuxFolders::dataRootCandidates(const QString &browser) const
{
    const QString &home = m_environment.home;
    const QString &config = m_environment.configHome;
    if (const auto path = configuredRoot(m_defaults, browser, home))
        return {*path};
    if (browser == u"safari")
        return {home % u"/Library/Safari"};
    if (browser == u"chrome") {
        return {home % u"/Library/Application Support/Google/Chrome",
                config % u"/google-chrome",
                home % u"/.var/app/com.google.Chrome/config/google-chrome",
                config % u"/chromium",
                home % u"/snap/chromium/common/chromium",
                home % u"/.var/app/org.chromium.Chromium/config/chromium"};
    }
    return {home % u"/Library/Application Support/Microsoft Edge", config % u"/microsoft-edge",
            home % u"/.var/app/com.microsoft.Edge/config/microsoft-edge",
            home % u"/.var/app/com.microsoft.Edge/config/microsoft-edge-beta"};
}

QString LinuxFolders::dataRoot(const QString &browser) const
{
    const QStringList candidates = dataRootCandidates(browser);
    for (const QString &candidate : candidates) {
        if (m_files.exists(candidate))
            return candidate;
    }
    return candidates.first();
}

QString LinuxFolders::safariContainer() const
{
    // Beside the data root, as in a Mac's Library folder. A data root that was copied alone holds everything
    // itself.
    const QString root = dataRoot(u"safari"_s);
    const QString container = QDir::cleanPath(root % u"/../Containers/com.apple.Safari/Data/Library/Safari");
    const bool isOverridden = configuredRoot(m_defaults, u"safari"_s, m_environment.home).has_value();
    return isOverridden && !m_files.exists(container) ? root : container;
}

bool LinuxFolders::hasData(const QString &browser) const
{
    return m_files.exists(dataRoot(browser)) || (browser == u"safari" && m_files.exists(safariContainer()));
}

} // namespace roamlet
