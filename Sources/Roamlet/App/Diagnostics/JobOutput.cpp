// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/JobOutput.h"

#include "App/Diagnostics/TextLayout.h"
#include "Platform/Console.h"

namespace roamlet
{

QString JobOutput::text(const QString &stored) const
{
    return m_console.isTerminal() ? TextLayout::shown(stored) : stored;
}

QString JobOutput::lines(const QString &stored) const
{
    if (!m_console.isTerminal())
        return stored;
    QStringList result = stored.split(u'\n');
    for (QString &line : result)
        line = TextLayout::shown(line.endsWith(u'\r') ? line.chopped(1) : line);
    return result.join(u'\n');
}

QString JobOutput::titleCell(const QString &title) const
{
    return m_console.isTerminal() ? TextLayout::elided(text(title), widestCell) : title;
}

int JobOutput::write(const QString &output)
{
    if (m_stop.stop_requested())
        return failure;
    const Printed printed = roamlet::print(m_console, output);
    m_canWrite = printed == Printed::Written;
    return printed == Printed::Failed ? failure : success;
}

} // namespace roamlet
