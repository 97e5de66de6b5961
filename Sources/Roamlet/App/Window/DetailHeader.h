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

class BusyBar;
class ElidedLabel;
class GroupByButton;
class HeaderButton;
class ReloadButton;
class SearchField;

/// The bar over the list: its title and subtitle, and at the end what can be done with it. Where room runs
/// out, first the subtitle ends early, then the search field gets shorter, then "Group By" loses its words,
/// and at last the search field makes room for the whole title.
class DetailHeader final : public QWidget
{
    Q_OBJECT

public:
    explicit DetailHeader(QWidget *parent = nullptr);

    /// What the subtitle is.
    enum class Subtitle { Note, Problem };

    void setTitle(const QString &title, const QString &subtitle, Subtitle kind = Subtitle::Note);
    /// Offers the groupings of a list; nothing is offered without one.
    void setGroupings(std::optional<GroupedList> list, Grouping current);
    void setReloading(bool isReloading);
    bool isReloading() const;
    void setCanExport(bool canExport);
    /// What is being done, for a line that runs along the lower edge; empty for nothing.
    void setWork(const QString &work);
    /// The button that brings the sidebar back stands first.
    void setSidebarButtonShown(bool isShown);

    QLineEdit *searchField() const;
    /// What the "Group By" button opens; menus elsewhere may show it as well.
    QMenu *groupingMenu() const { return m_groupingMenu; }
    /// The last that the Tab key comes to.
    QToolButton *menuButton() const;
    /// What it opens.
    QMenu *mainMenu() const { return m_mainMenu; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void sidebarRequested();
    /// The search field has got the focus.
    void searchExpected();
    void searchChanged(const QString &text);
    void groupingChosen(roamlet::Grouping grouping);
    void reloadRequested();
    void exportRequested();
    /// The user is done typing and wants to go on in the list.
    void listRequested();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateLook();
    void updateSubtitle();
    /// Where the title begins.
    int wordsStart() const;
    /// The width of all that never gets shorter.
    int fixedWidth() const;
    /// Gives everything its place.
    void arrange();

    HeaderButton *m_sidebar;
    ElidedLabel *m_title;
    ElidedLabel *m_subtitle;
    Subtitle m_subtitleKind = Subtitle::Note;
    GroupByButton *m_groupBy;
    QMenu *m_groupingMenu;
    QActionGroup *m_groupings;
    ReloadButton *m_reload;
    HeaderButton *m_export;
    SearchField *m_search;
    HeaderButton *m_menuButton;
    QMenu *m_mainMenu;
    BusyBar *m_busy = nullptr;
};

} // namespace roamlet
