// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "RealBrowserTest.h"

#include "Readers/Chromium/ChromiumReader.h"
#include "Support/FolderFingerprint.h"

#include <QFileInfo>

#include <algorithm>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

void RealBrowserTest::SetUp()
{
    if (HeadlessBrowser::program().isEmpty())
        GTEST_SKIP() << "Chromium is not installed, so no real browser was read.";
}

HeadlessBrowser::Options RealBrowserTest::options(const QString &profile) const
{
    return {.home = home.path(),
            .temporary = browserTemporary.path(),
            .userData = userData(),
            .profile = profile,
            .bookmarksToImport = {}};
}

Source RealBrowserTest::source(const QString &profile) const
{
    const QList<Source> sources = ChromiumReader::profiles(chromium(), home.context());
    const auto found = std::ranges::find(sources, std::optional(profile), &Source::profile);
    EXPECT_NE(found, sources.end()) << "no profile " << profile.toStdString();
    return found == sources.end() ? Source() : *found;
}

void RealBrowserTest::expectNothingTouched(const TestHome &home, const QString &userData,
                                           const std::function<void()> &read)
{
    const FolderFingerprint before(userData);
    EXPECT_FALSE(before.entries().empty());
    read();
    EXPECT_EQ(before.differencesTo(FolderFingerprint(userData)), "");
    EXPECT_EQ(home.leftovers(), QStringList());
}

void RealBrowserTest::place(const QString &relativePath, const QByteArray &bytes) const
{
    const QString path = userData() % u'/' % relativePath;
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

} // namespace roamlet::testing
