// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/LocalText.h"

#include "Model/UserCalendar.h"

#include <QCoreApplication>

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <mutex>

namespace roamlet
{

using namespace Qt::StringLiterals;

/// The time, and a day with its month and the time or with its year, as the language puts them together. All
/// of them come from one library, since Qt's has times of its own: "9:59 PM" beside "10:28 pm". What the
/// clock on the wall shows is handed over as if it were UTC, so that the time zone is the one of all other
/// dates.
struct LocalText::Formats {
    explicit Formats(const QString &locale)
    {
        const icu::Locale native(locale.toLatin1().constData());
        UErrorCode status = U_ZERO_ERROR;
        timeOnly.reset(icu::DateFormat::createInstanceForSkeleton("jmm", native, status));
        dayAndTime.reset(icu::DateFormat::createInstanceForSkeleton("MMMdjmm", native, status));
        dayAndYear.reset(icu::DateFormat::createInstanceForSkeleton("yMMMd", native, status));
        if (U_FAILURE(status) != 0) {
            for (std::unique_ptr<icu::DateFormat> *format : {&timeOnly, &dayAndTime, &dayAndYear})
                format->reset();
            return;
        }
        for (icu::DateFormat *format : {timeOnly.get(), dayAndTime.get(), dayAndYear.get()})
            format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    }

    /// Empty without the library's data.
    static QString text(const std::unique_ptr<icu::DateFormat> &format, const QDateTime &shown)
    {
        if (!format)
            return {};
        const QDateTime wall(shown.date(), shown.time(), Qt::UTC);
        icu::UnicodeString text;
        format->format(double(wall.toMSecsSinceEpoch()), text);
        // Not every font has the blank before "PM".
        constexpr QChar narrowBlank = u'\u202f';
        return QString::fromUtf16(text.getBuffer(), text.length()).replace(narrowBlank, u' ');
    }

    std::unique_ptr<icu::DateFormat> timeOnly;
    std::unique_ptr<icu::DateFormat> dayAndTime;
    std::unique_ptr<icu::DateFormat> dayAndYear;

    static std::shared_ptr<const Formats> of(const QString &locale)
    {
        static std::mutex mutex;
        static QString known;
        static std::shared_ptr<const Formats> formats;
        const std::scoped_lock lock(mutex);
        if (!formats || known != locale) {
            known = locale;
            formats = std::make_shared<Formats>(locale);
        }
        return formats;
    }
};

LocalText::LocalText(const UserCalendar &calendar, PointInTime now)
    : m_locale(calendar.locale),
      m_zone(calendar.timeZone.toLatin1()),
      m_now(now),
      m_localeName(calendar.locale)
{
    if (!m_zone.isValid())
        m_zone = QTimeZone::utc();
    m_today = local(now).date();
}

void LocalText::prepare(const QString &locale)
{
    Formats::of(locale);
}

QString LocalText::briefDate(PointInTime time) const
{
    return briefDate(local(time));
}

QString LocalText::briefDate(const QDateTime &shown) const
{
    constexpr qint64 week = 7;
    const qint64 daysAgo = shown.date().daysTo(m_today);
    QString time = timeText(shown);
    if (daysAgo == 0)
        return time;
    if (daysAgo > 0 && daysAgo < week)
        return m_locale.dayName(shown.date().dayOfWeek(), QLocale::ShortFormat) % u' ' % time;
    // A day of the same name a year ago is another one.
    const bool isWithinAYear = daysAgo > 0 && shown.date() > m_today.addYears(-1);
    const std::shared_ptr<const Formats> formats = Formats::of(m_localeName);
    const QString text = Formats::text(isWithinAYear ? formats->dayAndTime : formats->dayAndYear, shown);
    return text.isEmpty() ? m_locale.toString(shown.date(), QLocale::ShortFormat) : text;
}

QString LocalText::timeOfDay(PointInTime time) const
{
    return timeText(local(time));
}

QString LocalText::timeText(const QDateTime &shown) const
{
    const QString text = Formats::text(Formats::of(m_localeName)->timeOnly, shown);
    return text.isEmpty() ? m_locale.toString(shown.time(), QLocale::ShortFormat) : text;
}

QString LocalText::fullDate(PointInTime time) const
{
    const QDateTime shown = local(time);
    return m_locale.toString(shown.date(), QLocale::LongFormat) % u' ' % timeText(shown);
}

QString LocalText::hour(int number) const
{
    constexpr int hoursPerDay = 24;
    const auto time = [this](int hour) {
        return timeText(QDateTime(m_today, QTime(hour % hoursPerDay, 0), Qt::UTC));
    };
    //: An hour of a day: "13:00 to 14:00".
    return QCoreApplication::translate("roamlet::LocalText", "%1 to %2").arg(time(number), time(number + 1));
}

QString LocalText::day(PointInTime begin) const
{
    return m_locale.toString(local(begin).date(), QLocale::LongFormat);
}

QString LocalText::number(qint64 number) const
{
    return m_locale.toString(number);
}

QStringList LocalText::sampleDates() const
{
    constexpr int daysPerWeek = 7;
    constexpr int monthsPerYear = 12;
    const QTime time(22, 58);
    QStringList result;
    for (int day = 0; day < daysPerWeek; ++day)
        result.append(briefDate(QDateTime(m_today.addDays(-day), time, m_zone)));
    for (int month = 1; month < monthsPerYear; ++month) {
        QDate date = m_today.addMonths(-month);
        date.setDate(date.year(), date.month(), 28);
        result.append(briefDate(QDateTime(date, time, m_zone)));
        result.append(briefDate(QDateTime(date.addYears(-2), time, m_zone)));
    }
    return result;
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
