// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/ProfileListModel.h"

#include "App/Look/ForeignText.h"
#include "Library/Library.h"

#include <QWidget>

#include <algorithm>

namespace roamlet
{

ProfileListModel::ProfileListModel(Library &library, Opener &opener, QWidget &list)
    : QAbstractListModel(&list), m_library(library), m_icons(library, opener, list)
{
    follow();
    connect(&library, &Library::snapshotChanged, this, &ProfileListModel::follow);
    connect(&library, &Library::sourceOrderChanged, this, &ProfileListModel::follow);
    connect(&library, &Library::disabledProfilesChanged, this, &ProfileListModel::follow);
}

int ProfileListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_profiles.size());
}

QVariant ProfileListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Source &source = m_profiles[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return ForeignText::inLabel(source.label());
    case Qt::DecorationRole:
        return m_icons.of(source);
    case Qt::CheckStateRole:
        return m_disabled.contains(source.id()) ? Qt::Unchecked : Qt::Checked;
    case Qt::ToolTipRole:
        return source.holdsMainSafariBookmarks() ? tr("Holds Safari's main bookmarks, so it's always on.")
                                                 : QVariant();
    default:
        return {};
    }
}

bool ProfileListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    m_library.setEnabled(value.toInt() == Qt::Checked, m_profiles[index.row()]);
    return true;
}

Qt::ItemFlags ProfileListModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    result.setFlag(Qt::ItemIsUserCheckable, !m_profiles[index.row()].holdsMainSafariBookmarks());
    return result;
}

bool ProfileListModel::moveRows(const QModelIndex & /*sourceParent*/, int sourceRow, int count,
                                const QModelIndex & /*destinationParent*/, int destinationRow)
{
    const int end = sourceRow + count;
    const bool isInPlace = destinationRow >= sourceRow && destinationRow <= end;
    if (sourceRow < 0 || count < 1 || end > rowCount() || destinationRow < 0 || destinationRow > rowCount() ||
        isInPlace)
        return false;
    QSet<qsizetype> offsets;
    for (int row = sourceRow; row < end; ++row)
        offsets.insert(row);
    // The rows move when the Library says so.
    m_library.moveProfiles(offsets, destinationRow);
    return true;
}

void ProfileListModel::follow()
{
    const QList<Source> profiles = m_library.ordered(m_library.snapshot().browserProfiles);
    const auto ids = [](const QList<Source> &sources) {
        QStringList result;
        for (const Source &source : sources)
            result.append(source.id());
        return result;
    };
    const QStringList before = ids(m_profiles);
    const QStringList after = ids(profiles);
    const auto take = [&] {
        m_profiles = profiles;
        m_disabled = m_library.disabledProfiles();
    };
    if (before == after) {
        take();
        if (!profiles.isEmpty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    if (!std::ranges::is_permutation(before, after)) {
        beginResetModel();
        take();
        endResetModel();
        return;
    }
    // The same profiles in another order: what is selected stays selected.
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList kept = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex &each : kept)
        moved.append(index(static_cast<int>(after.indexOf(before[each.row()]))));
    take();
    changePersistentIndexList(kept, moved);
    Q_EMIT layoutChanged();
}

} // namespace roamlet
