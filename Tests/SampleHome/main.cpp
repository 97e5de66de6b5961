// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// Writes a home folder with the files of several browsers: something to look at on a machine without any.

#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleHome.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <limits>

using namespace Qt::StringLiterals;

namespace
{

using roamlet::sample::Contents;
using roamlet::sample::Failure;
using roamlet::sample::Layout;

int count(const QCommandLineParser &parser, const QString &name, int lowest)
{
    bool isNumber = false;
    const int number = parser.value(name).toInt(&isNumber);
    if (!isNumber || number < lowest)
        throw Failure(u"--"_s % name % u" needs a number, not \"" % parser.value(name) % u'"');
    return number;
}

/// "firefox@flatpak=2": two profiles of that browser.
roamlet::sample::BrowserSample browser(const QString &text)
{
    bool isNumber = false;
    const int number = text.section(u'=', 1).toInt(&isNumber);
    if (!isNumber || number < 0)
        throw Failure(u"--profiles needs a browser and a number, such as firefox=2, not \""_s % text % u'"');
    return {text.section(u'=', 0, 0), number};
}

Layout layout(const QString &name)
{
    if (name != u"mac" && name != u"linux")
        throw Failure(u"--layout is \"mac\" or \"linux\", not \""_s % name % u'"');
    return name == u"mac" ? Layout::Mac : Layout::Linux;
}

QDateTime moment(const QString &text)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    if (!time.isValid())
        throw Failure(u"--newest needs a time such as 2026-05-09T06:13:20Z, not \""_s % text % u'"');
    return time;
}

QString summary(const Contents &contents, const QString &folder)
{
    return u"%1: %2 profiles with %3 history rows, %4 bookmarks and %5 site icons\n"_s.arg(
        folder, QString::number(contents.profiles), QString::number(contents.historyRows),
        QString::number(contents.bookmarks), QString::number(contents.icons));
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    roamlet::sample::Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Writes a home folder with the files of browsers: Safari, Chrome and Edge, and others that are asked for."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"FOLDER"_s, u"The home to write; it is made when it does not exist."_s);
    const auto numbered = [](const QString &name, const QString &description, qsizetype standard) {
        return QCommandLineOption(name, description, u"N"_s, QString::number(standard));
    };
    parser.addOptions(
        {{u"layout"_s, u"Where the files lie: mac or linux (mac)."_s, u"mac|linux"_s, u"mac"_s},
         numbered(u"chrome"_s, u"Chrome profiles."_s, options.chromeProfiles),
         numbered(u"edge"_s, u"Edge profiles."_s, options.edgeProfiles),
         numbered(u"safari"_s,
                  u"Safari profiles beside the default one, in the mac layout; -1 for no Safari."_s,
                  options.safariProfiles),
         {u"profiles"_s,
          u"Profiles of any browser, as often as wanted: firefox=2, chromium@snap=1. The folders of earlier "
          "versions are called @old."_s,
          u"KIND[@KEY]=N"_s},
         numbered(u"rows"_s, u"History rows in each profile."_s, options.rowsPerProfile),
         numbered(u"bookmarks"_s, u"Bookmarks in each profile."_s, options.bookmarksPerProfile),
         numbered(u"icons"_s, u"Site icons in each profile."_s, options.iconsPerProfile),
         {u"newest"_s, u"Time of the newest visit."_s, u"ISO time"_s,
          options.newestVisit.toString(Qt::ISODate)},
         numbered(u"seed"_s, u"Another number gives other pages."_s, qsizetype(options.seed)),
         {u"awkward"_s, u"Add values that are hard to read or to show."_s},
         {u"logs"_s, u"Leave logs that are not merged and journals that are not rolled back."_s}});
    parser.process(application);

    QTextStream errors(stderr);
    try {
        const QStringList folders = parser.positionalArguments();
        if (folders.size() != 1)
            throw Failure(u"one FOLDER is needed; --help says more"_s);
        options.layout = layout(parser.value(u"layout"_s));
        options.chromeProfiles = count(parser, u"chrome"_s, 0);
        options.edgeProfiles = count(parser, u"edge"_s, 0);
        options.safariProfiles = count(parser, u"safari"_s, -1);
        for (const QString &text : parser.values(u"profiles"_s))
            options.furtherBrowsers.append(browser(text));
        options.rowsPerProfile = count(parser, u"rows"_s, 0);
        options.bookmarksPerProfile = count(parser, u"bookmarks"_s, 0);
        options.iconsPerProfile = count(parser, u"icons"_s, 0);
        options.seed = quint64(count(parser, u"seed"_s, std::numeric_limits<int>::min()));
        options.newestVisit = moment(parser.value(u"newest"_s));
        options.isAwkward = parser.isSet(u"awkward"_s);
        options.leavesLogs = parser.isSet(u"logs"_s);
        QTextStream(stdout) << summary(roamlet::sample::build(folders.first(), options), folders.first());
    } catch (const Failure &failure) {
        errors << QCoreApplication::applicationName() << ": " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
