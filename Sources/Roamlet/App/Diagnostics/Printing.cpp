// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/Printing.h"

#include "App/Diagnostics/TextLayout.h"
#include "Platform/Console.h"

namespace roamlet
{

Printed print(Console &console, const QString &text)
{
    const std::error_code error = console.writeOutput(text.toUtf8());
    if (!error)
        return Printed::Written;
    if (error == std::errc::broken_pipe || error == std::errc::operation_canceled)
        return Printed::Unread;
    complain(console, u"cannot write: " % QString::fromStdString(error.message()));
    return Printed::Failed;
}

void complain(Console &console, const QString &message)
{
    console.writeError(QString(u"roamlet: " % TextLayout::shown(message) % u'\n').toUtf8());
}

} // namespace roamlet
