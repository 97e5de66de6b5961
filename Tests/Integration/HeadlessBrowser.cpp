// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "HeadlessBrowser.h"

#include "Support/Waiting.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QStandardPaths>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// Where Debian's Chromium looks for what a new installation begins with.
const QString settingsOfInstallation = u"/etc/chromium"_s;

/// Writes a folder that tells a new installation to import `bookmarks`, to be put over
/// settingsOfInstallation.
bool writeInstallation(const QString &folder, const QString &bookmarks)
{
    const QJsonObject distribution{{u"import_bookmarks_from_file"_s, bookmarks}};
    const QJsonObject preferences{{u"distribution"_s, distribution}};
    QFile file(QDir(folder).filePath(u"initial_preferences"_s));
    return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) &&
           file.write(QJsonDocument(preferences).toJson()) > 0;
}

} // namespace

HeadlessBrowser::HeadlessBrowser()
{
    m_pipe.onEvent = [this](const QString &method, const QJsonObject &parameters, const QString &) {
        if (method == u"Page.lifecycleEvent" && parameters.value(u"name"_s).toString() == u"load")
            m_loaded.insert(parameters.value(u"loaderId"_s).toString());
    };
}

QString HeadlessBrowser::program()
{
    return QStandardPaths::findExecutable(u"chromium"_s);
}

QString HeadlessBrowser::start(const Options &options)
{
    BrowserProcess::Start start{
        .program = program(),
        .arguments = {u"--headless"_s, u"--no-sandbox"_s, u"--disable-gpu"_s, u"--disable-quic"_s,
                      u"--disable-background-networking"_s, u"--disable-component-update"_s,
                      u"--disable-sync"_s, u"--disable-dev-shm-usage"_s, u"--remote-debugging-pipe"_s,
                      u"--host-resolver-rules=MAP * 127.0.0.1"_s, u"--no-proxy-server"_s,
                      u"--user-data-dir="_s % options.userData, u"--profile-directory="_s % options.profile},
        .home = options.home,
        .temporary = options.temporary,
        .readEnd = m_pipe.browserReadEnd(),
        .writeEnd = m_pipe.browserWriteEnd(),
        .cover = {},
        .covered = {},
    };
    if (options.bookmarksToImport.isEmpty()) {
        start.arguments.append(u"--no-first-run"_s);
    } else {
        start.cover = QDir(options.temporary).filePath(u"installation"_s);
        start.covered = settingsOfInstallation;
        if (!writeInstallation(start.cover, options.bookmarksToImport))
            return u"cannot write "_s % start.cover;
        start.arguments.append(u"--force-first-run"_s);
    }
    start.arguments.append(u"about:blank"_s);

    const bool isStarted = m_process.start(start);
    m_pipe.closeBrowserEnds();
    if (!isStarted)
        return u"cannot start "_s % start.program;
    const DevToolsPipe::Answer version = m_pipe.call(u"Browser.getVersion"_s);
    return version ? QString() : version.error();
}

std::expected<QString, QString> HeadlessBrowser::open(const QString &url)
{
    const auto target = m_pipe.call(u"Target.createTarget"_s, {{u"url"_s, u"about:blank"_s}});
    if (!target)
        return std::unexpected(target.error());
    const auto page = m_pipe.call(u"Target.attachToTarget"_s,
                                  {{u"targetId"_s, target->value(u"targetId"_s)}, {u"flatten"_s, true}});
    if (!page)
        return std::unexpected(page.error());
    m_page = page->value(u"sessionId"_s).toString();

    for (const auto &[method, parameters] :
         {std::pair(u"Page.enable"_s, QJsonObject()),
          std::pair(u"Page.setLifecycleEventsEnabled"_s, QJsonObject{{u"enabled"_s, true}})}) {
        if (const auto answer = m_pipe.call(method, parameters, m_page); !answer)
            return std::unexpected(answer.error());
    }
    const auto navigation = m_pipe.call(u"Page.navigate"_s, {{u"url"_s, url}}, m_page);
    if (!navigation)
        return std::unexpected(navigation.error());
    if (navigation->contains(u"errorText"_s))
        return std::unexpected(QString(url % u": " % navigation->value(u"errorText"_s).toString()));
    const QString document = navigation->value(u"loaderId"_s).toString();
    if (!waitUntil([this, &document] { return m_loaded.contains(document); }))
        return std::unexpected(QString(url % u" does not load"));

    const auto address = evaluate(u"location.href"_s);
    if (!address)
        return std::unexpected(address.error());
    return address->toString();
}

std::expected<QJsonValue, QString> HeadlessBrowser::evaluate(const QString &expression)
{
    const auto answer = m_pipe.call(
        u"Runtime.evaluate"_s,
        {{u"expression"_s, expression}, {u"awaitPromise"_s, true}, {u"returnByValue"_s, true}}, m_page);
    if (!answer)
        return std::unexpected(answer.error());
    if (answer->contains(u"exceptionDetails"_s))
        return std::unexpected(QString::fromUtf8(QJsonDocument(*answer).toJson()));
    return answer->value(u"result"_s).toObject().value(u"value"_s);
}

bool HeadlessBrowser::close()
{
    return m_pipe.call(u"Browser.close"_s).has_value() && m_process.waitUntilGone();
}

} // namespace roamlet::testing
