// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/SidebarModel.h"

#include "App/Look/ForeignText.h"
#include "Library/Library.h"

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The internal id of sections. Rows have the number of their section.
constexpr quintptr ofSection = ~quintptr(0);

} // namespace

SidebarModel::SidebarModel(const Library &library, QObject *parent)
    : QAbstractItemModel(parent), m_library(library), m_sections(sections())
{
    connect(&library, &Library::snapshotChanged, this, &SidebarModel::update);
    connect(&library, &Library::sourceOrderChanged, this, &SidebarModel::update);
}

QModelIndex SidebarModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) : ofSection);
}

QModelIndex SidebarModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == ofSection)
        return {};
    return createIndex(static_cast<int>(index.internalId()), 0, ofSection);
}

int SidebarModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_sections.size());
    return parent.internalId() == ofSection ? static_cast<int>(m_sections[parent.row()].rows.size()) : 0;
}

int SidebarModel::columnCount(const QModelIndex & /*parent*/) const
{
    return 1;
}

const SidebarModel::Section *SidebarModel::section(const QModelIndex &index) const
{
    const bool isSection = index.isValid() && index.internalId() == ofSection;
    return isSection && index.row() < m_sections.size() ? &m_sections[index.row()] : nullptr;
}

const SidebarModel::Row *SidebarModel::row(const QModelIndex &index) const
{
    const Section *around = section(parent(index));
    return around != nullptr && index.row() < around->rows.size() ? &around->rows[index.row()] : nullptr;
}

QString SidebarModel::problem(const Section &section) const
{
    return section.source ? m_library.snapshot().problems.value(section.source->id()) : QString();
}

QVariant SidebarModel::data(const QModelIndex &index, int role) const
{
    if (const Section *heading = section(index)) {
        switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole:
            return heading->text;
        case Qt::ToolTipRole: {
            const QString wrong = problem(*heading);
            return ForeignText::toolTip(wrong.isEmpty() ? QStringList{heading->text} : wrong.split(u'\n'));
        }
        case Qt::AccessibleDescriptionRole:
        case ProblemRole:
            return problem(*heading);
        case IsHeadingRole:
            return true;
        default:
            return {};
        }
    }
    const Row *entry = row(index);
    if (entry == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return entry->text;
    case Qt::AccessibleTextRole:
        // Several sources have a "History": by itself it does not say whose.
        //: Read aloud: a section of the sidebar and one of its rows, such as "Firefox: History".
        return tr("%1: %2").arg(section(parent(index))->text, entry->text);
    case SymbolRole:
        return entry->symbol;
    case IsHeadingRole:
        return false;
    default:
        return {};
    }
}

Qt::ItemFlags SidebarModel::flags(const QModelIndex &index) const
{
    if (section(index) != nullptr)
        return Qt::ItemIsEnabled;
    return row(index) != nullptr ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                                 : Qt::NoItemFlags;
}

std::optional<Pane> SidebarModel::pane(const QModelIndex &index) const
{
    const Row *entry = row(index);
    return entry != nullptr ? std::optional(entry->pane) : std::nullopt;
}

QModelIndex SidebarModel::indexOf(const Pane &pane) const
{
    for (int number = 0; number < rowCount(); ++number) {
        const QList<Row> &rows = m_sections[number].rows;
        for (int row = 0; row < rows.size(); ++row) {
            if (rows[row].pane == pane)
                return index(row, 0, index(number, 0));
        }
    }
    return {};
}

QString SidebarModel::sectionID(const QModelIndex &index) const
{
    const Section *heading = section(index);
    if (heading == nullptr)
        return {};
    return heading->source ? heading->source->id() : u"library"_s;
}

std::optional<Source> SidebarModel::source(const QModelIndex &section) const
{
    const Section *heading = this->section(section);
    return heading != nullptr ? heading->source : std::nullopt;
}

QList<SidebarModel::Section> SidebarModel::sections() const
{
    QList<Section> result{{//: The section of the sidebar that has the lists of all browsers.
                           .text = tr("Library"),
                           .source = {},
                           .rows = {{tr("Recent History"), u"clock"_s, HistoryPane()},
                                    {tr("Most Visited"), u"chart.bar"_s, MostVisitedPane()},
                                    {tr("All Bookmarks"), u"bookmark"_s, BookmarksPane()}}}};
    for (const Source &source : m_library.ordered(m_library.snapshot().sources)) {
        result.append({.text = ForeignText::oneLine(source.label()),
                       .source = source,
                       .rows = {{tr("History"), u"clock"_s, HistoryPane{source.id()}},
                                {tr("Bookmarks"), u"bookmark"_s, BookmarksPane{source.id()}}}});
    }
    return result;
}

void SidebarModel::update()
{
    QList<Section> updated = sections();
    // Most reloads change no source, and then nothing in the sidebar moves.
    if (updated == m_sections) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0));
        return;
    }
    beginResetModel();
    m_sections = std::move(updated);
    endResetModel();
}

} // namespace roamlet
