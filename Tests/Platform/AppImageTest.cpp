// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/AppImage.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class AppImageTest : public ::testing::Test
{
protected:
    void SetUp() override { qputenv("APPIMAGE", "/home/anna/Some.AppImage"); }
    void TearDown() override
    {
        qunsetenv("APPIMAGE");
        qunsetenv("APPDIR");
    }
};

TEST_F(AppImageTest, theProgramInsideIsTheAppImage)
{
    qputenv("APPDIR", QCoreApplication::applicationDirPath().toUtf8());
    EXPECT_EQ(ownAppImage(), u"/home/anna/Some.AppImage"_s);
}

TEST_F(AppImageTest, aProgramThatAnotherAppImageStartedIsNone)
{
    const QTemporaryDir other;
    for (const QByteArray &content : {QByteArray(), QByteArray("/missing"), other.path().toUtf8(),
                                      QCoreApplication::applicationFilePath().chopped(1).toUtf8()}) {
        qputenv("APPDIR", content);
        EXPECT_EQ(ownAppImage(), QString()) << content.constData();
    }
}

TEST_F(AppImageTest, withoutTheVariableItIsNone)
{
    qputenv("APPDIR", QCoreApplication::applicationDirPath().toUtf8());
    qunsetenv("APPIMAGE");
    EXPECT_EQ(ownAppImage(), QString());
}

} // namespace
} // namespace roamlet::testing
