// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// Lets a real browser visit numbered pages of this machine for some seconds, and start anew now and then.
// Takes the browser, chromium or firefox, the seconds, and the home that it keeps its profile in.

#include "Integration/HeadlessBrowser.h"
#include "Integration/HeadlessFirefox.h"
#include "Integration/LoopbackServer.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <chrono>
#include <memory>

using namespace roamlet::testing;
using namespace Qt::StringLiterals;

namespace
{

/// Each page has a tab of its own in Chromium; all of them shall find room.
constexpr int pagesUntilRestart = 25;

template<typename Browser>
QString browse(const typename Browser::Options &options, std::chrono::seconds time)
{
    LoopbackServer server(1);
    QElapsedTimer timer;
    timer.start();
    int page = 0;
    while (!timer.hasExpired(std::chrono::milliseconds(time).count())) {
        Browser browser;
        if (const QString problem = browser.start(options); !problem.isEmpty())
            return problem;
        for (int i = 0; i < pagesUntilRestart && !timer.hasExpired(std::chrono::milliseconds(time).count());
             ++i) {
            const QString number = QString::number(++page);
            const QString url = server.add(u"live.example"_s, 0, u"/page/"_s % number,
                                           {.title = u"Page "_s % number, .icon = {}, .movedTo = {}});
            if (const auto opened = browser.open(url); !opened)
                return opened.error();
        }
        if (!browser.close())
            return u"the browser does not close"_s;
    }
    QTextStream(stdout) << page << " pages" << Qt::endl;
    return {};
}

QString browse(const QString &browser, std::chrono::seconds time, const QString &home)
{
    const QTemporaryDir temporary;
    if (browser == u"chromium")
        return browse<HeadlessBrowser>({.home = home,
                                        .temporary = temporary.path(),
                                        .userData = QDir(home).filePath(u".config/chromium"_s),
                                        .profile = u"Default"_s,
                                        .bookmarksToImport = {}},
                                       time);
    if (const QString problem = HeadlessFirefox::createProfile(u"live"_s, home, temporary.path());
        !problem.isEmpty())
        return problem;
    for (const QString &folder : {u".config/mozilla/firefox"_s, u".mozilla/firefox"_s}) {
        const QDir profiles(QDir(home).filePath(folder));
        const QString profile = profiles.entryList({u"*.live"_s}, QDir::Dirs).value(0);
        if (!profile.isEmpty())
            return browse<HeadlessFirefox>(
                {.home = home, .temporary = temporary.path(), .profile = profiles.filePath(profile)}, time);
    }
    return u"there is no profile"_s;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const std::chrono::seconds time(arguments.value(2).toInt());
    if (arguments.size() != 4 || time.count() <= 0) {
        QTextStream(stderr) << "Usage: roamlet-live-browsing BROWSER SECONDS HOME" << Qt::endl;
        return 2;
    }
    const QString problem = browse(arguments[1], time, arguments[3]);
    if (!problem.isEmpty())
        QTextStream(stderr) << arguments[1] << ": " << problem << Qt::endl;
    return problem.isEmpty() ? 0 : 1;
}
