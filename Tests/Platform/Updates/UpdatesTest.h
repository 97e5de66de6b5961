// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "PackageSigner.h"
#include "Platform/Linux/Updates/Session/HttpTransfer.h"
#include "Support/FakeClock.h"
#include "Support/HttpServer.h"
#include "Support/Waiting.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QNetworkAccessManager>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace roamlet::testing
{

/// A server, a folder and a clock that stands still.
class UpdatesTest : public ::testing::Test
{
protected:
    void TearDown() override
    {
        // Nobody runs an event loop at the end of a test, and what is left over would count as a leak.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Runs everything that is due until `condition` holds.
    bool settle(const std::function<bool()> &condition)
    {
        return waitUntil(
            [&] {
                clock.advance(FakeClock::Duration::zero());
                return condition();
            },
            patience, std::chrono::milliseconds(1));
    }

    /// The names of everything in the folder.
    QStringList names() const
    {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir folder;
    FakeClock clock;
    HttpServer server;
    QNetworkAccessManager network;
    HttpOptions options{.loopback = HttpOptions::Loopback::Allowed, .userAgent = "Roamlet/1.0"};
};

} // namespace roamlet::testing
