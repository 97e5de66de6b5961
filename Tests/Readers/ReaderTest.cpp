// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/ReaderTest.h"

#include <QDir>

#include <sys/wait.h>
#include <unistd.h>

#include <ostream>
#include <thread>

void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}

namespace roamlet
{

std::ostream &operator<<(std::ostream &stream, const ReadError &error)
{
    return stream << error.errorDescription().toStdString();
}

} // namespace roamlet

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

ReadContext ReaderTest::context()
{
    if (!m_before)
        m_before = FolderFingerprint(home.path());
    return home.context();
}

void ReaderTest::change(const std::function<void()> &write)
{
    if (m_before) {
        EXPECT_EQ(m_before->differencesTo(FolderFingerprint(home.path())), "");
    }
    write();
    m_before = FolderFingerprint(home.path());
}

void ReaderTest::expectNothingTouched()
{
    EXPECT_EQ(home.leftovers(), QStringList());
    if (m_before) {
        EXPECT_EQ(m_before->differencesTo(FolderFingerprint(home.path())), "");
    }
}

void ReaderTest::TearDown()
{
    expectNothingTouched();
}

void ReaderTest::refuse(const QString &path, std::errc error)
{
    home.files.failure = [path, error](const QString &asked) {
        return asked == path ? std::make_error_code(error) : std::error_code();
    };
}

Source ReaderTest::chrome(const QString &profile)
{
    return {.kind = Source::Kind::Chrome,
            .profile = profile,
            .name = u"Chrome"_s,
            .safariBookmarks = Source::AllExcept{}};
}

Source ReaderTest::edge(const QString &profile)
{
    return {.kind = Source::Kind::Edge,
            .profile = profile,
            .name = u"Edge"_s,
            .safariBookmarks = Source::AllExcept{}};
}

Source ReaderTest::firefox(const QString &profile)
{
    return {.kind = *Source::kindFromRawValue(u"firefox"),
            .profile = profile,
            .name = u"Firefox"_s,
            .safariBookmarks = Source::AllExcept{}};
}

Source ReaderTest::namedSafari(const QString &profile, const Source::SafariBookmarks &bookmarks)
{
    return {
        .kind = Source::Kind::Safari, .profile = profile, .name = u"Work"_s, .safariBookmarks = bookmarks};
}

QString ReaderTest::chromeFile(const QString &name, const QString &profile) const
{
    return QDir::cleanPath(home.path(u"Library/Application Support/Google/Chrome/"_s) % profile % u'/' %
                           name);
}

QString ReaderTest::edgeFile(const QString &name, const QString &profile) const
{
    return QDir::cleanPath(home.path(u"Library/Application Support/Microsoft Edge/"_s) % profile % u'/' %
                           name);
}

QString ReaderTest::firefoxFile(const QString &name, const QString &profile) const
{
    return QDir::cleanPath(home.path(u"Library/Application Support/Firefox/"_s) % profile % u'/' % name);
}

QString ReaderTest::safariFile(const QString &name) const
{
    return home.path(u"Library/Safari/"_s) + name;
}

QString ReaderTest::safariContainerFile(const QString &name) const
{
    return home.path(u"Library/Containers/com.apple.Safari/Data/Library/Safari/"_s) + name;
}

QStringList titlesOf(const QList<HistoryItem> &items)
{
    QStringList titles;
    for (const HistoryItem &item : items)
        titles.append(item.title);
    return titles;
}

QStringList titlesOf(const QList<BookmarkNode> &nodes)
{
    QStringList titles;
    for (const BookmarkNode &node : nodes)
        titles.append(node.title);
    return titles;
}

HistoryQuery listing(HistoryQuery::Order order, qint64 limit)
{
    return {.words = {}, .site = {}, .order = order, .limit = limit};
}

QStringList outlineOf(const QList<BookmarkNode> &nodes)
{
    QStringList lines;
    for (const BookmarkNode &node : nodes) {
        QStringList parts{node.id, node.title};
        if (node.url)
            parts.append(*node.url);
        if (node.dateAdded)
            parts.append(QString::number(secondsSince1970(*node.dateAdded), 'f', 3));
        lines.append(parts.join(u" | "_s) + (node.isFolder() ? u" /"_s : QString()) +
                     (node.isBar ? u" *"_s : QString()));
        for (const QString &line : outlineOf(node.children.value_or(QList<BookmarkNode>())))
            lines.append(u"  "_s + line);
    }
    return lines;
}

void onAnotherThread(const std::function<void()> &work)
{
    std::thread(work).join();
}

int inAnotherProcess(const std::function<int()> &work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}

int asAnotherUser(const std::function<int()> &work)
{
    return inAnotherProcess([&work] {
        constexpr unsigned int nobody = 65534;
        constexpr int failed = 99;
        if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0))
            return failed;
        return work();
    });
}

} // namespace roamlet::testing
