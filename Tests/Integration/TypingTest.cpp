// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/Programs/XdoBrowserWindows.h"
#include "Support/TestHome.h"
#include "Support/Waiting.h"
#include "VirtualScreen.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <utility>

// Last: they define names such as None and Bool.
#include <X11/XKBlib.h>
#include <X11/Xutil.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A window that writes down what is typed into it.
class TypedInto final
{
public:
    explicit TypedInto(const QByteArray &display)
        : m_display(XOpenDisplay(display.constData())),
          m_window(XCreateSimpleWindow(m_display.get(), DefaultRootWindow(m_display.get()), 0, 0, 200, 100, 0,
                                       0, 0))
    {
        // No window manager has a say in who gets the keyboard.
        XSetWindowAttributes attributes{};
        attributes.override_redirect = True;
        XChangeWindowAttributes(m_display.get(), m_window, CWOverrideRedirect, &attributes);
        XSelectInput(m_display.get(), m_window, KeyPressMask | FocusChangeMask);
        XMapWindow(m_display.get(), m_window);
        XSetInputFocus(m_display.get(), m_window, RevertToParent, CurrentTime);
        XFlush(m_display.get());
    }

    std::uint64_t id() const { return m_window; }

    void setCapsLock(bool isOn) const
    {
        XkbLockModifiers(m_display.get(), XkbUseCoreKbd, LockMask, isOn ? LockMask : 0);
        XSync(m_display.get(), False);
    }
    bool hasCapsLock() const
    {
        XkbStateRec state{};
        XkbGetState(m_display.get(), XkbUseCoreKbd, &state);
        return (state.locked_mods & LockMask) != 0;
    }

    bool waitForKeyboard()
    {
        return waitUntil([this] {
            readEvents();
            return m_hasKeyboard;
        });
    }
    /// What was typed, once it is so long.
    QByteArray text(qsizetype size)
    {
        waitUntil([this, size] {
            readEvents();
            return m_text.size() >= size;
        });
        return std::exchange(m_text, {});
    }

private:
    struct Closer {
        void operator()(Display *display) const { XCloseDisplay(display); }
    };

    void readEvents()
    {
        while (XPending(m_display.get()) > 0) {
            XEvent event;
            XNextEvent(m_display.get(), &event);
            if (event.type == FocusIn) {
                m_hasKeyboard = true;
            } else if (event.type == KeyPress) {
                std::array<char, 16> bytes{};
                const int size = XLookupString(&event.xkey, bytes.data(), static_cast<int>(bytes.size()),
                                               nullptr, nullptr);
                m_text.append(bytes.data(), size);
            }
        }
    }

    std::unique_ptr<Display, Closer> m_display;
    Window m_window;
    bool m_hasKeyboard = false;
    QByteArray m_text;
};

/// A screen with a keyboard.
class TypingTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString missing = VirtualScreen::missing(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString() << " is not installed, so there is no screen.";
        ASSERT_TRUE(screen.start(home.path()));
        windows = std::make_unique<XdoBrowserWindows>(screen.display());
    }

    bool canSteerWith(const QString &layout)
    {
        EXPECT_EQ(
            QProcess::execute(u"setxkbmap"_s, {u"-display"_s, QString::fromLatin1(screen.display()), layout}),
            0);
        return windows->canSteer();
    }

    TestHome home;
    VirtualScreen screen;
    std::unique_ptr<XdoBrowserWindows> windows;
};

TEST_F(TypingTest, nothingIsTypedOnAKeyboardWithoutLatinLetters)
{
    for (const QString &layout : {u"ru"_s, u"gr"_s, u"il"_s, u"ara"_s})
        EXPECT_FALSE(canSteerWith(layout)) << layout.toStdString();
    for (const QString &layout : {u"us"_s, u"fr"_s, u"de"_s, u"tr"_s, u"dvorak"_s, u"ru,us"_s})
        EXPECT_TRUE(canSteerWith(layout)) << layout.toStdString();
}

TEST_F(TypingTest, capsLockStaysOnAndChangesNoText)
{
    ASSERT_TRUE(canSteerWith(u"us"_s));
    TypedInto window(screen.display());
    ASSERT_TRUE(window.waitForKeyboard());
    const QString page = u"chrome://bookmarks/?id=5"_s;
    for (const bool isOn : {true, false}) {
        window.setCapsLock(isOn);
        windows->type(window.id(), page);
        EXPECT_EQ(window.text(page.size()), page.toLatin1());
        EXPECT_EQ(window.hasCapsLock(), isOn);
    }
}

} // namespace

} // namespace roamlet::testing
