// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/RoamletApp.h"

int main(int argc, char **argv)
{
    return roamlet::RoamletApp::run(argc, argv);
}
