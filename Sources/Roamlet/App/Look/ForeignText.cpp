// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/ForeignText.h"

#include <QFontMetrics>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <iterator>
#include <optional>

namespace roamlet::ForeignText
{

using namespace Qt::StringLiterals;

namespace
{

/// A line of a tooltip; addresses have no blanks at which they could be broken.
constexpr qsizetype toolTipWidth = 100;

bool isShownAsBlank(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

/// Overrides, embeddings and isolates turn what comes after them, too, and that may be words of ours. The
/// marks that only give a single place a direction stay.
bool turnsWhatFollows(QChar character)
{
    return (character >= u'\u202A' && character <= u'\u202E') ||
           (character >= u'\u2066' && character <= u'\u2069');
}

/// The beginning of `text`, not ending within a character.
QStringView beginning(QStringView text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    return text.first(text[length - 1].isHighSurrogate() ? length - 1 : length);
}

constexpr int longestTitle = 60;
constexpr int shortTitle = 58;

/// The blanks of all scripts, and the tab.
bool isTitleBlank(QChar character)
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

/// In Qt's mark-up: what comes from a file is never taken for it.
QString markedUp(const QString &html)
{
    return u"<qt>" % html % u"</qt>";
}

} // namespace

QString shownBeginning(QStringView text, qsizetype longest)
{
    const QStringView shown = beginning(text, longest);
    QString result;
    result.reserve(shown.size() + 1);
    std::ranges::remove_copy_if(shown, std::back_inserter(result), turnsWhatFollows);
    if (shown.size() < text.size())
        result.append(u'…');
    return result;
}

QString oneLine(QStringView text, qsizetype longest)
{
    QString result = shownBeginning(text, longest);
    std::ranges::replace_if(result, isShownAsBlank, QChar(u' '));
    return result;
}

QString fitted(const QString &text, const QFontMetrics &metrics, int width)
{
    return metrics.horizontalAdvance(text) <= width ? text : metrics.elidedText(text, Qt::ElideRight, width);
}

QString inLabel(const QString &text)
{
    return shownBeginning(text, longestText).simplified();
}

QString inMenu(QStringView text)
{
    return oneLine(text, longestMenuText).replace(u'&', "&&"_L1);
}

QString shortenedTitle(const QString &title)
{
    // Only the beginning of an endless title is looked at, unless its characters are endless, too: then they
    // are counted in a longer one. What lies behind the beginning can only lengthen its last character.
    for (qsizetype looked = 1000;; looked *= 100) {
        const QStringView text = QStringView(title).left(looked);
        const bool isWhole = text.size() == title.size();
        const std::optional<qsizetype> tooLong = lengthOf(longestTitle + 1, text);
        if (!tooLong && isWhole)
            return title;
        if (!tooLong)
            continue;
        QStringView cut = text.left(*lengthOf(shortTitle, text));
        const auto *const first = std::ranges::find_if_not(cut, isTitleBlank);
        cut = cut.sliced(first - cut.begin());
        while (!cut.isEmpty() && isTitleBlank(cut.back()))
            cut.chop(1);
        return cut % u'…';
    }
}

QString titleInMenu(const QString &title)
{
    return oneLine(shortenedTitle(title)).replace(u'&', "&&"_L1);
}

QString toolTip(const QStringList &lines)
{
    QStringList shown;
    for (const QString &line : lines) {
        const QString whole = oneLine(line);
        for (QStringView rest = whole; !rest.isEmpty();) {
            const QStringView part = beginning(rest, toolTipWidth);
            shown.append(part.toString().toHtmlEscaped());
            rest = rest.sliced(part.size());
        }
    }
    // Marked up, since a text that looks like mark-up would otherwise be taken for it.
    return u"<p style='white-space:pre'>"_s % shown.join(u"<br>"_s) % u"</p>"_s;
}

QString wrappedToolTip(const QString &text)
{
    return markedUp(shownBeginning(text, longestText).toHtmlEscaped());
}

QString wrappedToolTipOfLines(const QString &text)
{
    return markedUp(shownBeginning(text, longestText).toHtmlEscaped().replace(u'\n', u"<br>"_s));
}

} // namespace roamlet::ForeignText
