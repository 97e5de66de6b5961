// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/Refine.h"

#include "Model/LowerCase.h"

namespace roamlet
{

QString refineText(QStringView typed)
{
    // Ends of lines are no spaces here.
    const auto isSpace = [](QChar c) { return c == u'\t' || c.category() == QChar::Separator_Space; };
    while (!typed.isEmpty() && isSpace(typed.front()))
        typed = typed.sliced(1);
    while (!typed.isEmpty() && isSpace(typed.back()))
        typed.chop(1);
    return lowerCased(typed.toString());
}

QStringList refineWords(const QString &text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

} // namespace roamlet
