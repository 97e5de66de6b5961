// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/FeedUpdateSession.h"

#include <QNetworkProxyFactory>

/// The module's SessionModuleEntry.
extern "C" Q_DECL_EXPORT roamlet::UpdateSession *
ROAMLET_SESSION_ENTRY(const roamlet::UpdateSession::Setup *setup, roamlet::UpdateSession::Origin origin,
                      const roamlet::UpdateSession::Handlers *handlers)
{
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    return new roamlet::FeedUpdateSession(*setup, origin, *handlers);
}
