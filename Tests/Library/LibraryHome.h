// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/Library.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/SafariFiles.h"
#include "Support/TestHome.h"

#include <QByteArray>
#include <QColor>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace roamlet::testing
{

/// A Mac's home folder with browsers in it, and the Library on top. After each test no private copy is left.
class LibraryHome : public ::testing::Test
{
protected:
    /// 2026-05-09 06:13:20 UTC, in seconds since 1970.
    static constexpr qint64 newest = 1'778'307'200;

    void TearDown() override;

    /// Chrome with the profiles Default ("Personal") and Profile 1 ("Work"), Edge with Default ("Office").
    void addChromium();
    /// Safari with one page, one bookmark and one icon.
    void addSafari();
    /// Replaces the history of a Chrome profile by pages with these titles, the first one newest.
    void setChromeHistory(const QString &profile, const QStringList &titles, qint64 newestVisit = newest);
    void setChromeIcon(const QString &profile, const QString &pageUrl, const QByteArray &image);

    QString chromeFile(const QString &file) const
    {
        return home.path(u"Library/Application Support/Google/Chrome/" % file);
    }
    QString edgeFile(const QString &file) const
    {
        return home.path(u"Library/Application Support/Microsoft Edge/" % file);
    }
    QString safariFile(const QString &file) const { return home.path(u"Library/Safari/" % file); }

    /// Loads and waits until the loop has ended.
    void loadNow(Library &library, const std::optional<QSet<QString>> &only = {});

    TestHome home;
};

/// The titles in their order.
QStringList titles(const QList<HistoryItem> &items);
/// The ids in their order.
QStringList ids(const QList<Source> &sources);
/// A small PNG of one colour.
QByteArray png(int side, const QColor &colour);

} // namespace roamlet::testing
