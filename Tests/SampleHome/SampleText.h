// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace roamlet::sample
{

/// A small generator of its own: the same numbers from the same seed on every machine and with every library.
class Random
{
public:
    explicit Random(quint64 seed) : m_state(seed) {}

    quint64 next();
    /// From 0 up to, but not including, the bound.
    qint64 below(qint64 bound);
    /// In the upper-case form with hyphens that Safari writes.
    QString uuid();
    /// In the form of twelve characters that Firefox writes.
    QString guid();

private:
    quint64 m_state;
};

/// A page that somebody might have visited.
struct Page {
    QString url;
    QString title;
};

/// The page with this number; in one profile no two numbers have the same URL.
Page page(quint64 seed, qsizetype number);

/// The front page of the site with this number. The first few dozen are the ones that most pages lie on.
Page frontPage(qsizetype site);

/// The icon of the site with this number as a square PNG.
QByteArray siteIcon(qsizetype site, int width);

} // namespace roamlet::sample
