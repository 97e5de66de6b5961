// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/EmptyListPage.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace roamlet
{

using namespace Qt::StringLiterals;

EmptyListPage::EmptyListPage(QWidget *parent)
    : QWidget(parent),
      m_state(new EmptyState(u"magnifyingglass"_s, QString(), this)),
      m_allSites(m_state->addAction(tr("Show All Sites"), u"emptyListAllSites"_s)),
      m_clearSearch(m_state->addAction(tr("Clear Search"), u"emptyListClearSearch"_s)),
      m_reload(m_state->addAction(tr("Reload"), u"emptyListReload"_s))
{
    setObjectName(u"emptyListPage"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_state);
    // A search among all sites is what most people want next.
    m_allSites->setDefault(true);
    connect(m_allSites, &QPushButton::clicked, this, &EmptyListPage::allSitesRequested);
    connect(m_clearSearch, &QPushButton::clicked, this, &EmptyListPage::clearSearchRequested);
    connect(m_reload, &QPushButton::clicked, this, &EmptyListPage::reloadRequested);
}

void EmptyListPage::setReason(const Reason &reason)
{
    m_state->setSymbol(reason.symbol);
    m_state->setTitle(reason.words);
    m_allSites->setVisible(reason.hasSite && !reason.isProblem);
    m_clearSearch->setVisible(reason.hasSearch && !reason.isProblem);
    m_reload->setVisible(reason.isProblem);
    // The first that is there, if any.
    QPushButton *first = nullptr;
    for (QPushButton *button : {m_reload, m_clearSearch, m_allSites})
        first = button->isHidden() ? first : button;
    setFocusProxy(first);
}

} // namespace roamlet
