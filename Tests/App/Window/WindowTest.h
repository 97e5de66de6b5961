// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/WindowServices.h"
#include "Opening/Opener.h"
#include "Support/FakeWorkspace.h"
#include "Support/LibraryHome.h"

#include <QLocale>
#include <QWidget>

#include <memory>

namespace roamlet::testing
{

/// The parts of the main window over a home with browsers, in English and in UTC.
class WindowTest : public LibraryHome
{
protected:
    void SetUp() override { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    /// A search may still run; it is over, and its copy gone, when the library is.
    void TearDown() override
    {
        library.reset();
        LibraryHome::TearDown();
    }

    WindowServices services()
    {
        return {.library = *library,
                .defaults = home.defaults,
                .clock = home.clock,
                .folders = home.folders,
                .opener = opener,
                .workspace = workspace,
                .collation = std::make_shared<const Collation>(QStringLiteral("en_US")),
                .calendar = [] { return UserCalendar{QStringLiteral("UTC"), QStringLiteral("en_US")}; }};
    }

    /// The part of a window that has this name.
    template<typename Widget>
    static Widget *part(const QWidget &window, const QString &name)
    {
        auto *widget = window.findChild<Widget *>(name);
        EXPECT_NE(widget, nullptr) << qPrintable(name);
        return widget;
    }

    FakeWorkspace workspace;
    Opener opener{workspace};
    std::unique_ptr<Library> library = std::make_unique<Library>(home.platform());
};

} // namespace roamlet::testing
