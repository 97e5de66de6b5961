// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/BrowserPlaces.h"

#include "App/Look/Look.h"
#include "App/Window/EmptyState.h"
#include "App/Window/WindowTest.h"
#include "Model/Browser.h"
#include "Support/Waiting.h"

#include <QHelpEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// The list on its page.
class BrowserPlacesTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        page.setBox(places);
        page.resize(900, 900);
        page.show();
    }

    QList<QLabel *> rows() const { return places->findChildren<QLabel *>(u"browserPlace"_s); }
    QLabel *row(const QString &browser) const
    {
        for (QLabel *row : rows()) {
            if (row->accessibleName().startsWith(browser % u": "))
                return row;
        }
        return nullptr;
    }

    EmptyState page{u"globe"_s, u"Nothing"_s};
    BrowserPlaces *places = new BrowserPlaces(home.folders);
};

TEST_F(BrowserPlacesTest, everyBrowserHasARowThatReadsItsNameAndPlaces)
{
    QStringList names;
    for (const Browser &browser : Browser::all())
        names.append(browser.displayName);
    QStringList read;
    for (const QLabel *row : rows())
        read.append(row->accessibleName().section(u": "_s, 0, 0));
    EXPECT_EQ(read, names);
    EXPECT_EQ(rows().first()->accessibleName(), u"Safari: ~/Library/Safari");
    ASSERT_NE(row(u"Firefox"_s), nullptr);
    EXPECT_EQ(row(u"Firefox"_s)->accessibleName(), u"Firefox: ~/.config/mozilla/firefox, ~/.mozilla/firefox");
    for (const QLabel *row : rows())
        EXPECT_FALSE(row->accessibleName().contains(home.path())) << qPrintable(row->accessibleName());
}

TEST_F(BrowserPlacesTest, theIntroductionNamesThemAllAndWhatElseIsLookedFor)
{
    const std::string words = BrowserPlaces::introduction().toStdString();
    for (const Browser &browser : Browser::all())
        EXPECT_THAT(words, ::testing::HasSubstr(browser.displayName.toStdString()));
    EXPECT_THAT(words,
                ::testing::HasSubstr("beta versions, Flatpaks and snaps, and where a Mac keeps them:"));
}

TEST_F(BrowserPlacesTest, theNameStandsAtTheStartAndThePlacesAtTheEnd)
{
    QLabel *first = rows().first();
    const Look look = Look::of(*first);
    const auto edges = [first] {
        const QImage image = first->grab().toImage();
        const QColor ground = image.pixelColor(image.width() / 2, image.height() / 2);
        const auto isWritten = [&](int x) {
            for (int y = 1; y < image.height(); ++y) {
                if (image.pixelColor(x, y) != ground)
                    return true;
            }
            return false;
        };
        int start = 0;
        while (start < image.width() && !isWritten(start))
            ++start;
        int end = image.width() - 1;
        while (end > start && !isWritten(end))
            --end;
        return std::pair(start, image.width() - 1 - end);
    };
    const auto [start, end] = edges();
    EXPECT_NEAR(start, look.measures.boxPadding, 3);
    EXPECT_NEAR(end, look.measures.boxPadding, 3);
    places->setLayoutDirection(Qt::RightToLeft);
    const auto [mirroredStart, mirroredEnd] = edges();
    EXPECT_NEAR(mirroredStart, look.measures.boxPadding, 3);
    EXPECT_NEAR(mirroredEnd, look.measures.boxPadding, 3);
    const QImage mirrored = first->grab().toImage();
    const int icon = look.measures.boxPadding + (look.measures.iconSide / 2);
    const auto isQuiet = [](const QColor &color) { return color.hslSaturation() < 40; };
    EXPECT_FALSE(isQuiet(mirrored.pixelColor(mirrored.width() - icon, mirrored.height() / 2 - 5)))
        << "the mark is at the other end";
}

TEST_F(BrowserPlacesTest, whereThereIsNoRoomForAllItScrollsByKey)
{
    QScrollBar *bar = places->verticalScrollBar();
    EXPECT_EQ(bar->maximum(), 0) << "all of them fit";
    EXPECT_EQ(places->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(places->height(), places->sizeHint().height());
    page.resize(900, 300);
    EXPECT_TRUE(waitUntil([bar] { return bar->maximum() > 0; }));
    EXPECT_EQ(places->focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(places->accessibleName(), u"Browsers");
    page.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return page.isActiveWindow(); }));
    const auto edge = [this] { return places->grab().toImage().pixelColor(places->width() / 2, 0); };
    places->setFocus();
    QTest::mouseClick(&page, Qt::LeftButton);
    const QColor accent = Look::of(page).accent;
    EXPECT_NE(edge(), accent);
    QTest::keyClick(places, Qt::Key_PageDown);
    EXPECT_EQ(edge(), accent);
    EXPECT_GT(bar->value(), 0);
}

TEST_F(BrowserPlacesTest, placesThatAreCutAreWholeInTheTip)
{
    QLabel *firefox = row(u"Firefox"_s);
    ASSERT_NE(firefox, nullptr);
    const auto hover = [firefox] {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, firefox->rect().center(),
                         firefox->mapToGlobal(firefox->rect().center()));
        QCoreApplication::sendEvent(firefox, &event);
        return QToolTip::text();
    };
    EXPECT_EQ(hover(), u"");
    page.resize(300, 900);
    EXPECT_TRUE(waitUntil([&hover] { return hover().contains(u"~/.mozilla/firefox"_s); }));
}

TEST_F(BrowserPlacesTest, isNoWiderThanCanBeRead)
{
    page.resize(3000, 900);
    EXPECT_TRUE(waitUntil([this] { return page.width() == 3000; }));
    EXPECT_EQ(places->width(), Look::of(page).measures.units(34));
    EXPECT_NEAR(places->geometry().center().x(), page.rect().center().x(), 1);
}

} // namespace roamlet::testing
