// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Menu/MenuTitle.h"

#include "App/Tables/CellText.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <optional>

namespace roamlet::MenuTitle
{

namespace
{

constexpr int longestTitle = 60;
constexpr int shortTitle = 58;

/// The blanks of all scripts, and the tab.
bool isBlank(QChar character)
{
    return character == u'\t' || character.category() == QChar::Separator_Space;
}

/// How many code units the first `count` characters take; nothing when there are not that many.
std::optional<qsizetype> lengthOf(int count, QStringView text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    qsizetype end = 0;
    for (int i = 0; i < count; ++i) {
        end = finder.toNextBoundary();
        if (end < 0)
            return {};
    }
    return end;
}

} // namespace

QString shortened(const QString &title)
{
    // Only the beginning of an endless title is looked at, unless its characters are endless, too: then they
    // are counted in a longer one. What lies behind the beginning can only lengthen its last character.
    for (qsizetype beginning = 1000;; beginning *= 100) {
        const QStringView text = QStringView(title).left(beginning);
        const bool isWhole = text.size() == title.size();
        const std::optional<qsizetype> tooLong = lengthOf(longestTitle + 1, text);
        if (!tooLong && isWhole)
            return title;
        if (!tooLong)
            continue;
        QStringView cut = text.left(*lengthOf(shortTitle, text));
        const auto *const first = std::ranges::find_if_not(cut, isBlank);
        cut = cut.sliced(first - cut.begin());
        while (!cut.isEmpty() && isBlank(cut.back()))
            cut.chop(1);
        return cut % u'…';
    }
}

QString inMenu(const QString &title)
{
    QString text = CellText::oneLine(shortened(title));
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace roamlet::MenuTitle
