// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QHash>
#include <QIcon>
#include <QImage>

#include <optional>

class QWidget;

namespace roamlet
{

class Library;
class Opener;

/// The icons of the profiles wherever one is shown, each made once for a snapshot and a display. Profiles of
/// one browser look nearly alike: a label stands beside each icon, or in its tip.
class SourceIcons
{
public:
    /// For the display on which `widget` is. All of them outlive it.
    SourceIcons(const Library &library, Opener &opener, const QWidget &widget);

    QIcon of(const Source &source);

private:
    /// Another snapshot may know other profiles and browsers, and icons of another display are of no use.
    void follow();
    const QImage &ownIcon(Source::Kind kind);
    /// Its place among the profiles of its browser; nothing where only one of them is shown.
    std::optional<qsizetype> profileNumber(const Source &source) const;

    const Library &m_library;
    Opener &m_opener;
    const QWidget &m_widget;
    int m_generation = 0;
    qreal m_ratio = 1;
    QHash<Source, QIcon> m_icons;
    /// Null for a browser that is not installed, which takes the longest to find out.
    QHash<Source::Kind, QImage> m_ownIcons;
};

} // namespace roamlet
