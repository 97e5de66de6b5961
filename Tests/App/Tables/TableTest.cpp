// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableTest.h"

#include "App/Tables/TableHeader.h"
#include "Support/Waiting.h"

#include <QMenu>
#include <QSignalSpy>
#include <QTest>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

void appendRows(const LinkTable &table, const QModelIndex &parent, const QString &indentation,
                const std::function<QString(const QModelIndex &)> &line, QStringList &lines)
{
    const QAbstractItemModel &model = *table.view().model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const bool isClosed = model.hasChildren(index) && !table.view().isExpanded(index);
        lines.append(indentation % line(index) % (isClosed ? u" +"_s : QString()));
        if (!isClosed)
            appendRows(table, index, indentation % u"  ", line, lines);
    }
}

QPoint middle(const LinkTable &table, const QString &title, const QModelIndex &index)
{
    EXPECT_TRUE(index.isValid()) << qPrintable(title);
    table.view().scrollTo(index);
    return table.view().visualRect(index).center();
}

} // namespace

TableTest::TableTest()
    : m_services{.library = *library,
                 .defaults = home.defaults,
                 .clock = home.clock,
                 .folders = home.folders,
                 .opener = opener,
                 .workspace = workspace,
                 .collation = std::make_shared<Collation>(u"en_US"_s),
                 .calendar = [] { return UserCalendar{u"UTC"_s, u"en_US"_s}; }}
{
}

void TableTest::setPages(const QString &profile, const QList<sample::HistoryRow> &rows)
{
    change([&] { sample::writeHistory(chromeFile(profile % u"/History"), rows); });
}

sample::HistoryRow TableTest::page(const QString &title, qint64 secondsAgo, qint64 visits, const QString &url)
{
    return {.id = {},
            .url = url.isEmpty() ? QString(u"https://" % title % u".example/") : url,
            .title = title,
            .visitCount = visits,
            .lastVisitTime = sample::chromiumTime(newest - secondsAgo),
            .hidden = false};
}

void TableTest::show(LinkTable &table, const ListWish &wish)
{
    m_testers.push_back(std::make_unique<QAbstractItemModelTester>(
        table.view().model(), QAbstractItemModelTester::FailureReportingMode::Fatal));
    table.resize(900, 400);
    table.setWish(wish);
    awaitList(table, [&table] {
        table.show();
        table.activateWindow();
        table.view().setFocus();
    });
}

void TableTest::awaitList(LinkTable &table, const std::function<void()> &action)
{
    const QSignalSpy lists(&table, &LinkTable::rowCountChanged);
    action();
    EXPECT_TRUE(waitUntil([&] { return !lists.isEmpty() && !table.isAwaited(); }));
}

void TableTest::expectNoList(LinkTable &table, const std::function<void()> &action)
{
    const QSignalSpy lists(&table, &LinkTable::rowCountChanged);
    action();
    QCoreApplication::processEvents();
    EXPECT_EQ(lists.size(), 0);
}

void TableTest::reload(LinkTable &table)
{
    awaitList(table, [this] { loadNow(*library); });
}

QModelIndex TableTest::find(const LinkTable &table, const QString &title)
{
    const QAbstractItemModel &model = *table.view().model();
    const QModelIndexList found =
        model.match(model.index(0, 0), Qt::DisplayRole, title, 1, Qt::MatchExactly | Qt::MatchRecursive);
    return found.value(0);
}

void TableTest::click(const LinkTable &table, const QString &title, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(table.view().viewport(), Qt::LeftButton, modifiers,
                      middle(table, title, find(table, title)));
}

void TableTest::doubleClick(const LinkTable &table, const QString &title)
{
    const QPoint place = middle(table, title, find(table, title));
    QTest::mouseClick(table.view().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table.view().viewport(), Qt::LeftButton, {}, place);
}

void TableTest::rightClick(const LinkTable &table, const QString &title)
{
    const QPoint place = middle(table, title, find(table, title));
    QWidget *viewport = table.view().viewport();
    QTest::mouseClick(viewport, Qt::RightButton, {}, place);
    // The window system would send this one after the click.
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport->mapToGlobal(place));
    QCoreApplication::sendEvent(viewport, &event);
}

void TableTest::clickHeader(const LinkTable &table, int column)
{
    const QHeaderView &header = table.view().tableHeader();
    const QPoint place(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                       header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
}

void TableTest::press(const LinkTable &table, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&table.view(), key, modifiers);
}

QStringList TableTest::selectedTitles(const LinkTable &table)
{
    QStringList result;
    for (const TableRow &row : table.view().selectedRows())
        result.append(row.title);
    return result;
}

QString TableTest::currentTitle(const LinkTable &table)
{
    return table.view().currentIndex().siblingAtColumn(0).data().toString();
}

QMenu *TableTest::menu(const LinkTable &table, const QString &name)
{
    return table.findChild<QMenu *>(name);
}

void TableTest::choose(const LinkTable &table, const QString &menuName, const QString &title)
{
    QMenu *opened = menu(table, menuName);
    ASSERT_NE(opened, nullptr);
    for (QAction *action : opened->findChildren<QAction *>()) {
        if (action->text() == title) {
            action->trigger();
            opened->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return;
        }
    }
    FAIL() << qPrintable(title);
}

QStringList TableTest::entries(const QMenu *menu)
{
    QStringList result;
    for (const QAction *action : menu->actions())
        result.append(action->isSeparator() ? u"-"_s : action->text());
    return result;
}

std::string text(const LinkTable &table)
{
    QStringList lines;
    const auto line = [](const QModelIndex &index) {
        QStringList cells;
        for (int column = 0; column < index.model()->columnCount(); ++column) {
            const QString cell = index.siblingAtColumn(column).data().toString();
            if (column == 0 || !cell.isEmpty())
                cells.append(cell);
        }
        return cells.join(u'|');
    };
    appendRows(table, {}, {}, line, lines);
    return lines.join(u'\n').toStdString();
}

std::string titles(const LinkTable &table)
{
    QStringList lines;
    appendRows(table, {}, {}, [](const QModelIndex &index) { return index.data().toString(); }, lines);
    for (QString &line : lines)
        line = line.trimmed();
    return lines.join(u' ').toStdString();
}

} // namespace roamlet::testing
