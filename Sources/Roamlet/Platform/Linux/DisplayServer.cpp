// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/DisplayServer.h"

#include <QByteArray>

#include <xcb/xcb.h>

namespace roamlet
{

bool displayServerAnswers(const QByteArray &display)
{
    if (display.isEmpty())
        return false;
    xcb_connection_t *connection = xcb_connect(display.constData(), nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace roamlet
