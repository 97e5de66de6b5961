// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/PlatformUpdateDriver.h"

#include "App/Updates/BundleInformation.h"
#include "Platform/Linux/Updates/FeedUpdateDriver.h"
#include "Platform/Platform.h"

#include <QGuiApplication>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

std::unique_ptr<UpdateDriver> platformUpdateDriver(const BundleInformation &information,
                                                   const Platform &platform,
                                                   UpdateUserInterface &userInterface,
                                                   std::function<void(const QString &path)> restart)
{
    UpdateInstaller::Environment installer = UpdateInstaller::Environment::ofThisProcess();
    installer.restart = std::move(restart);
    const QString userAgent = information.name % u'/' % information.version;
    return std::make_unique<FeedUpdateDriver>(
        FeedUpdateDriver::Configuration{.feed = information.feedURL,
                                        .publicKey = information.publicKey,
                                        .host = UpdateHost::ofThisProcess(information.version),
                                        .http = {.userAgent = userAgent.toUtf8()}},
        FeedUpdateDriver::Services{
            .clock = platform.clock,
            .defaults = platform.defaults,
            .userInterface = userInterface,
            .isInFront = [] { return QGuiApplication::applicationState() == Qt::ApplicationActive; }},
        std::move(installer));
}

} // namespace roamlet
