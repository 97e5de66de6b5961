// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowserHomeTest.h"

#include "Support/FolderFingerprint.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace roamlet::testing
{

void BrowserHomeTest::expectNothingTouched(const TestHome &home, const QString &folder,
                                           const std::function<void()> &read)
{
    const FolderFingerprint before(folder);
    EXPECT_FALSE(before.entries().empty());
    read();
    EXPECT_EQ(before.differencesTo(FolderFingerprint(folder)), "");
    EXPECT_EQ(home.leftovers(), QStringList());
}

void BrowserHomeTest::write(const QString &path, const QByteArray &bytes)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

} // namespace roamlet::testing
