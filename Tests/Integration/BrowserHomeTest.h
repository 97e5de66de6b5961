// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Support/TestHome.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace roamlet::testing
{

/// A home folder in which a real browser keeps its files where it does by itself.
class BrowserHomeTest : public ::testing::Test
{
protected:
    /// Runs `read` and expects that neither a file of the browser, all of which are in `folder`, nor a
    /// private copy remains changed by it. The browser must stand still meanwhile.
    static void expectNothingTouched(const TestHome &home, const QString &folder,
                                     const std::function<void()> &read);
    /// Writes a file and the folders that it needs.
    static void write(const QString &path, const QByteArray &bytes);

    TestHome home;
    QTemporaryDir browserTemporary;
};

} // namespace roamlet::testing
