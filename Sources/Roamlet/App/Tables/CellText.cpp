// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/CellText.h"

#include <QFontMetrics>

namespace roamlet
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

/// The beginning of `text`, not ending within a character.
QStringView beginning(QStringView text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    return text.first(text[length - 1].isHighSurrogate() ? length - 1 : length);
}

} // namespace

QString CellText::oneLine(QStringView text, qsizetype longest)
{
    const QStringView shown = beginning(text, longest);
    QString result;
    result.reserve(shown.size() + 1);
    for (const QChar character : shown)
        result.append(isShownAsBlank(character) ? QChar(u' ') : character);
    if (shown.size() < text.size())
        result.append(u'…');
    return result;
}

QString CellText::fitted(const QString &text, const QFontMetrics &metrics, int width)
{
    return metrics.horizontalAdvance(text) <= width ? text : metrics.elidedText(text, Qt::ElideRight, width);
}

QString CellText::inMenu(QStringView text)
{
    return oneLine(text, longestMenuText).replace(u'&', "&&"_L1);
}

QString CellText::toolTip(const QStringList &lines)
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

} // namespace roamlet
