// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Workspace/BrowserWindows.h"

#include <QByteArray>

#include <memory>

struct xdo;

namespace roamlet
{

/// The windows of an X11 display whose window manager keeps the usual rules.
class XdoBrowserWindows final : public BrowserWindows
{
public:
    /// An empty name stands for no display.
    explicit XdoBrowserWindows(QByteArray display);
    ~XdoBrowserWindows() override;

    bool canSteer() override;
    std::optional<Window> front(const QStringList &classes) override;
    void activate(std::uint64_t window) override;
    bool isModifierHeld() override;
    void press(std::uint64_t window, const QString &keys) override;
    void type(std::uint64_t window, const QString &text) override;

private:
    struct Closer {
        void operator()(xdo *connection) const;
    };

    QByteArray m_display;
    std::unique_ptr<xdo, Closer> m_xdo;
};

} // namespace roamlet
