// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "BrowserHomeTest.h"
#include "HeadlessBrowser.h"
#include "Model/Source.h"

#include <QString>

#include <functional>

namespace roamlet::testing
{

/// The browser that these tests drive.
inline Source::Kind chromium()
{
    return Source::kindFromRawValue(u"chromium").value();
}

/// The folders of the profiles that a real Chromium makes by itself.
inline const QString firstProfile = QStringLiteral("Default");
inline const QString secondProfile = QStringLiteral("Profile 1");

/// A home folder in which a real Chromium keeps its profiles where it does by itself.
class RealBrowserTest : public BrowserHomeTest
{
protected:
    void SetUp() override;

    QString userData() const { return home.path(QStringLiteral(".config/chromium")); }
    HeadlessBrowser::Options options(const QString &profile) const;
    /// The source of one profile, found as the program finds it.
    Source source(const QString &profile) const;
    using BrowserHomeTest::expectNothingTouched;
    void expectNothingTouched(const std::function<void()> &read) const
    {
        expectNothingTouched(home, userData(), read);
    }
    /// Writes a file below the user data folder before the browser has ever run.
    void place(const QString &relativePath, const QByteArray &bytes) const
    {
        write(userData() % u'/' % relativePath, bytes);
    }
};

} // namespace roamlet::testing
