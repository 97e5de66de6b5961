// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/UserCalendar.h"

#include <QLocale>
#include <QString>

/// What the user's session says about language and place. Everybody who sorts, counts days or writes numbers
/// for the user asks here. On the main thread.
namespace roamlet::UserLocale
{

/// By whose rules names are sorted, such as "de_DE", as a Collation takes it.
QString collation();
/// How days are counted now; a journey changes the time zone.
UserCalendar calendar();
/// How numbers and times of day are written.
QLocale formats();

} // namespace roamlet::UserLocale
