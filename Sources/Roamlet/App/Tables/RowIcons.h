// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/SourceIcons.h"

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QList>
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
    /// For the display on which `widget` is.
    RowIcons(Library &library, Opener &opener, const QWidget &widget);

    /// The site's own icon, or a globe.
    const QIcon &site(const QString &site);
    /// The site's own icon, or a null icon.
    const QIcon &siteIfKnown(const QString &site);
    /// The icon of the profile's browser, or our mark of it.
    QIcon source(const Source &source) { return m_sources.of(source); }
    const QIcon &folder();
    /// A new snapshot can bring other icons.
    void clear();

private:
    /// Icons of another display or size are of no use.
    void followDisplay();
    QIcon iconOf(const QImage &image) const;

    Library &m_library;
    SourceIcons m_sources;
    const QWidget &m_widget;
    qreal m_ratio = 0;
    /// In points; larger texts have larger icons.
    int m_side = 0;
    /// What symbols are drawn with.
    QList<QColor> m_inks;
    QHash<QString, QIcon> m_sites;
    QIcon m_globe;
    QIcon m_folder;
};

} // namespace roamlet
