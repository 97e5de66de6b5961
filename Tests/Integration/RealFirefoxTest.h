// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "BrowserHomeTest.h"
#include "HeadlessFirefox.h"
#include "Model/Source.h"

#include <QString>

#include <functional>

namespace roamlet::testing
{

/// A home folder in which a real Firefox keeps its profiles where it does by itself.
class RealFirefoxTest : public BrowserHomeTest
{
protected:
    void SetUp() override;

    static Source::Kind kind();
    QString dataFolder() const { return home.path(QStringLiteral(".config/mozilla/firefox")); }
    QString folder(const QString &profile) const { return dataFolder() % u'/' % profile; }
    /// Lets the browser make a profile of this name and returns the name of its folder; empty when it made
    /// none.
    QString createProfile(const QString &name) const;
    HeadlessFirefox::Options options(const QString &profile) const;
    /// The source of the profile in the folder of this name, found as the program finds it.
    Source source(const QString &profile) const;
    using BrowserHomeTest::expectNothingTouched;
    void expectNothingTouched(const std::function<void()> &read) const
    {
        expectNothingTouched(home, dataFolder(), read);
    }
};

} // namespace roamlet::testing
