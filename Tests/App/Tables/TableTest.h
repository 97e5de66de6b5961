// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/LinkTable.h"
#include "Support/FakeWorkspace.h"
#include "Support/LibraryHome.h"

#include <QAbstractItemModelTester>
#include <QList>
#include <QString>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace roamlet::testing
{

/// A home with browsers, the Library on top, and tables that show what is in it: in English, in UTC, on
/// Saturday, 2026-05-09, at 06:13:20.
class TableTest : public LibraryHome
{
protected:
    TableTest();

    void TearDown() override
    {
        // A question that was taken back is still putting its copies away.
        library.reset();
        LibraryHome::TearDown();
    }

    WindowServices services() const { return m_services; }
    /// Adds pages to a Chrome profile's history and replaces the ones that were there.
    void setPages(const QString &profile, const QList<sample::HistoryRow> &rows);
    /// A page visited so many seconds before `newest`.
    static sample::HistoryRow page(const QString &title, qint64 secondsAgo, qint64 visits = 1,
                                   const QString &url = {});

    /// Shows the table in a size for several rows. Every model is watched from before its first row.
    void show(LinkTable &table, const ListWish &wish = {});
    /// Does something that makes the table show a list, and waits for it.
    static void awaitList(LinkTable &table, const std::function<void()> &action);
    /// What is done now makes no list.
    static void expectNoList(LinkTable &table, const std::function<void()> &action);
    void reload(LinkTable &table);

    /// The index of the row with this title, wherever it lies.
    static QModelIndex find(const LinkTable &table, const QString &title);
    static void click(const LinkTable &table, const QString &title, Qt::KeyboardModifiers modifiers = {});
    static void doubleClick(const LinkTable &table, const QString &title);
    static void rightClick(const LinkTable &table, const QString &title);
    static void clickHeader(const LinkTable &table, int column);
    static void press(const LinkTable &table, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    static QStringList selectedTitles(const LinkTable &table);
    static QString currentTitle(const LinkTable &table);
    /// The open menu of this name, or nothing.
    static QMenu *menu(const LinkTable &table, const QString &name);
    /// Chooses an entry of it.
    static void choose(const LinkTable &table, const QString &menuName, const QString &title);
    static QStringList entries(const QMenu *menu);

    FakeWorkspace workspace;
    Opener opener{workspace};
    std::unique_ptr<Library> library = std::make_unique<Library>(home.platform());

private:
    WindowServices m_services;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> m_testers;
};

/// The table as lines: its cells separated by "|", and what lies in an open section or folder indented. A
/// closed one ends in " +".
std::string text(const LinkTable &table);
/// The titles in the same way, separated by blanks.
std::string titles(const LinkTable &table);

} // namespace roamlet::testing
