// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsTest.h"

#include <QLocale>

#include <gmock/gmock.h>
#include <mutex>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;
using ::testing::MatchesRegex;

using DiagnosticsRunTest = DiagnosticsTest;

} // namespace

TEST_F(DiagnosticsRunTest, noJobReadsAProfileThatIsSwitchedOff)
{
    home.addPages();
    home.addBookmarks();
    home.addIcons();
    const auto ids = [](const char *key) {
        return std::string_view(key) == "disabledProfiles" ? u"chrome/Default"_s : u"Default"_s;
    };
    for (const char *key : {"disabledProfiles", "disabledChromeProfiles"}) {
        SCOPED_TRACE(key);
        home.defaults.remove(u"disabledProfiles"_s);
        home.defaults.remove(u"disabledChromeProfiles"_s);
        home.defaults.setStringList(QString::fromLatin1(key), {ids(key)});
        std::mutex mutex;
        QStringList touched;
        home.files.failure = [&](const QString &path) {
            const std::scoped_lock lock(mutex);
            touched.append(path);
            return std::error_code{};
        };
        const QList<QStringList> jobs{{u"--summary"_s},
                                      {u"--top"_s},
                                      {u"--search"_s, u"page"_s},
                                      {u"--site"_s, u"example.org"_s},
                                      {u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s}};
        for (const QStringList &arguments : jobs) {
            const QByteArray output = outputOf(arguments);
            EXPECT_FALSE(output.contains("Daily page")) << output.toStdString();
            EXPECT_FALSE(output.contains("https://a.example/")) << output.toStdString();
        }
        EXPECT_FALSE(touched.isEmpty());
        for (const QString &path : std::as_const(touched))
            EXPECT_FALSE(path.startsWith(home.chrome(u"Default/"_s))) << path.toStdString();
        home.files.failure = nullptr;
    }
}

TEST_F(DiagnosticsRunTest, aReaderThatWentAwayEndsEveryJobQuietly)
{
    home.addPages();
    console.outputError = std::make_error_code(std::errc::broken_pipe);
    for (const QStringList &arguments : {QStringList{u"--summary"_s},
                                         {u"--top"_s},
                                         {u"--search"_s},
                                         {u"--export"_s, u"csv"_s, u"--source"_s, u"edge/Default"_s}}) {
        EXPECT_EQ(run(arguments), 0) << arguments.first().toStdString();
        EXPECT_EQ(console.errors, "");
    }
}

TEST_F(DiagnosticsRunTest, outputThatCannotBeWrittenIsAFailureWithAReason)
{
    home.addPages();
    console.outputError = std::make_error_code(std::errc::no_space_on_device);
    for (const QStringList &arguments : {QStringList{u"--summary"_s},
                                         {u"--top"_s},
                                         {u"--search"_s},
                                         {u"--export"_s, u"csv"_s, u"--source"_s, u"edge/Default"_s},
                                         {u"--export"_s, u"x"_s}}) {
        console.errors.clear();
        EXPECT_EQ(run(arguments), 1) << arguments.first().toStdString();
        EXPECT_THAT(console.errors.toStdString(), HasSubstr("No space left on device"));
    }
}

TEST_F(DiagnosticsRunTest, aRunThatWasAskedToStopPrintsNothing)
{
    home.addPages();
    stop.request_stop();
    for (const QStringList &arguments :
         {QStringList{u"--summary"_s}, {u"--top"_s}, {u"--search"_s}, {u"--watch"_s, u"60"_s}})
        run(arguments);
    EXPECT_EQ(console.writes, 0);
}

TEST_F(DiagnosticsRunTest, secondsAreWrittenWithAPointInEveryLanguage)
{
    home.addPages();
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_THAT(linesOf({u"--top"_s}).last().toStdString(), MatchesRegex("6 URLs in " + seconds + "s"));
    QLocale::setDefault(before);
}

} // namespace roamlet::testing
