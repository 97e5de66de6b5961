// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/PlatformUpdateDriver.h"

#include "App/Updates/BundleInformation.h"
#include "Platform/Linux/ProgramModule.h"
#include "Platform/Linux/Updates/FeedUpdateDriver.h"
#include "Platform/Platform.h"

#include <QGuiApplication>
#include <QSysInfo>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Loads what fetches updates when somebody wants one first.
std::expected<std::unique_ptr<UpdateSession>, UpdateError>
makeSession(const UpdateSession::Setup &setup, UpdateSession::Origin origin,
            const UpdateSession::Handlers &handlers)
{
    static SessionModuleEntry *entry = nullptr;
    if (entry == nullptr) {
        // The module beside a newer program is none of ours.
        if (setup.installer.isProgramReplaced())
            return std::unexpected(UpdateError{UpdateError::Code::RestartNeeded, {}});
        const auto function = ProgramModule::function(u"roamlet-updates.so"_s, ROAMLET_SESSION_ENTRY_NAME);
        if (!function)
            return std::unexpected(UpdateError{UpdateError::Code::NotConfigured, function.error()});
        entry = reinterpret_cast<SessionModuleEntry *>(*function);
    }
    return std::unique_ptr<UpdateSession>(entry(&setup, origin, &handlers));
}

} // namespace

std::unique_ptr<UpdateDriver> platformUpdateDriver(const BundleInformation &information,
                                                   const Platform &platform,
                                                   UpdateUserInterface &userInterface)
{
    const QString userAgent = information.name % u'/' % information.version;
    return std::make_unique<FeedUpdateDriver>(
        FeedUpdateDriver::Configuration{.feed = information.feedURL,
                                        .publicKey = information.publicKey,
                                        .host = {.version = information.version,
                                                 .systemVersion = QSysInfo::kernelVersion(),
                                                 .architecture = QSysInfo::currentCpuArchitecture()},
                                        .http = {.userAgent = userAgent.toUtf8()}},
        FeedUpdateDriver::Services{
            .clock = platform.clock,
            .defaults = platform.defaults,
            .userInterface = userInterface,
            .isInFront = [] { return QGuiApplication::applicationState() == Qt::ApplicationActive; },
            .makeSession = makeSession},
        UpdateInstaller::Environment::ofThisProcess());
}

} // namespace roamlet
