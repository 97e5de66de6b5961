// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/Grouping.h"

#include <QWidget>

#include <optional>

class QAction;
class QActionGroup;
class QLineEdit;
class QMenu;
class QToolButton;

namespace roamlet
{

class ElidedLabel;
class ReloadButton;

/// The bar over the list: its title and subtitle, and at the right what can be done with it.
class DetailHeader final : public QWidget
{
    Q_OBJECT

public:
    explicit DetailHeader(QWidget *parent = nullptr);

    void setTitle(const QString &title, const QString &subtitle);
    /// Offers the groupings of a list; nothing is offered without one.
    void setGroupings(std::optional<GroupedList> list, Grouping current);
    void setReloading(bool isReloading);
    bool isReloading() const;
    void setCanExport(bool canExport);

    QLineEdit *searchField() const { return m_search; }
    /// What the "Group By" button opens; menus elsewhere may show it as well.
    QMenu *groupingMenu() const { return m_groupingMenu; }
    /// The last that the Tab key comes to.
    QToolButton *menuButton() const { return m_menuButton; }
    /// What it opens.
    QMenu *mainMenu() const { return m_mainMenu; }

Q_SIGNALS:
    /// The search field has got the focus.
    void searchExpected();
    void searchChanged(const QString &text);
    void groupingChosen(roamlet::Grouping grouping);
    void reloadRequested();
    void exportRequested();
    /// The user is done typing and wants to go on in the list.
    void listRequested();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateColors();

    ElidedLabel *m_title;
    ElidedLabel *m_subtitle;
    QToolButton *m_groupBy;
    QMenu *m_groupingMenu;
    QActionGroup *m_groupings;
    ReloadButton *m_reload;
    QToolButton *m_export;
    QLineEdit *m_search;
    QAction *m_magnifier;
    QAction *m_clear;
    QToolButton *m_menuButton;
    QMenu *m_mainMenu;
};

} // namespace roamlet
