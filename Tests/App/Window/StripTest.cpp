// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/StillStyle.h"
#include "App/Window/FullDiskAccessBanner.h"
#include "App/Window/SiteFilterBar.h"
#include "Support/Waiting.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

class StripTest : public ::testing::Test
{
protected:
    StripTest()
    {
        auto *column = new QVBoxLayout(&window);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(bar);
        column->addStretch(1);
        window.resize(600, 300);
        window.show();
    }

    QWidget window;
    SiteFilterBar *bar = new SiteFilterBar(&window);
};

TEST_F(StripTest, slidesOpenAndShut)
{
    EXPECT_FALSE(bar->isVisible());
    bar->setOpen(true);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_LT(bar->maximumHeight(), bar->sizeHint().height());
    EXPECT_TRUE(waitUntil([this] { return bar->height() == bar->sizeHint().height(); }));
    bar->setOpen(false);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(waitUntil([this] { return !bar->isVisible(); }));
}

TEST_F(StripTest, isThereAtOnceWhereNothingMoves)
{
    StillStyle style;
    bar->setStyle(&style);
    bar->setOpen(true);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_GT(bar->maximumHeight(), bar->sizeHint().height());
    bar->setOpen(false);
    EXPECT_FALSE(bar->isVisible());
    bar->setStyle(nullptr);
}

TEST_F(StripTest, openingItAgainWhileItShutsLeavesItOpen)
{
    bar->setOpen(true);
    bar->setOpen(false);
    bar->setOpen(true);
    EXPECT_TRUE(waitUntil([this] { return bar->maximumHeight() > 10000; }));
    EXPECT_TRUE(bar->isVisible());
}

TEST_F(StripTest, theSiteStandsOutFromTheWordsAroundIt)
{
    bar->setSite(u"a.example"_s, {});
    auto *text = bar->findChild<QWidget *>(u"siteFilterText"_s);
    EXPECT_EQ(text->accessibleName(), u"Only a.example");
    const int bold = text->sizeHint().width();
    QFont font = text->font();
    EXPECT_GT(bold, QFontMetrics(font).horizontalAdvance(u"Only a.example"_s) + 1);
}

TEST(FullDiskAccessBannerTest, saysWhatIsInTheWayOnlyWhenThatIsKnown)
{
    FullDiskAccessBanner banner;
    const auto *details = banner.findChild<QLabel *>(u"fullDiskAccessDetails"_s);
    EXPECT_TRUE(details->isHidden());
    banner.setDetails(u"The file is somebody else's."_s);
    EXPECT_FALSE(details->isHidden());
    EXPECT_EQ(details->text(), u"The file is somebody else's.");
}

TEST(FullDiskAccessBannerTest, noneOfItsWordsIsCutWhereThereIsLittleRoom)
{
    FullDiskAccessBanner banner;
    banner.setOpen(true);
    const auto *heading = banner.findChild<QLabel *>(u"fullDiskAccessHeading"_s);
    const int oneLine = heading->sizeHint().height();
    banner.resize(banner.minimumSizeHint().width(), 400);
    banner.show();
    QApplication::processEvents();
    EXPECT_LT(heading->width(), QFontMetrics(heading->font()).horizontalAdvance(heading->text()));
    EXPECT_GE(heading->height(), heading->heightForWidth(heading->width()));
    EXPECT_GT(heading->height(), oneLine);
}

} // namespace roamlet::testing
