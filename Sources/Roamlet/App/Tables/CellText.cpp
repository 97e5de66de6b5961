// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/CellText.h"

#include "Model/UserCalendar.h"

#include <QDateTime>

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

LocalText::LocalText(const UserCalendar &calendar, PointInTime now)
    : m_locale(calendar.locale), m_zone(calendar.timeZone.toLatin1())
{
    if (!m_zone.isValid())
        m_zone = QTimeZone::utc();
    m_today = local(now).date();
}

QString LocalText::briefDate(PointInTime time) const
{
    constexpr qint64 week = 7;
    const QDateTime shown = local(time);
    const qint64 daysAgo = shown.date().daysTo(m_today);
    QString timeOfDay = m_locale.toString(shown.time(), QLocale::ShortFormat);
    if (daysAgo == 0)
        return timeOfDay;
    if (daysAgo > 0 && daysAgo < week)
        return m_locale.dayName(shown.date().dayOfWeek(), QLocale::ShortFormat) % u' ' % timeOfDay;
    return m_locale.toString(shown.date(), QLocale::ShortFormat);
}

QString LocalText::fullDate(PointInTime time) const
{
    const QDateTime shown = local(time);
    return m_locale.toString(shown.date(), QLocale::LongFormat) % u' ' %
           m_locale.toString(shown.time(), QLocale::ShortFormat);
}

QString LocalText::number(qint64 number) const
{
    return m_locale.toString(number);
}

PointInTime LocalText::tomorrow() const
{
    const QDateTime start = m_today.addDays(1).startOfDay(m_zone);
    return pointInTime(static_cast<double>(start.toMSecsSinceEpoch()) / 1000);
}

QDateTime LocalText::local(PointInTime time) const
{
    return QDateTime::fromMSecsSinceEpoch(millisecondsSince1970(time), m_zone);
}

} // namespace roamlet
