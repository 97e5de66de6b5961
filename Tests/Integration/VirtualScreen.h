// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

namespace roamlet::testing
{

/// A screen that nobody sees, with a window manager, and gone with this object.
class VirtualScreen final
{
public:
    VirtualScreen() = default;
    VirtualScreen(const VirtualScreen &) = delete;
    VirtualScreen &operator=(const VirtualScreen &) = delete;
    ~VirtualScreen();

    /// What is missing on this machine to have one, or an empty text.
    static QString missing();
    /// Whether it stands and its window manager manages. `home` stands in for the user's home folder.
    bool start(const QString &home);
    /// The display's name, such as ":7".
    QByteArray display() const { return m_display; }

private:
    QProcess m_server;
    QProcess m_windowManager;
    QByteArray m_display;
};

} // namespace roamlet::testing
