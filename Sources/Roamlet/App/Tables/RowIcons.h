// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QHash>
#include <QIcon>
#include <QString>

class QImage;
class QWidget;

namespace roamlet
{

class Library;
class Opener;

/// The icons in front of the rows of one table, each made once for a snapshot and a display.
class RowIcons
{
public:
    /// The side of an icon in points.
    static constexpr int side = 16;

    /// For the display on which `widget` is.
    RowIcons(Library &library, Opener &opener, const QWidget &widget);

    /// The site's own icon, or a globe.
    const QIcon &site(const QString &site);
    /// The site's own icon, or a null icon.
    const QIcon &siteIfKnown(const QString &site);
    /// The browser's icon, or a symbol.
    const QIcon &browser(Source::Kind kind);
    const QIcon &folder() const { return m_folder; }
    /// A new snapshot can bring other icons.
    void clear();

private:
    /// Icons of another display are of no use.
    void followDisplay();
    QIcon iconOf(const QImage &image) const;

    Library &m_library;
    Opener &m_opener;
    const QWidget &m_widget;
    qreal m_ratio = 1;
    QHash<QString, QIcon> m_sites;
    QHash<Source::Kind, QIcon> m_browsers;
    QIcon m_globe;
    QIcon m_folder;
};

} // namespace roamlet
