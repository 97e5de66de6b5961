// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/RoamletApp.h"

#include <QApplication>

namespace roamlet::RoamletApp
{

int run(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return QApplication::exec();
}

} // namespace roamlet::RoamletApp
