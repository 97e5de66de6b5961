// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "RealFirefoxTest.h"

#include "Readers/BrowserReader.h"

#include <QDir>

#include <algorithm>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

void RealFirefoxTest::SetUp()
{
    if (HeadlessFirefox::program().isEmpty())
        GTEST_SKIP() << "Firefox ESR is not installed, so no real browser was read.";
}

Source::Kind RealFirefoxTest::kind()
{
    return Source::kindFromRawValue(u"firefox").value_or(Source::Kind::Safari);
}

QString RealFirefoxTest::createProfile(const QString &name) const
{
    EXPECT_EQ(HeadlessFirefox::createProfile(name, home.path(), browserTemporary.path()), QString());
    // Firefox puts something random before it.
    return QDir(dataFolder()).entryList({u"*." % name}, QDir::Dirs).value(0);
}

HeadlessFirefox::Options RealFirefoxTest::options(const QString &profile) const
{
    return {.home = home.path(), .temporary = browserTemporary.path(), .profile = folder(profile)};
}

Source RealFirefoxTest::source(const QString &profile) const
{
    const QList<Source> sources = BrowserReader::profiles(kind(), home.context());
    const auto found = std::ranges::find(sources, std::optional(profile), &Source::profile);
    EXPECT_NE(found, sources.end()) << "no profile " << profile.toStdString();
    return found == sources.end() ? Source() : *found;
}

} // namespace roamlet::testing
