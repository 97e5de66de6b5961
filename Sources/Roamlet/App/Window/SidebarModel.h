// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/Pane.h"

#include <QAbstractListModel>
#include <QList>

#include <optional>

namespace roamlet
{

class Library;

/// The rows of the sidebar: all sources together, then each enabled source, each under a heading that cannot
/// be selected. Follows the library.
class SidebarModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Whether a row is a heading.
    static constexpr int IsHeadingRole = Qt::UserRole;

    explicit SidebarModel(const Library &library, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// What a row selects; nothing for a heading.
    std::optional<Pane> pane(const QModelIndex &index) const;
    /// The row that selects the pane; an invalid index when there is none.
    QModelIndex indexOf(const Pane &pane) const;

private:
    struct Entry {
        QString text;
        QString symbol;
        /// Absent for a heading.
        std::optional<Pane> pane;
        QString heading;

        bool operator==(const Entry &) const = default;
    };

    QList<Entry> entries() const;
    void update();

    const Library &m_library;
    QList<Entry> m_entries;
};

} // namespace roamlet
