// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <optional>

namespace roamlet
{

class Sidebar;
class UserDefaults;

/// Where the sidebar stands: in this widget, which is beside the list; nowhere, when the user has hidden it,
/// which is remembered; or, where the list would get too narrow beside it, over the list while it is wanted.
class SidebarPlace final : public QWidget
{
    Q_OBJECT

public:
    /// Takes the sidebar in.
    SidebarPlace(Sidebar &sidebar, UserDefaults &defaults, QWidget *parent);

    /// Over what the sidebar may stand.
    void setList(QWidget *list) { m_list = list; }
    /// How much there is for the sidebar and the list.
    void setRoom(int width);
    /// What the user wants.
    void setShown(bool isShown);
    /// Beside the list or over it.
    bool isShown() const { return isBeside() || m_isOver; }
    bool isBeside() const { return m_hasRoom && !m_isHiddenByUser; }

Q_SIGNALS:
    void changed();
    /// The keyboard was in the sidebar, which goes, and is to be in the list now.
    void listRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    int widthBeside() const;
    /// From over the list. If it has the keyboard, that goes to the list.
    void bringBack();
    /// The same, when it is no longer wanted there.
    void leave();
    void showOver();
    void follow();

    Sidebar &m_sidebar;
    UserDefaults &m_defaults;
    QWidget *m_list = nullptr;
    /// What it had when it was last seen.
    std::optional<int> m_lastWidth;
    bool m_isHiddenByUser;
    bool m_hasRoom = true;
    bool m_isOver = false;
};

} // namespace roamlet
