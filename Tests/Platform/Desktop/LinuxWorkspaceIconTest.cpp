// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxWorkspace.h"
#include "Support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// An icon theme and one browser of the test's own.
class LinuxWorkspaceIconTest : public ::testing::Test
{
protected:
    LinuxWorkspaceIconTest()
        : workspace({.dataFolders = {folder.path()}, .display = {}}, home.folders, home.files, home.clock,
                    {QDBusConnection(u"nobody"_s), [](const QString &) {},
                     [](const QString &) { return PasteNotice::Words(); }})
    {
        write(u"icons/hicolor/index.theme"_s, "[Icon Theme]\nName=Test\nComment=Test\n"
                                              "Directories=16x16/apps,48x48/apps\n"
                                              "[16x16/apps]\nSize=16\nType=Fixed\n"
                                              "[48x48/apps]\nSize=48\nType=Fixed\n");
        QIcon::setThemeSearchPaths({folder.filePath(u"icons"_s)});
        QIcon::setThemeName(u"hicolor"_s);
    }

    void write(const QString &name, const QByteArray &bytes) const
    {
        const QString path = folder.filePath(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QString addImage(const QString &name, QSize size, const QColor &colour) const
    {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QImage image(size, QImage::Format_ARGB32);
        image.fill(colour);
        EXPECT_TRUE(image.save(path));
        return path;
    }

    void addBrowser(const QString &icon) const
    {
        write(u"applications/google-chrome.desktop"_s,
              QString(u"[Desktop Entry]\nType=Application\nName=Test\nExec=/bin/true %U\n" % icon).toUtf8());
    }

    QTemporaryDir folder;
    TestHome home;
    LinuxWorkspace workspace;
};

TEST_F(LinuxWorkspaceIconTest, anIconOfTheThemeHasThePointsAskedForInTheDevicesPixels)
{
    addImage(u"icons/hicolor/16x16/apps/theme-browser.png"_s, {16, 16}, Qt::red);
    addImage(u"icons/hicolor/48x48/apps/theme-browser.png"_s, {48, 48}, Qt::blue);
    addBrowser(u"Icon=theme-browser\n"_s);

    const QImage plain = workspace.icon(Source::Kind::Chrome, 16, 1).value_or(QImage());
    EXPECT_EQ(plain.size(), QSize(16, 16));
    EXPECT_EQ(plain.pixelColor(8, 8), QColor(Qt::red));

    const QImage sharp = workspace.icon(Source::Kind::Chrome, 16, 2).value_or(QImage());
    EXPECT_EQ(sharp.size(), QSize(32, 32));
    EXPECT_EQ(sharp.devicePixelRatio(), 2);
    EXPECT_EQ(sharp.deviceIndependentSize(), QSizeF(16, 16));
    EXPECT_EQ(sharp.pixelColor(16, 16), QColor(Qt::blue)) << "the larger picture has the pixels for it";

    EXPECT_EQ(workspace.icon(Source::Kind::Chrome, 16, 1.5).value_or(QImage()).size(), QSize(24, 24));
}

TEST_F(LinuxWorkspaceIconTest, anIconMayBeAFile)
{
    const QString path = addImage(u"logo.png"_s, {128, 128}, Qt::green);
    addBrowser(u"Icon=" % path % u'\n');
    const QImage icon = workspace.icon(Source::Kind::Chrome, 16, 1).value_or(QImage());
    EXPECT_EQ(icon.size(), QSize(16, 16));
    EXPECT_EQ(icon.pixelColor(0, 0), QColor(Qt::green));
}

TEST_F(LinuxWorkspaceIconTest, anIconThatIsNoSquareKeepsItsShape)
{
    const QString path = addImage(u"wide.png"_s, {64, 32}, Qt::green);
    addBrowser(u"Icon=" % path % u'\n');
    const QImage icon = workspace.icon(Source::Kind::Chrome, 16, 1).value_or(QImage());
    EXPECT_EQ(icon.size(), QSize(16, 16));
    EXPECT_EQ(icon.pixelColor(8, 1).alpha(), 0);
    EXPECT_EQ(icon.pixelColor(8, 8), QColor(Qt::green));
    EXPECT_EQ(icon.pixelColor(8, 14).alpha(), 0);
}

TEST_F(LinuxWorkspaceIconTest, aSmallIconIsEnlarged)
{
    const QString path = addImage(u"tiny.png"_s, {8, 8}, Qt::green);
    addBrowser(u"Icon=" % path % u'\n');
    const QImage icon = workspace.icon(Source::Kind::Chrome, 16, 2).value_or(QImage());
    EXPECT_EQ(icon.size(), QSize(32, 32));
    EXPECT_EQ(icon.pixelColor(31, 31), QColor(Qt::green));
}

TEST_F(LinuxWorkspaceIconTest, whatHasNoPictureHasNoIcon)
{
    EXPECT_EQ(workspace.icon(Source::Kind::Chrome, 16, 1), std::nullopt) << "not installed";
    addBrowser(QString());
    EXPECT_EQ(workspace.icon(Source::Kind::Chrome, 16, 1), std::nullopt) << "names no icon";
    addBrowser(u"Icon=no-such-icon-anywhere\n"_s);
    EXPECT_EQ(workspace.icon(Source::Kind::Chrome, 16, 1), std::nullopt) << "names an icon that is not there";
    write(u"broken.png"_s, "\x89PNG broken");
    addBrowser(u"Icon=" % folder.filePath(u"broken.png"_s) % u'\n');
    EXPECT_EQ(workspace.icon(Source::Kind::Chrome, 16, 1), std::nullopt) << "names a broken picture";
    EXPECT_EQ(workspace.icon(Source::Kind::Safari, 16, 1), std::nullopt);
}

} // namespace
} // namespace roamlet::testing
