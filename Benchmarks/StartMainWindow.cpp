// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// How long does it take from the start until the main window shows history, and what does the program keep in
// memory when it then waits in the tray?

#include "App/RoamletApp.h"
#include "WindowMeasure.h"

namespace
{

roamlet::WindowMeasure::Mode mode = roamlet::WindowMeasure::Mode::Start;

/// The program makes its own application object; this is called as soon as it exists.
void watchForFirstRows()
{
    new roamlet::WindowMeasure(mode, [](const QTreeView &view) {
        return view.isVisible() && view.model() != nullptr && view.model()->rowCount() > 0;
    });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchForFirstRows)

int main(int argc, char **argv)
{
    mode = roamlet::WindowMeasure::askedFor(argc, argv);
    return roamlet::RoamletApp::run(1, argv);
}
