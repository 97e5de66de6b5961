// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/FakeAlert.h"
#include "App/Export/FakeSavePanel.h"
#include "App/RoamletApp.h"
#include "App/Updates/BundleInformation.h"
#include "App/Updates/Updater.h"
#include "Library/Library.h"
#include "Support/FakeActivationPolicy.h"
#include "Support/FakeLoginService.h"
#include "Support/FakeUpdateDriver.h"
#include "Support/FakeWorkspace.h"

#include <memory>

namespace roamlet::testing
{

/// Everything of the desktop's that the whole program works with, replaced.
struct DesktopFakes {
    /// The program's services over this platform. They refer to this object.
    RoamletApp::Services services(const Platform &platform)
    {
        started = std::make_unique<Library>(platform);
        started->start();
        return {.platform = platform,
                .library = *started,
                .activation = activation,
                .loginService = loginService,
                .workspace = workspace,
                .savePanel = savePanel,
                .alert = alert,
                .updater = updater,
                .desktopSettings = desktopSettings,
                .followDesktopSettings =
                    [this](const std::function<void()> &changed) {
                        desktopChanges = std::make_shared<std::function<void()>>(changed);
                        return std::shared_ptr<void>(desktopChanges);
                    },
                .hasTray = [this] { return hasTray; }};
    }

    std::unique_ptr<Library> started;
    FakeActivationPolicy activation;
    FakeLoginService loginService;
    FakeWorkspace workspace;
    FakeSavePanel savePanel;
    FakeAlert alert;
    FakeUpdateDriver *driver = new FakeUpdateDriver;
    Updater updater{BundleInformation(), std::unique_ptr<UpdateDriver>(driver)};
    std::function<DesktopSettings()> desktopSettings = [] { return DesktopSettings(); };
    /// Tells the program of a change. It has one owner here and, as long as it follows the desktop, another.
    std::shared_ptr<std::function<void()>> desktopChanges;
    bool hasTray = true;
};

} // namespace roamlet::testing
