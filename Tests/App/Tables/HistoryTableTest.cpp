// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/HistoryTable.h"

#include "App/Tables/TableTest.h"

#include <QSignalSpy>
#include <QTest>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

class HistoryTableTest : public TableTest
{
protected:
    using Mode = HistoryTable::Mode;

    static constexpr qint64 hour = 3600;
    static constexpr qint64 day = 24 * hour;

    void SetUp() override
    {
        addChromium();
        setPages(u"Default"_s, {page(u"today"_s, 60, 3), page(u"yesterday"_s, day, 2),
                                page(u"monday"_s, 5 * day, 1234), page(u"old"_s, 40 * day, 1)});
        setPages(u"Profile 1"_s, {page(u"work"_s, 2 * hour, 7)});
        loadNow(*library);
    }
};

} // namespace

TEST_F(HistoryTableTest, TheNewestPagesComeFirst)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    EXPECT_EQ(text(table), "e1|6:14 AM|3|Edge - Office\n"
                           "today|6:12 AM|3|Chrome - Personal\n"
                           "work|4:13 AM|7|Chrome - Work\n"
                           "yesterday|Fri 6:13 AM|2|Chrome - Personal\n"
                           "monday|Mon 6:13 AM|1,234|Chrome - Personal\n"
                           "old|3/30/26|1|Chrome - Personal");
    EXPECT_EQ(table.rowCount(), 6);
    EXPECT_FALSE(table.isCapped());
}

} // namespace roamlet::testing
