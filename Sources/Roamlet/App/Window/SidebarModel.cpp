// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/SidebarModel.h"

#include "App/Look/Symbol.h"
#include "App/Tables/CellText.h"
#include "Library/Library.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

SidebarModel::SidebarModel(const Library &library, QObject *parent)
    : QAbstractListModel(parent), m_library(library), m_entries(entries())
{
    connect(&library, &Library::snapshotChanged, this, &SidebarModel::update);
    connect(&library, &Library::sourceOrderChanged, this, &SidebarModel::update);
}

int SidebarModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant SidebarModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry &entry = m_entries[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return entry.text;
    case Qt::ToolTipRole:
        return entry.pane ? QVariant() : QVariant(CellText::toolTip({entry.text}));
    case Qt::DecorationRole:
        return entry.symbol.isEmpty() ? QVariant() : QVariant(symbolIcon(entry.symbol));
    case Qt::AccessibleTextRole:
        // Several sources have a "History": by itself it does not say whose.
        return entry.pane ? QString(entry.heading % u": " % entry.text) : entry.text;
    case IsHeadingRole:
        return !entry.pane;
    default:
        return {};
    }
}

Qt::ItemFlags SidebarModel::flags(const QModelIndex &index) const
{
    if (!pane(index))
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

std::optional<Pane> SidebarModel::pane(const QModelIndex &index) const
{
    return index.isValid() && index.row() < m_entries.size() ? m_entries[index.row()].pane : std::nullopt;
}

QModelIndex SidebarModel::indexOf(const Pane &pane) const
{
    for (qsizetype row = 0; row < m_entries.size(); ++row) {
        if (m_entries[row].pane == pane)
            return index(static_cast<int>(row));
    }
    return {};
}

QList<SidebarModel::Entry> SidebarModel::entries() const
{
    QList<Entry> result;
    const auto addHeading = [&result](const QString &text) {
        result.append({.text = text, .symbol = {}, .pane = {}, .heading = text});
    };
    const auto addRow = [&result](const QString &text, const QString &symbol, const Pane &pane) {
        result.append({.text = text, .symbol = symbol, .pane = pane, .heading = result.last().heading});
    };
    addHeading(u"Library"_s);
    addRow(u"Recent History"_s, u"clock"_s, HistoryPane());
    addRow(u"Most Visited"_s, u"chart.bar"_s, MostVisitedPane());
    addRow(u"All Bookmarks"_s, u"bookmark"_s, BookmarksPane());
    for (const Source &source : m_library.ordered(m_library.snapshot().sources)) {
        addHeading(CellText::oneLine(source.label()));
        addRow(u"History"_s, u"clock"_s, HistoryPane{source.id()});
        addRow(u"Bookmarks"_s, u"bookmark"_s, BookmarksPane{source.id()});
    }
    return result;
}

void SidebarModel::update()
{
    QList<Entry> updated = entries();
    // Most reloads change no source, and then nothing in the sidebar moves.
    if (updated == m_entries)
        return;
    beginResetModel();
    m_entries = std::move(updated);
    endResetModel();
}

} // namespace roamlet
