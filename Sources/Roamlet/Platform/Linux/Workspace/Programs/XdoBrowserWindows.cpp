// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/Programs/XdoBrowserWindows.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <utility>

// Last: it defines names such as None and Bool.
extern "C" {
#include <X11/XKBlib.h>
#include <xdo.h>
}

namespace roamlet
{

namespace
{

/// Windows come and go between two questions. X answers a question about one that is gone with an error, and
/// errors end the program unless somebody takes them.
class ErrorsIgnored final
{
public:
    explicit ErrorsIgnored(Display *display)
        : m_display(display), m_previous(XSetErrorHandler([](Display *, XErrorEvent *) { return 0; }))
    {
    }
    ErrorsIgnored(const ErrorsIgnored &) = delete;
    ErrorsIgnored &operator=(const ErrorsIgnored &) = delete;
    ~ErrorsIgnored()
    {
        // Those of requests that are still on their way, too.
        XSync(m_display, False);
        XSetErrorHandler(m_previous);
    }

private:
    Display *m_display;
    XErrorHandler m_previous;
};

/// Takes Caps Lock away for a while, so that letters are typed as they are.
class CapsLockOff final
{
public:
    explicit CapsLockOff(const xdo_t *xdo)
        : m_display(xdo->xdpy), m_wasOn((xdo_get_input_state(xdo) & LockMask) != 0)
    {
        lock(0);
    }
    CapsLockOff(const CapsLockOff &) = delete;
    CapsLockOff &operator=(const CapsLockOff &) = delete;
    ~CapsLockOff() { lock(LockMask); }

private:
    void lock(unsigned modifiers) const
    {
        if (m_wasOn)
            XkbLockModifiers(m_display, XkbUseCoreKbd, LockMask, modifiers);
    }

    Display *m_display;
    bool m_wasOn;
};

struct XDeleter {
    void operator()(unsigned char *bytes) const { XFree(bytes); }
};

/// A property's value, whose items are `itemSize` bytes long; empty when the window has no such property.
QByteArray property(const xdo_t *xdo, Window window, const char *name, qsizetype itemSize)
{
    unsigned char *value = nullptr;
    long count = 0;
    Atom type = 0;
    int bits = 0;
    xdo_get_window_property(xdo, window, name, &value, &count, &type, &bits);
    const std::unique_ptr<unsigned char, XDeleter> owner(value);
    // Items of 32 bits are handed out as longs, whatever a long's size is.
    const qsizetype size = bits == 32 ? static_cast<qsizetype>(sizeof(long)) : bits / 8;
    if (value == nullptr || size != itemSize)
        return {};
    return {reinterpret_cast<const char *>(value), count * size};
}

QList<Window> windowsOf(const xdo_t *xdo, const char *name)
{
    constexpr qsizetype size = sizeof(Window);
    const QByteArray bytes = property(xdo, DefaultRootWindow(xdo->xdpy), name, size);
    QList<Window> windows(bytes.size() / size);
    std::memcpy(windows.data(), bytes.constData(), static_cast<size_t>(windows.size() * size));
    return windows;
}

bool hasClass(const xdo_t *xdo, Window window, const QStringList &classes)
{
    // Instance and class, each ended by a NUL.
    const QList<QByteArray> names = property(xdo, window, "WM_CLASS", 1).split('\0');
    return std::ranges::any_of(names, [&classes](const QByteArray &name) {
        return classes.contains(QString::fromLatin1(name), Qt::CaseInsensitive);
    });
}

/// Whether the keyboard has keys for what addresses of pages are made of. For a letter that it lacks, a key
/// would be borrowed, and browsers take what comes from it for something else.
bool canTypeAddresses(const xdo_t *xdo)
{
    // These characters are their own symbols.
    return std::ranges::all_of(
        std::string_view("abcdefghijklmnopqrstuvwxyz0123456789:/?="),
        [xdo](char each) { return XKeysymToKeycode(xdo->xdpy, static_cast<KeySym>(each)) != 0; });
}

} // namespace

void XdoBrowserWindows::Closer::operator()(xdo *connection) const
{
    xdo_free(connection);
}

XdoBrowserWindows::XdoBrowserWindows(QByteArray display) : m_display(std::move(display)) {}

XdoBrowserWindows::~XdoBrowserWindows() = default;

bool XdoBrowserWindows::canSteer()
{
    if (m_display.isEmpty())
        return false;
    // A new connection each time: it learns the keyboard's layout only once.
    m_xdo.reset(xdo_new(m_display.constData()));
    if (!m_xdo)
        return false;
    const ErrorsIgnored ignored(m_xdo->xdpy);
    return !windowsOf(m_xdo.get(), "_NET_SUPPORTING_WM_CHECK").isEmpty() && canTypeAddresses(m_xdo.get());
}

std::optional<BrowserWindows::Window> XdoBrowserWindows::front(const QStringList &classes)
{
    if (!m_xdo)
        return {};
    const ErrorsIgnored ignored(m_xdo->xdpy);
    // The last one is on top.
    QList<::Window> windows = windowsOf(m_xdo.get(), "_NET_CLIENT_LIST_STACKING");
    const ::Window active = windowsOf(m_xdo.get(), "_NET_ACTIVE_WINDOW").value(0);
    // The active one comes first, even where another one is kept above it.
    windows.append(active);
    for (auto window = windows.crbegin(); window != windows.crend(); ++window) {
        if (*window != 0 && hasClass(m_xdo.get(), *window, classes)) {
            const QByteArray title = property(m_xdo.get(), *window, "_NET_WM_NAME", 1);
            return Window{.id = *window, .title = QString::fromUtf8(title), .isActive = *window == active};
        }
    }
    return {};
}

void XdoBrowserWindows::activate(std::uint64_t window)
{
    if (!m_xdo)
        return;
    const ErrorsIgnored ignored(m_xdo->xdpy);
    xdo_activate_window(m_xdo.get(), window);
}

bool XdoBrowserWindows::isModifierHeld()
{
    constexpr unsigned modifiers = ShiftMask | ControlMask | Mod1Mask | Mod4Mask;
    return m_xdo && (xdo_get_input_state(m_xdo.get()) & modifiers) != 0;
}

void XdoBrowserWindows::press(std::uint64_t window, const QString &keys)
{
    if (!m_xdo)
        return;
    const ErrorsIgnored ignored(m_xdo->xdpy);
    xdo_send_keysequence_window(m_xdo.get(), window, keys.toUtf8().constData(), 0);
}

void XdoBrowserWindows::type(std::uint64_t window, const QString &text)
{
    if (!m_xdo)
        return;
    const ErrorsIgnored ignored(m_xdo->xdpy);
    const CapsLockOff capsLock(m_xdo.get());
    xdo_enter_text_window(m_xdo.get(), window, text.toUtf8().constData(), 0);
}

} // namespace roamlet
