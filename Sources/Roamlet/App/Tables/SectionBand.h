// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/VisitStrip.h"
#include "Model/PointInTime.h"

#include <QIcon>
#include <QPoint>
#include <QRect>
#include <QString>

#include <cstddef>
#include <optional>

class QPainter;

namespace roamlet
{

struct Ground;
struct Look;

/// What the heading of a section shows: an arrow, its icon, its title, how many rows it has, and the strip of
/// its visits.
struct SectionBand {
    QString title;
    QString count;
    QIcon icon;
    /// By which share its arrow has turned to where it is open.
    double opened = 1;
    /// A line parts it from what stands above.
    bool isFirst = false;
    /// What it is painted on, where that is there already: it can be selected.
    const Ground *ground = nullptr;
    /// Null where no strip is shown.
    const VisitStrip *visits = nullptr;
    /// The hour or day that the row under the pointer belongs to.
    // The compiler wants it from whoever names only some of the members.
    // NOLINTNEXTLINE(readability-redundant-member-init)
    std::optional<std::size_t> litTick = {};
    /// What begins after it is still to come.
    PointInTime now;

    /// Draws it into the whole width of the list. The strip ends at `stripEnd`, counted in the direction of
    /// reading from the leading edge.
    void paint(QPainter &painter, const QRect &band, Qt::LayoutDirection direction, int stripEnd,
               const Look &look) const;
};

/// Where the strip lies in a band.
QRect visitStripPlace(const VisitStrip &visits, const QRect &band, Qt::LayoutDirection direction,
                      int stripEnd, const Look &look);
/// The hour or day whose bar stands at this point, somewhere between the upper and the lower edge of the
/// band.
std::optional<std::size_t> visitTickAt(const VisitStrip &visits, const QPoint &point, const QRect &band,
                                       Qt::LayoutDirection direction, int stripEnd, const Look &look);

} // namespace roamlet
