// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/DetailHeader.h"

#include "App/Look/ElidedLabel.h"
#include "App/Look/Look.h"
#include "App/Look/Symbol.h"
#include "App/Window/PaneText.h"
#include "App/Window/ReloadButton.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace roamlet
{

using namespace Qt::StringLiterals;

DetailHeader::DetailHeader(QWidget *parent)
    : QWidget(parent),
      m_title(new ElidedLabel(this)),
      m_subtitle(new ElidedLabel(this)),
      m_groupBy(new QToolButton(this)),
      m_groupingMenu(new QMenu(u"Group By"_s, this)),
      m_groupings(new QActionGroup(this)),
      m_reload(new ReloadButton(this)),
      m_export(new QToolButton(this)),
      m_search(new QLineEdit(this)),
      m_magnifier(m_search->addAction(QIcon(), QLineEdit::LeadingPosition)),
      m_clear(m_search->addAction(QIcon(), QLineEdit::TrailingPosition)),
      m_menuButton(new QToolButton(this)),
      m_mainMenu(new QMenu(u"Menu"_s, this))
{
    m_title->setObjectName(u"listTitle"_s);
    QFont titleFont = m_title->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.15);
    m_title->setFont(titleFont);
    m_subtitle->setObjectName(u"listSubtitle"_s);
    QFont subtitleFont = m_subtitle->font();
    subtitleFont.setPointSizeF(subtitleFont.pointSizeF() * 0.9);
    m_subtitle->setFont(subtitleFont);

    m_groupingMenu->setObjectName(u"groupingMenu"_s);
    m_groupBy->setObjectName(u"groupByButton"_s);
    m_groupBy->setText(u"Group By"_s);
    m_groupBy->setAccessibleName(u"Group By"_s);
    m_groupBy->setToolTip(u"Group By"_s);
    m_groupBy->setIcon(symbolIcon(u"rectangle.3.group"_s));
    m_groupBy->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_groupBy->setPopupMode(QToolButton::InstantPopup);
    m_groupBy->setMenu(m_groupingMenu);
    m_export->setObjectName(u"exportButton"_s);
    m_export->setText(u"Export Bookmarks"_s);
    m_export->setAccessibleName(u"Export Bookmarks"_s);
    m_export->setToolTip(u"Export Bookmarks"_s);
    m_export->setIcon(symbolIcon(u"square.and.arrow.up"_s));

    m_mainMenu->setObjectName(u"mainMenu"_s);
    m_menuButton->setObjectName(u"menuButton"_s);
    m_menuButton->setText(u"Menu"_s);
    m_menuButton->setAccessibleName(u"Menu"_s);
    m_menuButton->setToolTip(u"Menu"_s);
    m_menuButton->setIcon(symbolIcon(u"line.3.horizontal"_s));
    m_menuButton->setPopupMode(QToolButton::InstantPopup);
    m_menuButton->setMenu(m_mainMenu);

    m_search->setObjectName(u"searchField"_s);
    m_search->setPlaceholderText(u"Title or URL"_s);
    m_search->setAccessibleName(u"Search"_s);
    // A screen reader finds both buttons, so they have texts. Qt's own clear button looks for its icon
    // through the whole theme before the window can show.
    m_magnifier->setText(u"Search"_s);
    m_clear->setObjectName(u"clearSearch"_s);
    m_clear->setText(u"Clear Search"_s);
    m_clear->setVisible(false);
    connect(m_clear, &QAction::triggered, m_search, &QLineEdit::clear);
    connect(m_search, &QLineEdit::textChanged, m_clear,
            [this](const QString &text) { m_clear->setVisible(!text.isEmpty()); });
    m_search->setMinimumWidth(180);
    m_search->setMaximumWidth(260);
    m_search->installEventFilter(this);
    updateColors();

    for (QToolButton *button : {m_groupBy, static_cast<QToolButton *>(m_reload), m_export, m_menuButton}) {
        button->setIconSize(QSize(16, 16));
        button->setFocusPolicy(Qt::TabFocus);
        button->setMinimumHeight(m_search->sizeHint().height());
        button->setMinimumWidth(m_search->sizeHint().height());
    }

    auto *words = new QVBoxLayout;
    words->setSpacing(1);
    words->addWidget(m_title);
    words->addWidget(m_subtitle);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(14, 10, 12, 10);
    row->setSpacing(8);
    row->addLayout(words, 1);
    row->addWidget(m_groupBy);
    row->addWidget(m_reload);
    row->addWidget(m_export);
    row->addWidget(m_search, 1);
    row->addWidget(m_menuButton);

    connect(m_groupings, &QActionGroup::triggered, this, [this](const QAction *action) {
        Q_EMIT groupingChosen(static_cast<Grouping>(action->data().toInt()));
    });
    connect(m_reload, &QToolButton::clicked, this, &DetailHeader::reloadRequested);
    connect(m_export, &QToolButton::clicked, this, &DetailHeader::exportRequested);
    connect(m_search, &QLineEdit::textChanged, this, &DetailHeader::searchChanged);
}

void DetailHeader::setTitle(const QString &title, const QString &subtitle)
{
    m_title->setText(title);
    m_subtitle->setText(subtitle);
}

void DetailHeader::setGroupings(std::optional<GroupedList> list, Grouping current)
{
    for (QAction *action : m_groupings->actions())
        delete action;
    if (list) {
        for (const Grouping grouping : groupingChoices(*list)) {
            QAction *action = m_groupingMenu->addAction(PaneText::label(grouping, *list));
            action->setCheckable(true);
            action->setChecked(grouping == current);
            action->setData(static_cast<int>(grouping));
            m_groupings->addAction(action);
        }
    }
    m_groupBy->setEnabled(list.has_value());
}

void DetailHeader::setReloading(bool isReloading)
{
    m_reload->setReloading(isReloading);
}

bool DetailHeader::isReloading() const
{
    return m_reload->isReloading();
}

void DetailHeader::setCanExport(bool canExport)
{
    m_export->setEnabled(canExport);
}

void DetailHeader::updateColors()
{
    const Look look = Look::of(*this);
    setPaletteColor(*m_subtitle, QPalette::WindowText, look.page.quiet);
    setPaletteColor(*m_search, QPalette::PlaceholderText, look.field.quiet);
    m_magnifier->setIcon(symbolIcon(u"magnifyingglass"_s, look.field.quiet));
    m_clear->setIcon(symbolIcon(u"xmark.circle"_s, look.field.quiet));
}

void DetailHeader::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        updateColors();
    QWidget::changeEvent(event);
}

bool DetailHeader::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_search && event->type() == QEvent::FocusIn)
        Q_EMIT searchExpected();
    if (watched != m_search || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Escape:
        // Once it is empty, there is nothing left to clear.
        if (m_search->text().isEmpty())
            Q_EMIT listRequested();
        else
            m_search->clear();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT listRequested();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

} // namespace roamlet
