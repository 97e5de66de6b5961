// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/SessionModule.h"

#include "Platform/Linux/Updates/Session/FeedUpdateSession.h"

#include <QtCore/qglobal.h>

extern "C" Q_DECL_EXPORT roamlet::UpdateSession *
ROAMLET_SESSION_ENTRY(const roamlet::UpdateSession::Setup *setup, roamlet::UpdateSession::Origin origin,
                      const roamlet::UpdateSession::Handlers *handlers)
{
    return new roamlet::FeedUpdateSession(*setup, origin, *handlers);
}
