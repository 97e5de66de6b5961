// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/HistoryQuery.h"
#include "Model/ReadError.h"
#include "Support/FolderFingerprint.h"
#include "Support/TestHome.h"

#include <gtest/gtest.h>
#include <system_error>

#include <functional>
#include <optional>

/// Lets failed expectations show texts as texts.
void PrintTo(const QString &text, std::ostream *stream);

namespace roamlet::testing
{

/// A home that nobody but the test writes to: when the test is over, its files are what the test made them,
/// and no private copy is left.
class ReaderTest : public ::testing::Test
{
protected:
    /// What the readers are given. From the first call on, the home must stay as it is.
    ReadContext context();
    /// Changes the home on purpose, also from a hook of the file system.
    void change(const std::function<void()> &write);
    /// Fails the test when something was touched or left behind.
    void expectNothingTouched();
    void TearDown() override;

    /// Answers every attempt to read or copy this file with an error.
    void refuse(const QString &path, std::errc error);

    static Source chrome(const QString &profile = QStringLiteral("Default"));
    static Source edge(const QString &profile = QStringLiteral("Default"));
    static Source firefox(const QString &profile = QStringLiteral("abcd.default"));
    /// A named Safari profile.
    static Source namedSafari(const QString &profile, const Source::SafariBookmarks &bookmarks);
    /// A file in a profile's folder, or with an empty profile in the browser's.
    QString chromeFile(const QString &name, const QString &profile = QStringLiteral("Default")) const;
    QString edgeFile(const QString &name, const QString &profile = QStringLiteral("Default")) const;
    QString firefoxFile(const QString &name, const QString &profile = QStringLiteral("abcd.default")) const;
    QString safariFile(const QString &name) const;
    QString safariContainerFile(const QString &name) const;

    TestHome home;

private:
    std::optional<FolderFingerprint> m_before;
};

/// The titles in their order.
QStringList titlesOf(const QList<HistoryItem> &items);
QStringList titlesOf(const QList<BookmarkNode> &nodes);

/// The plain listing in this order and of this length.
HistoryQuery listing(HistoryQuery::Order order, qint64 limit = HistoryQuery::defaultLimit);

/// One line for each node, indented by its depth: id, title, URL and date in seconds since 1970, as far as it
/// has them; folders end in "/", the bar has a "*".
QStringList outlineOf(const QList<BookmarkNode> &nodes);

/// Runs this on a thread of its own, as the readers do; a stack that overflows there ends the tests.
void onAnotherThread(const std::function<void()> &work);

/// Runs this in another process and returns its exit status, or -1 when it died.
int inAnotherProcess(const std::function<int()> &work);
/// The same as a user who owns nothing; as oneself when one may not become another.
int asAnotherUser(const std::function<int()> &work);

} // namespace roamlet::testing

namespace roamlet
{

/// Lets a failed expectation say what the error was.
std::ostream &operator<<(std::ostream &stream, const ReadError &error);

} // namespace roamlet
