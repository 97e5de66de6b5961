// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "RealBrowserTest.h"

#include "Readers/BrowserReader.h"

#include <algorithm>

namespace roamlet::testing
{

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
    const QList<Source> sources = BrowserReader::profiles(chromium(), home.context());
    const auto found = std::ranges::find(sources, std::optional(profile), &Source::profile);
    EXPECT_NE(found, sources.end()) << "no profile " << profile.toStdString();
    return found == sources.end() ? Source() : *found;
}

} // namespace roamlet::testing
