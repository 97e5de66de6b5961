// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/WindowModule.h"

#include "App/RoamletApp.h"

#include <QtCore/qglobal.h>

extern "C" Q_DECL_EXPORT int roamletRunWindows(int argc, char **argv)
{
    return roamlet::RoamletApp::run(argc, argv);
}
