// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/Pane.h"

#include <QListView>

#include <optional>

namespace roamlet
{

class Library;
class SidebarModel;

/// The list at the window's left edge from which a pane is chosen.
class Sidebar final : public QListView
{
    Q_OBJECT

public:
    static constexpr int minimumWidthOfColumn = 190;
    static constexpr int idealWidthOfColumn = 220;

    explicit Sidebar(const Library &library, QWidget *parent = nullptr);

    /// Selects the pane's row; nothing is selected when there is none. Emits nothing.
    void select(const std::optional<Pane> &pane);
    /// What is selected, also while there is no row for it.
    const std::optional<Pane> &pane() const { return m_pane; }

Q_SIGNALS:
    /// The user has selected something else, or nothing.
    void paneSelected();
    /// The user wants to export these bookmarks; of all sources when the id is absent.
    void exportRequested(const std::optional<QString> &sourceID);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    /// Only the left button chooses: a menu of another row leaves the shown one where it is.
    void mousePressEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    QSize sizeHint() const override;
    void changeEvent(QEvent *event) override;

private:
    void updateColors();
    void followSelection();

    const Library &m_library;
    SidebarModel *m_model;
    std::optional<Pane> m_pane;
    bool m_isRestoring = false;
};

} // namespace roamlet
