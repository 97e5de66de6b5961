// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/Pane.h"
#include "Model/Source.h"

#include <QAbstractItemModel>
#include <QList>

#include <optional>

namespace roamlet
{

class Library;

/// The sections of the sidebar, each with its rows: all sources together, then each enabled source. A section
/// cannot be selected. Follows the library.
class SidebarModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// Whether it is a section.
    static constexpr int IsHeadingRole = Qt::UserRole;
    /// What went wrong with a section's source; empty when nothing did.
    static constexpr int ProblemRole = Qt::UserRole + 1;
    /// The name of a row's symbol.
    static constexpr int SymbolRole = Qt::UserRole + 2;

    explicit SidebarModel(const Library &library, QObject *parent = nullptr);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// What a row selects; nothing for a section.
    std::optional<Pane> pane(const QModelIndex &index) const;
    /// The row that selects the pane; an invalid index when there is none.
    QModelIndex indexOf(const Pane &pane) const;
    /// By what a section is remembered; empty for a row.
    QString sectionID(const QModelIndex &index) const;
    /// The source that a section is about; nothing for the section of all sources.
    std::optional<Source> source(const QModelIndex &section) const;

private:
    struct Row {
        QString text;
        QString symbol;
        Pane pane;

        bool operator==(const Row &) const = default;
    };
    struct Section {
        QString text;
        /// Absent for all sources.
        std::optional<Source> source;
        QList<Row> rows;

        bool operator==(const Section &) const = default;
    };

    QList<Section> sections() const;
    const Section *section(const QModelIndex &index) const;
    const Row *row(const QModelIndex &index) const;
    QString problem(const Section &section) const;
    void update();

    const Library &m_library;
    QList<Section> m_sections;
};

} // namespace roamlet
