// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/EmptyState.h"

#include <QString>

class QPushButton;

namespace roamlet
{

/// Says why a list has no rows, and offers what may bring some.
class EmptyListPage final : public QWidget
{
    Q_OBJECT

public:
    struct Reason {
        QString symbol;
        QString words;
        bool hasSite = false;
        bool hasSearch = false;
        bool isProblem = false;
    };

    explicit EmptyListPage(QWidget *parent = nullptr);

    void setReason(const Reason &reason);

Q_SIGNALS:
    void allSitesRequested();
    void clearSearchRequested();
    void reloadRequested();

private:
    EmptyState *m_state;
    QPushButton *m_allSites;
    QPushButton *m_clearSearch;
    QPushButton *m_reload;
};

} // namespace roamlet
