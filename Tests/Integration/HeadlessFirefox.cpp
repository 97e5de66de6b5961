// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "HeadlessFirefox.h"

#include "Support/Waiting.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A first start makes a profile's files, and on a busy machine it takes its time.
constexpr std::chrono::milliseconds startPatience = 4 * patience;

/// In a profile's folder: where the browser writes the port that it is driven by.
const QString portFile = u"MarionetteActivePort"_s;

/// Every host is on the loopback address, and a port of the browser's own choice serves us. The rest is what
/// it would ask its maker for by itself.
constexpr char offlinePreferences[] = R"(user_pref("marionette.port", 0);
user_pref("network.dns.forceResolve", "127.0.0.1");
user_pref("network.proxy.type", 0);
user_pref("network.trr.mode", 5);
user_pref("network.captive-portal-service.enabled", false);
user_pref("network.connectivity-service.enabled", false);
user_pref("network.http.speculative-parallel-limit", 0);
user_pref("dom.security.https_first", false);
user_pref("dom.push.connection.enabled", false);
user_pref("app.normandy.enabled", false);
user_pref("app.update.disabledForTesting", true);
user_pref("browser.region.network.url", "");
user_pref("browser.safebrowsing.blockedURIs.enabled", false);
user_pref("browser.safebrowsing.downloads.enabled", false);
user_pref("browser.safebrowsing.malware.enabled", false);
user_pref("browser.safebrowsing.phishing.enabled", false);
user_pref("browser.safebrowsing.update.enabled", false);
user_pref("browser.search.update", false);
user_pref("browser.newtabpage.enabled", false);
user_pref("browser.startup.page", 0);
user_pref("browser.startup.homepage_override.mstone", "ignore");
user_pref("browser.aboutwelcome.enabled", false);
user_pref("browser.shell.checkDefaultBrowser", false);
user_pref("browser.profiles.enabled", true);
user_pref("datareporting.healthreport.uploadEnabled", false);
user_pref("datareporting.policy.dataSubmissionEnabled", false);
user_pref("datareporting.policy.dataSubmissionPolicyBypassNotification", true);
user_pref("termsofuse.bypassNotification", true);
user_pref("extensions.getAddons.cache.enabled", false);
user_pref("extensions.update.enabled", false);
user_pref("media.gmp-manager.updateEnabled", false);
user_pref("nimbus.rollouts.enabled", false);
user_pref("services.settings.server", "data:,");
user_pref("toolkit.telemetry.enabled", false);
user_pref("toolkit.telemetry.server", "");
)";

BrowserProcess::Start startOf(const QStringList &arguments, const QString &home, const QString &temporary)
{
    return {.program = HeadlessFirefox::program(),
            .arguments = QStringList{u"--headless"_s} + arguments,
            .home = home,
            .temporary = temporary,
            .cover = {},
            .covered = {}};
}

/// The port that is written there, or 0.
quint16 portIn(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toUShort() : 0;
}

} // namespace

QString HeadlessFirefox::program()
{
    return QStandardPaths::findExecutable(u"firefox-esr"_s);
}

QString HeadlessFirefox::createProfile(const QString &name, const QString &home, const QString &temporary)
{
    BrowserProcess process;
    if (!process.start(startOf({u"-CreateProfile"_s, name}, home, temporary)))
        return u"cannot start "_s % program();
    return process.waitUntilGone() ? QString() : QString(u"making the profile "_s % name % u" does not end");
}

bool HeadlessFirefox::writePreferences(const QString &profile)
{
    QFile file(QDir(profile).filePath(u"user.js"_s));
    return file.open(QIODevice::WriteOnly) && file.write(offlinePreferences) > 0;
}

QString HeadlessFirefox::start(const Options &options)
{
    const QString port = QDir(options.profile).filePath(portFile);
    // One that was killed leaves it behind.
    QFile::remove(port);
    if (!writePreferences(options.profile))
        return u"cannot write to "_s % options.profile;
    if (!m_process.start(
            startOf({u"--marionette"_s, u"--remote-allow-system-access"_s, u"--profile"_s, options.profile},
                    options.home, options.temporary)))
        return u"cannot start "_s % program();
    if (!waitUntil([&port] { return portIn(port) != 0; }, startPatience))
        return u"the browser opens no port"_s;
    if (!m_connection.connectTo(portIn(port)))
        return u"the browser does not answer"_s;
    const int timeout = static_cast<int>(std::chrono::milliseconds(2 * patience).count());
    for (const auto &[command, parameters] :
         {std::pair(u"WebDriver:NewSession"_s, QJsonObject()),
          std::pair(u"WebDriver:SetTimeouts"_s,
                    QJsonObject{{u"script"_s, timeout}, {u"pageLoad"_s, timeout}})}) {
        if (const auto answer = m_connection.call(command, parameters); !answer)
            return answer.error();
    }
    return {};
}

std::expected<QString, QString> HeadlessFirefox::open(const QString &url)
{
    MarionetteConnection::Answer answer;
    for (const auto &[command, parameters] :
         {std::pair(u"Marionette:SetContext"_s, QJsonObject{{u"value"_s, u"content"_s}}),
          std::pair(u"WebDriver:Navigate"_s, QJsonObject{{u"url"_s, url}}),
          std::pair(u"WebDriver:GetCurrentURL"_s, QJsonObject())}) {
        answer = m_connection.call(command, parameters);
        if (!answer)
            return std::unexpected(answer.error());
    }
    return answer->toObject().value(u"value"_s).toString();
}

std::expected<QJsonValue, QString> HeadlessFirefox::run(const QString &body, const QJsonArray &args)
{
    if (const auto context = m_connection.call(u"Marionette:SetContext"_s, {{u"value"_s, u"chrome"_s}});
        !context)
        return std::unexpected(context.error());
    const QString script =
        u"const done = arguments[arguments.length - 1];"
        "const { PlacesUtils } = ChromeUtils.importESModule('resource://gre/modules/PlacesUtils.sys.mjs');"
        "(async (...args) => {" %
        body %
        u"})(...[...arguments].slice(0, -1))"
        ".then(value => done({ value }), error => done({ error: `${error}\\n${error.stack}` }));";
    const auto answer =
        m_connection.call(u"WebDriver:ExecuteAsyncScript"_s, {{u"script"_s, script}, {u"args"_s, args}});
    if (!answer)
        return std::unexpected(answer.error());
    const QJsonObject result = answer->toObject().value(u"value"_s).toObject();
    if (result.contains(u"error"_s))
        return std::unexpected(result.value(u"error"_s).toString());
    return result.value(u"value"_s);
}

bool HeadlessFirefox::close()
{
    return m_connection.call(u"Marionette:Quit"_s, {{u"flags"_s, QJsonArray{u"eAttemptQuit"_s}}})
               .has_value() &&
           m_process.waitUntilGone();
}

} // namespace roamlet::testing
