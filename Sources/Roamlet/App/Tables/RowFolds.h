// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/Fade.h"
#include "Lists/RowTree.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QSet>
#include <QString>

namespace roamlet
{

class TableView;

/// Which sections and folders of a table are open. Outermost ones come open and others closed; what the user
/// has changed of that stays so when a newer list comes.
class RowFolds final : public QObject
{
public:
    /// Lives with the view.
    explicit RowFolds(TableView &view);

    void toggle(const QModelIndex &index);
    /// Opens a folder and the ones in it.
    void openAllBelow(const QModelIndex &index);
    /// The view has another list: opens in it what is to be open.
    void restore();
    /// By which share the arrow of a row has turned to where it is open.
    double openedShare(const QModelIndex &index) const;

private:
    bool isOpen(const RowTree::Node &node) const;
    void note(const QModelIndex &index, bool isNowOpen);

    TableView &m_view;
    /// Those whose state differs from how they come.
    QSet<QString> m_toggled;
    /// No arrow turns and nothing is noted.
    bool m_isRestoring = false;
    bool m_isOpeningAll = false;
    /// What was opened or closed last, and its arrow on the way.
    QPersistentModelIndex m_turned;
    Fade m_turning;
};

} // namespace roamlet
