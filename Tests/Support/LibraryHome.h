// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/Library.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/SafariFiles.h"
#include "Support/FolderFingerprint.h"
#include "Support/TestHome.h"

#include <QByteArray>
#include <QColor>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <mutex>
#include <semaphore>

namespace roamlet::testing
{

/// Holds back the first reader that comes to it until a test lets it through.
class Gate
{
public:
    /// On the reading thread.
    void pass()
    {
        m_arrived.release();
        m_opened.acquire();
    }
    /// Waits until a reader stands at the gate.
    void awaitReader() { m_arrived.acquire(); }
    /// Whether a reader has come to stand at the gate since this was asked last.
    bool readerHasCome() { return m_arrived.try_acquire(); }
    void open() { m_opened.release(); }

private:
    std::binary_semaphore m_arrived{0};
    std::binary_semaphore m_opened{0};
};

/// A Mac's home folder with browsers in it, and the Library on top. After each test no private copy is left,
/// and the home is as the test itself wrote it.
class LibraryHome : public ::testing::Test
{
protected:
    /// 2026-05-09 06:13:20 UTC, in seconds since 1970.
    static constexpr qint64 newest = 1'778'307'200;
    /// The data folders of installations of Firefox, seen from the home.
    inline static const QString nativeFirefox = QStringLiteral(".mozilla/firefox");
    inline static const QString snapFirefox = QStringLiteral("snap/firefox/common/.mozilla/firefox");
    inline static const QString flatpakFirefox =
        QStringLiteral(".var/app/org.mozilla.firefox/.mozilla/firefox");

    void TearDown() override;

    /// Writes into the home as a browser would. Everything else that happens to it is a failure.
    template<typename Write>
    void change(const Write &write)
    {
        expectUntouched();
        write();
        m_asWritten = FolderFingerprint(home.path());
    }
    void expectUntouched() const;

    /// Chrome with the profiles Default ("Personal") and Profile 1 ("Work"), Edge with Default ("Office").
    void addChromium();
    /// Chrome's beta with the profile Default ("Trial"), one page and one bookmark.
    void addChromeBeta();
    /// A Firefox in this data folder with the profile abc.default ("default"), one page and one bookmark.
    void addFirefox(const QString &folder = nativeFirefox);
    /// Safari with one page, one bookmark and one icon.
    void addSafari();
    /// The named Safari profile "Travel" with the identifier "T", one page, and no bookmarks of its own.
    void addSafariProfile();
    /// Replaces the history of a Chrome profile by pages with these titles, the first one newest.
    void setChromeHistory(const QString &profile, const QStringList &titles, qint64 newestVisit = newest);
    /// So many pages of a Chrome profile, the newest one first: `url` and a number, all titled "word".
    void setChromePages(const QString &profile, qsizetype count, const QString &url);
    /// A thousand pages of a Chrome profile, of which ten are on "site.example" and the others only name it
    /// in their addresses.
    void setChromePagesAroundASite(const QString &profile);
    void setChromeIcon(const QString &profile, const QString &pageUrl, const QByteArray &image);

    QString chromeFile(const QString &file) const
    {
        return home.path(u"Library/Application Support/Google/Chrome/" % file);
    }
    QString chromeBetaFile(const QString &file) const
    {
        return home.path(u".config/google-chrome-beta/" % file);
    }
    QString edgeFile(const QString &file) const
    {
        return home.path(u"Library/Application Support/Microsoft Edge/" % file);
    }
    QString firefoxFile(const QString &file) const { return home.path(nativeFirefox % u'/' % file); }
    QString safariFile(const QString &file) const { return home.path(u"Library/Safari/" % file); }
    QString safariContainerFile(const QString &file) const
    {
        return home.path(u"Library/Containers/com.apple.Safari/Data/Library/Safari/" % file);
    }

    /// From now on reading this file fails in this way; all others can be read.
    void fail(const QString &path, std::errc error);

    /// From now on writes down whose history is read; the first reader has to pass the gate, if there is one.
    void recordReads(Gate *gate = nullptr);
    /// The ids of the sources whose history was read since the last call, sorted.
    QStringList takeReads();

    /// Loads and waits until the loop has ended.
    void loadNow(Library &library, const std::optional<QSet<QString>> &only = {});

    TestHome home;

private:
    FolderFingerprint m_asWritten{home.path()};
    std::mutex m_readsMutex;
    QStringList m_reads;
};

/// The titles in their order.
QStringList titles(const QList<HistoryItem> &items);
/// The ids in their order.
QStringList ids(const QList<Source> &sources);
/// A small PNG of one colour.
QByteArray png(int side, const QColor &colour);

} // namespace roamlet::testing
