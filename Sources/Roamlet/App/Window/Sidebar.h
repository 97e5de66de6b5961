// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/Fade.h"
#include "App/Look/SourceIcons.h"
#include "App/Window/Pane.h"
#include "App/Window/WindowServices.h"
#include "Model/Source.h"

#include <QPersistentModelIndex>
#include <QTreeView>

#include <optional>

namespace roamlet
{

class SidebarDelegate;
class SidebarModel;

/// The list at the window's leading edge from which a pane is chosen. Its sections can be folded and those of
/// the sources dragged into another order, or carried there
/// with Alt and the arrow keys; both are remembered.
class Sidebar final : public QTreeView
{
    Q_OBJECT

public:
    static constexpr int minimumWidthOfColumn = 190;
    /// Wider where the letters are larger.
    static constexpr int idealWidthOfColumn = 220;

    explicit Sidebar(const WindowServices &services, QWidget *parent = nullptr);

    /// Over a list it ends in a line.
    void setIsOverList(bool isOverList);

    /// Selects the pane's row; nothing is selected when there is none. Emits nothing.
    void select(const std::optional<Pane> &pane);
    /// What is selected, also while there is no row for it.
    const std::optional<Pane> &pane() const { return m_pane; }
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user has selected something else, or nothing.
    void paneSelected();
    /// The user has chosen a row, which may be the selected one, with a key or the mouse.
    void rowChosen();
    /// The user wants to export these bookmarks; of all sources when the id is absent.
    void exportRequested(const std::optional<QString> &sourceID);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    /// Only the left button chooses, and only where it was pressed: a menu of another row leaves the shown
    /// one where it is.
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void drawBranches(QPainter * /*painter*/, const QRect & /*rect*/,
                      const QModelIndex & /*index*/) const override
    {
    }
    void changeEvent(QEvent *event) override;

private:
    void updateColors();
    void followSelection();
    bool isSection(const QModelIndex &index) const;
    void setFolded(const QModelIndex &section, bool isFolded);
    void turn(const QModelIndex &section);
    void storeFolded(const QModelIndex &section, bool isFolded);
    void restoreFolded();
    /// Before which section, counted with the first one, something would be dropped here.
    int dropTarget(int y) const;
    void drop(const QModelIndex &section, int target);
    /// The same by key, which the current row follows.
    void carry(const QModelIndex &section, int target);
    void endDragging();

    WindowServices m_services;
    SidebarModel *m_model;
    SourceIcons m_sourceIcons;
    std::optional<Pane> m_pane;
    bool m_isRestoring = false;
    SidebarDelegate *m_delegate;
    QPersistentModelIndex m_hovered;
    /// It lights up the row under the pointer.
    Fade m_lighting;
    /// The section that was opened or folded last, and its arrow on the way.
    QPersistentModelIndex m_turned;
    Fade m_turning;
    QPersistentModelIndex m_pressed;
    QPoint m_pressedAt;
    std::optional<int> m_dropTarget;
    bool m_isOverList = false;
};

} // namespace roamlet
