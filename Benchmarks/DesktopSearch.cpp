// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// How long does a desktop wait for its first answer and for each further one, and what does the process take
// that gives them? Prints "name value" lines about the home folder that it is started in.

#include "Library/LibraryReading.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Platform/Linux/Search/SearchService.h"
#include "Readers/BrowserReader.h"
#include "Readers/HistoryText.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <signal.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace
{

using namespace roamlet;
using namespace Qt::StringLiterals;
using Watch = std::chrono::steady_clock;

constexpr int coldStarts = 11;
constexpr int waitForAnswer = 60'000; // milliseconds

double millisecondsSince(Watch::time_point start)
{
    return std::chrono::duration<double, std::milli>(Watch::now() - start).count();
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values.empty() ? 0 : values[values.size() / 2];
}

void write(const QString &path, const QString &text)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(text.toUtf8()) < 0)
        std::exit(1);
}

/// A bus that starts the program, as a session's own does once it is installed.
class Bus
{
public:
    Bus()
    {
        write(m_folder.filePath(u"roamlet.service"_s),
              u"[D-BUS Service]\nName="_s % SearchService::serviceName % u"\nExec="_s %
                  QCoreApplication::applicationDirPath() % u"/roamlet --desktop-search\n");
        write(m_folder.filePath(u"bus.conf"_s),
              u"<busconfig><type>session</type><listen>unix:dir="_s % m_folder.path() %
                  u"</listen><servicedir>"_s % m_folder.path() %
                  u"</servicedir><policy context=\"default\"><allow send_destination=\"*\"/>"
                  "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
        m_daemon.start(u"dbus-daemon"_s, {u"--nofork"_s, u"--print-address"_s,
                                          u"--config-file="_s + m_folder.filePath(u"bus.conf"_s)});
        if (!m_daemon.waitForReadyRead())
            std::exit(1);
        m_connection =
            QDBusConnection::connectToBus(QString::fromUtf8(m_daemon.readLine()).trimmed(), u"bus"_s);
    }
    ~Bus()
    {
        QDBusConnection::disconnectFromBus(u"bus"_s);
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    /// In milliseconds; the bus starts whoever answers.
    double ask(const QString &words) const
    {
        QDBusMessage question =
            QDBusMessage::createMethodCall(SearchService::serviceName, SearchService::gnomePath,
                                           u"org.gnome.Shell.SearchProvider2"_s, u"GetInitialResultSet"_s);
        question << words.split(u' ');
        const Watch::time_point start = Watch::now();
        const QDBusMessage reply = m_connection.call(question, QDBus::Block, waitForAnswer);
        const double taken = millisecondsSince(start);
        if (reply.type() != QDBusMessage::ReplyMessage) {
            std::fprintf(stderr, "%s\n", qPrintable(reply.errorMessage()));
            std::exit(1);
        }
        return taken;
    }
    uint process() const { return m_connection.interface()->servicePid(SearchService::serviceName); }
    void end() const
    {
        ::kill(static_cast<pid_t>(process()), SIGTERM);
        while (m_connection.interface()->isServiceRegistered(SearchService::serviceName))
            QThread::msleep(5);
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QDBusConnection m_connection{QString()};
};

/// The number behind a name in a file below /proc, in kilobytes.
double kilobytes(uint process, const char *file, const char *name)
{
    QFile status(u"/proc/%1/%2"_s.arg(process).arg(QLatin1StringView(file)));
    if (!status.open(QFile::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.sliced(static_cast<qsizetype>(std::strlen(name)) + 1)
                .simplified()
                .split(' ')
                .value(0)
                .toDouble();
    }
    return 0;
}

double switches(uint process)
{
    double count = 0;
    for (const char *name : {"voluntary_ctxt_switches", "nonvoluntary_ctxt_switches"})
        count += kilobytes(process, "status", name);
    return count;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    LinuxPlatform platform;
    const ReadContext context = LibraryReading::readContext(platform.services());
    size_t textBytes = 0;
    for (const Source &source : LibraryReading::allProfiles({}, context)) {
        if (const auto text = BrowserReader::historyText(source, context, size_t{1} << 30); text && *text)
            textBytes += (*text)->textSize();
    }
    const std::string bytes(textBytes, 'x');
    std::vector<double> passes;
    for (int i = 0; i < 100; ++i) {
        const Watch::time_point start = Watch::now();
        if (bytes.find('\x07') != std::string::npos)
            return 1;
        passes.push_back(millisecondsSince(start));
    }

    const Bus bus;
    std::vector<double> first;
    for (int i = 0; i < coldStarts; ++i) {
        if (i > 0)
            bus.end();
        first.push_back(bus.ask(u"gar"_s));
    }
    // As somebody types, and corrects himself; the last ones are in nearly every row.
    const QStringList typed{u"gard"_s,      u"garde"_s,      u"garden"_s,    u"garden m"_s,
                            u"garden ma"_s, u"garden map"_s, u"garden ma"_s, u"maps"_s,
                            u"exam"_s,      u"https"_s,      u"com"_s,       u"http com"_s};
    std::vector<double> further;
    std::vector<double> slowest;
    for (int i = 0; i < 20; ++i) {
        double most = 0;
        for (const QString &words : typed) {
            further.push_back(bus.ask(words));
            most = std::max(most, further.back());
        }
        slowest.push_back(most);
    }
    const uint process = bus.process();
    const double before = switches(process);
    QThread::sleep(10);
    const double idle = switches(process) - before;
    std::printf(
        "first_ms %.2f\nletter_ms %.3f\nslowest_letter_ms %.3f\npass_ms %.3f\nmemory_mb %.2f\n"
        "proportional_mb %.2f\nprivate_mb %.2f\npeak_mb %.2f\ntext_mb %.2f\nidle_switches %.0f\n",
        median(first), median(further), median(slowest), median(passes),
        kilobytes(process, "status", "VmRSS") / 1024, kilobytes(process, "smaps_rollup", "Pss") / 1024,
        kilobytes(process, "smaps_rollup", "Private_Dirty") / 1024,
        kilobytes(process, "status", "VmHWM") / 1024, static_cast<double>(textBytes) / (1024 * 1024), idle);
    bus.end();
    return 0;
}
