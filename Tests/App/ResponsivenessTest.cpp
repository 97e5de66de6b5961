// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/DesktopFakes.h"
#include "Lists/SortedRows.h"
#include "Platform/UserLocale.h"
#include "SampleHome/SampleHome.h"
#include "Support/StallMeter.h"
#include "Support/TestHome.h"
#include "Support/Waiting.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A sanitizer makes everything slower by an order of magnitude, so that nothing is said about the program.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSlowedDown = true;
#else
constexpr bool isSlowedDown = false;
#endif

/// The whole program over ten sources of 1,000 rows each.
class ResponsivenessTest : public ::testing::Test, protected DesktopFakes
{
protected:
    void SetUp() override
    {
        sample::build(home.path(), {.chromeProfiles = 6,
                                    .edgeProfiles = 3,
                                    .safariProfiles = 0,
                                    .rowsPerProfile = 1000,
                                    .bookmarksPerProfile = 300,
                                    .iconsPerProfile = 60});
    }

    void TearDown() override { started.reset(); }

    template<typename Widget>
    Widget &part(RoamletApp &app, const QString &name) const
    {
        return *app.mainWindow()->findChild<Widget *>(name);
    }
    /// The list in front.
    QTreeView *shownList(RoamletApp &app) const
    {
        for (const QString &name :
             {u"historyTable"_s, u"mostVisitedTable"_s, u"bookmarkTable"_s, u"bookmarkTree"_s}) {
            auto *view = app.mainWindow()->findChild<QTreeView *>(name);
            if (view != nullptr && view->isVisible())
                return view;
        }
        return nullptr;
    }
    /// Lets time pass until the list has rows, and has stopped to change.
    void settle(RoamletApp &app)
    {
        ASSERT_TRUE(waitUntil([&] {
            home.clock.advance(300ms);
            const QTreeView *view = shownList(app);
            return view != nullptr && view->model()->rowCount() > 0 && home.clock.waiting() <= 2;
        }));
        waitUntil([] { return false; }, 60ms);
    }

    TestHome home;
};

TEST_F(ResponsivenessTest, theMainThreadIsNeverBusyForLong)
{
    RoamletApp app(services(home.platform()));
    app.start(false);
    StallMeter meter;
    meter.setActivity(u"loading"_s);
    settle(app);
    ASSERT_EQ(app.library().snapshot().history.size(), 10'000);

    QLineEdit &search = part<QLineEdit>(app, u"searchField"_s);
    search.setFocus();
    for (const char letter : {'w', 'w', 'w'}) {
        meter.setActivity(u"typing "_s % QLatin1Char(letter));
        QTest::keyClick(&search, letter);
        settle(app);
    }
    meter.setActivity(u"clearing the search"_s);
    search.clear();
    settle(app);

    auto &sidebar = part<QAbstractItemView>(app, u"sidebar"_s);
    // All lists of everything.
    const QModelIndex everything = sidebar.model()->index(0, 0);
    for (int row = 0; row < 3; ++row) {
        const QModelIndex pane = sidebar.model()->index(row, 0, everything);
        ASSERT_TRUE(pane.flags().testFlag(Qt::ItemIsSelectable));
        const QString name = pane.data().toString();
        meter.setActivity(u"switching to "_s % name);
        sidebar.setCurrentIndex(pane);
        settle(app);
        QHeaderView *header = shownList(app)->header();
        for (int column = 0; column < header->count(); ++column) {
            meter.setActivity(u"sorting %1 by column %2"_s.arg(name).arg(column));
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              QPoint(header->sectionViewportPosition(column) + 5, header->height() / 2));
            settle(app);
        }
        for (QAction *grouping : part<QMenu>(app, u"groupingMenu"_s).actions()) {
            meter.setActivity(u"grouping %1: %2"_s.arg(name, grouping->text()));
            grouping->trigger();
            settle(app);
        }
    }
    meter.setActivity(u"reloading"_s);
    app.library().load({});
    settle(app);
    meter.setActivity({});

    const StallMeter::Stall longest = meter.longest();
    RecordProperty("longest_stall_us", std::to_string(longest.duration.count()));
    if (isSlowedDown)
        GTEST_SKIP() << "measured with a sanitizer: " << longest.duration.count() << " us";
    EXPECT_LE(longest.duration, 50ms)
        << longest.duration.count() << " us while " << longest.activity.toStdString();
}

/// Notes when a view paints another first row than before.
class FirstRowWatch final : public QObject
{
public:
    explicit FirstRowWatch(QTreeView &view) : m_view(view), m_before(firstRow())
    {
        view.viewport()->installEventFilter(this);
    }
    QString firstRow() const { return m_view.model()->index(0, 0).data().toString(); }

    std::optional<std::chrono::steady_clock::time_point> painted;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Paint || painted || firstRow() == m_before)
            return QObject::eventFilter(watched, event);
        // The view paints first.
        watched->removeEventFilter(this);
        QCoreApplication::sendEvent(watched, event);
        painted = std::chrono::steady_clock::now();
        return true;
    }

private:
    QTreeView &m_view;
    QString m_before;
};

TEST_F(ResponsivenessTest, aListOfTenThousandRowsIsSortedAndPainted)
{
    RoamletApp app(services(home.platform()));
    app.start(false);
    settle(app);
    const QList<HistoryItem> rows = app.library().snapshot().history;
    ASSERT_EQ(rows.size(), 10'000);
    QTreeView &view = *shownList(app);

    const auto beforeSort = std::chrono::steady_clock::now();
    const Collation collation(UserLocale::collation());
    const auto sorted =
        sortedRows(allRows(rows), {{SortColumn::Title, SortOrder::Forward}}, collation, std::stop_token());
    const auto sort = std::chrono::steady_clock::now() - beforeSort;

    FirstRowWatch watch(view);
    QHeaderView *header = view.header();
    const auto clicked = std::chrono::steady_clock::now();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(0) + 5, header->height() / 2));
    ASSERT_TRUE(waitUntil([&watch] { return watch.painted.has_value(); }, patience, 1ms));
    EXPECT_EQ(watch.firstRow(), sorted->front()->title);

    const auto microseconds = [](auto duration) {
        return std::to_string(std::chrono::duration_cast<std::chrono::microseconds>(duration).count());
    };
    RecordProperty("sort_us", microseconds(sort));
    RecordProperty("sorted_until_painted_us", microseconds(*watch.painted - clicked));
}

} // namespace
} // namespace roamlet::testing
