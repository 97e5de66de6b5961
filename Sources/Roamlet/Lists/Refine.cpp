// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/Refine.h"

#include "Model/LowerCase.h"

#include <algorithm>

namespace roamlet
{

namespace
{

// Ends of lines are no spaces here.
bool isSpace(QChar c)
{
    return c == u'\t' || c.category() == QChar::Separator_Space;
}

} // namespace

QString refineText(QStringView typed)
{
    while (!typed.isEmpty() && isSpace(typed.front()))
        typed = typed.sliced(1);
    while (!typed.isEmpty() && isSpace(typed.back()))
        typed.chop(1);
    return lowerCased(typed.toString());
}

bool isSearchText(QStringView typed)
{
    return !std::ranges::all_of(typed, isSpace);
}

QStringList refineWords(const QString &text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

} // namespace roamlet
