// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/SourceIcons.h"

#include "App/Look/BrowserMark.h"
#include "Library/Library.h"
#include "Opening/Opener.h"

#include <QWidget>

#include <algorithm>

namespace roamlet
{

SourceIcons::SourceIcons(const Library &library, Opener &opener, const QWidget &widget)
    : m_library(library), m_opener(opener), m_widget(widget)
{
}

QIcon SourceIcons::of(const Source &source)
{
    follow();
    auto icon = m_icons.constFind(source);
    if (icon == m_icons.cend())
        icon = m_icons.insert(source, browserMark(source.kind, profileNumber(source), ownIcon(source.kind)));
    return *icon;
}

void SourceIcons::follow()
{
    const int generation = m_library.generation();
    const qreal ratio = m_widget.devicePixelRatioF();
    if (generation == m_generation && ratio == m_ratio)
        return;
    m_generation = generation;
    m_ratio = ratio;
    m_icons.clear();
    m_ownIcons.clear();
}

const QImage &SourceIcons::ownIcon(Source::Kind kind)
{
    auto icon = m_ownIcons.constFind(kind);
    if (icon == m_ownIcons.cend())
        icon = m_ownIcons.insert(kind, m_opener.icon(kind, m_ratio).value_or(QImage()));
    return *icon;
}

std::optional<qsizetype> SourceIcons::profileNumber(const Source &source) const
{
    const Library::Snapshot &snapshot = m_library.snapshot();
    if (std::ranges::count(snapshot.sources, source.kind, &Source::kind) < 2)
        return {};
    // Counted with those that are off and in the browser's own order: a profile keeps its colour when another
    // one is turned off, or moved.
    qsizetype number = 0;
    for (const Source &each : snapshot.browserProfiles) {
        if (each.id() == source.id())
            return number;
        if (each.kind == source.kind)
            ++number;
    }
    return {};
}

} // namespace roamlet
