// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/SourceIcons.h"
#include "Model/Source.h"

#include <QAbstractListModel>
#include <QList>
#include <QSet>

namespace roamlet
{

class Library;
class Opener;

/// Every browser profile in the user's order, each with a switch (its check state). Moving rows and turning
/// switches changes the Library, and the rows follow the Library.
class ProfileListModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    /// For this list, whose child it becomes.
    ProfileListModel(Library &library, Opener &opener, QWidget &list);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool moveRows(const QModelIndex &sourceParent, int sourceRow, int count,
                  const QModelIndex &destinationParent, int destinationRow) override;

private:
    void follow();

    Library &m_library;
    /// Asked while the rows are drawn.
    mutable SourceIcons m_icons;
    QList<Source> m_profiles;
    /// The ids of those that are off.
    QSet<QString> m_disabled;
};

} // namespace roamlet
