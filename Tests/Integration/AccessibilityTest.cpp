// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Integration/AccessibleTree.h"
#include "Integration/VirtualScreen.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleHome.h"
#include "Support/SessionBus.h"
#include "Support/TestHome.h"
#include "Support/Waiting.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// The program on a screen, over a small home, as a screen reader perceives it.
class AccessibilityTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString missing = VirtualScreen::missing(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString() << " is not installed, so there is no screen.";
        if (!SessionBus::isAvailable())
            GTEST_SKIP() << "dbus-daemon is not installed.";
        sample::build(home.path(), {.layout = sample::Layout::Linux,
                                    .chromeProfiles = 1,
                                    .edgeProfiles = 1,
                                    .rowsPerProfile = 6,
                                    .bookmarksPerProfile = 6,
                                    .iconsPerProfile = 2});
        // A menu is only there for a reader while it is open; that of a menu bar always is.
        sample::writeFile(home.path(u".config/Roamlet/Roamlet.conf"_s),
                          "[General]\nwindow.main.menuBar=true\n");
        ASSERT_TRUE(screen.start(home.path()));
        ASSERT_FALSE(home.files.makePrivateFolder(home.path(u"runtime"_s)));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"XDG_CONFIG_HOME"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"TMPDIR"_s, home.temporary());
        environment.insert(u"XDG_RUNTIME_DIR"_s, home.path(u"runtime"_s));
        environment.insert(u"DISPLAY"_s, QString::fromLatin1(screen.display()));
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
        ASSERT_TRUE(bus.start(environment));
        reader = std::make_unique<AccessibleTree>(bus.address());
        if (!reader->isConnected())
            GTEST_SKIP() << "at-spi2-core is not installed.";
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QStringLiteral(ROAMLET_PROGRAM), QStringList());
    }

    void TearDown() override
    {
        reader.reset();
        if (program.state() == QProcess::NotRunning)
            return;
        program.terminate();
        EXPECT_TRUE(program.waitForFinished());
        EXPECT_EQ(home.leftovers(), QStringList());
    }

    /// Reads the program anew, until `condition` holds for what is read.
    ::testing::AssertionResult eventually(const std::function<bool(const QList<AccessibleNode> &)> &condition)
    {
        const bool held = waitUntil([&] {
            const auto application = reader->application(u"roamlet"_s);
            nodes = application ? reader->below(*application) : QList<AccessibleNode>();
            return condition(nodes);
        });
        return held ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << described();
    }
    const AccessibleNode *find(const QString &role, const QString &name) const
    {
        const auto found = std::ranges::find_if(
            nodes, [&](const AccessibleNode &node) { return node.role == role && node.name == name; });
        return found == nodes.cend() ? nullptr : &*found;
    }
    bool has(const QString &role, const QString &name) const { return find(role, name) != nullptr; }
    /// Everything that takes the keyboard or is a control by its role, and says nothing.
    QStringList unnamed() const
    {
        static const QStringList controls{u"push button"_s,     u"toggle button"_s, u"check box"_s,
                                          u"menu item"_s,       u"radio button"_s,  u"combo box"_s,
                                          u"page tab"_s,        u"button"_s,        u"check menu item"_s,
                                          u"radio menu item"_s, u"text"_s,          u"menu"_s,
                                          u"tree table"_s,      u"tree"_s,          u"list"_s,
                                          u"table"_s,           u"frame"_s,         u"dialog"_s,
                                          u"button menu"_s};
        QStringList result;
        for (const AccessibleNode &node : nodes) {
            if (node.name.isEmpty() && node.isShowing && (node.isFocusable || controls.contains(node.role)))
                result.append(node.role % u' ' % node.path);
        }
        return result;
    }
    std::string described() const
    {
        QString text;
        for (const AccessibleNode &node : nodes)
            text += u"%1 \"%2\"%3%4\n"_s.arg(node.role, node.name, node.isShowing ? u" showing"_s : QString(),
                                             node.isFocusable ? u" focusable"_s : QString());
        return text.toStdString();
    }

    TestHome home;
    VirtualScreen screen;
    SessionBus bus;
    QProcess program;
    std::unique_ptr<AccessibleTree> reader;
    QList<AccessibleNode> nodes;
};

TEST_F(AccessibilityTest, aScreenReaderFindsNamesRowsAndCommands)
{
    ASSERT_TRUE(eventually([this](const QList<AccessibleNode> &) {
        return has(u"column header"_s, u"Last Visited"_s) && has(u"tree item"_s, u"Edge - Personal"_s);
    }));
    EXPECT_TRUE(has(u"tree"_s, u"History"_s)) << described();
    EXPECT_TRUE(has(u"text"_s, u"Search"_s)) << described();
    EXPECT_TRUE(has(u"tree item"_s, u"Library: Most Visited"_s)) << described();
    EXPECT_TRUE(has(u"push button"_s, u"Reload"_s)) << described();
    EXPECT_TRUE(has(u"push button"_s, u"Menu"_s) || has(u"button menu"_s, u"Menu"_s)) << described();
    EXPECT_EQ(unnamed().join(u'\n').toStdString(), "");

    ASSERT_TRUE(reader->press(*find(u"menu item"_s, u"Settings…"_s)));
    ASSERT_TRUE(eventually([this](const QList<AccessibleNode> &) {
        const AccessibleNode *atLogin = find(u"check box"_s, u"Open at login"_s);
        return atLogin != nullptr && atLogin->isShowing;
    }));
    EXPECT_TRUE(has(u"check box"_s, u"Show Dock icon"_s)) << described();
    EXPECT_TRUE(has(u"page tab"_s, u"Browser Profiles"_s)) << described();
    EXPECT_EQ(unnamed().join(u'\n').toStdString(), "");

    ASSERT_TRUE(reader->press(*find(u"menu item"_s, u"Export Bookmarks…"_s)));
    ASSERT_TRUE(eventually([this](const QList<AccessibleNode> &) {
        return has(u"radio button"_s, u"HTML"_s) || has(u"push button"_s, u"Export…"_s);
    }));
    EXPECT_TRUE(has(u"push button"_s, u"Cancel"_s)) << described();
    EXPECT_EQ(unnamed().join(u'\n').toStdString(), "");
}

} // namespace
} // namespace roamlet::testing
