// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Switch.h"

#include "App/Look/Look.h"
#include "App/Look/PlainPalette.h"
#include "App/Look/StillStyle.h"
#include "App/Look/SwitchRow.h"
#include "Support/Waiting.h"

#include <QAccessible>
#include <QImage>
#include <QPainter>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

QImage picture(const SwitchLook &look, const QPalette &palette)
{
    QImage image(36, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(palette.color(QPalette::Window));
    QPainter painter(&image);
    look.paint(painter, QRectF(image.rect()), Look(palette, QFont()));
    return image;
}

TEST(SwitchTest, mouseAndSpaceTurnIt)
{
    Switch toggle;
    toggle.show();
    const QSignalSpy turned(&toggle, &Switch::toggled);
    QTest::mouseClick(&toggle, Qt::LeftButton);
    EXPECT_TRUE(toggle.isChecked());
    QTest::keyClick(&toggle, Qt::Key_Space);
    EXPECT_FALSE(toggle.isChecked());
    toggle.setEnabled(false);
    QTest::mouseClick(&toggle, Qt::LeftButton);
    EXPECT_FALSE(toggle.isChecked());
    EXPECT_EQ(turned.count(), 2);
}

TEST(SwitchTest, isACheckBoxForThoseWhoHearIt)
{
    Switch toggle;
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(&toggle);
    ASSERT_NE(heard, nullptr);
    EXPECT_EQ(heard->role(), QAccessible::CheckBox);
    EXPECT_FALSE(heard->state().checked);
    toggle.setChecked(true);
    EXPECT_TRUE(heard->state().checked);
}

TEST(SwitchTest, everyStateLooksDifferentInEveryTheme)
{
    const QList<SwitchLook> looks{{.isOn = false},
                                  {.isOn = true},
                                  {.isOn = false, .isEnabled = false},
                                  {.isOn = true, .isEnabled = false},
                                  {.isOn = false, .hasFocus = true},
                                  {.isOn = true, .hasFocus = true}};
    for (const QPalette &palette : {paletteOf(Qt::white, Qt::black), paletteOf(Qt::black, Qt::white)}) {
        QList<QImage> pictures;
        for (const SwitchLook &look : looks) {
            const QImage drawn = picture(look, palette);
            EXPECT_FALSE(pictures.contains(drawn)) << pictures.size();
            pictures.append(drawn);
        }
    }
}

TEST(SwitchTest, theKnobOfASwitchThatIsOnLiesWhereLinesEnd)
{
    const QPalette palette = paletteOf(Qt::white, Qt::black);
    const QColor on = Look(palette, QFont()).on;
    const QImage leftToRight = picture({.isOn = true}, palette);
    EXPECT_EQ(leftToRight.pixelColor(8, 10), on);
    EXPECT_NE(leftToRight.pixelColor(27, 10), on);
    const QImage rightToLeft = picture({.isOn = true, .direction = Qt::RightToLeft}, palette);
    EXPECT_NE(rightToLeft.pixelColor(8, 10), on);
    EXPECT_EQ(rightToLeft.pixelColor(27, 10), on);
}

TEST(SwitchTest, theKnobMovesWhenTheUserTurnsItUnlessNothingShallMove)
{
    Switch toggle;
    toggle.show();
    toggle.setChecked(true);
    const QImage on = toggle.grab().toImage();
    toggle.setChecked(false);
    EXPECT_NE(toggle.grab().toImage(), on);
    QTest::mouseClick(&toggle, Qt::LeftButton);
    EXPECT_NE(toggle.grab().toImage(), on) << "on its way";
    ASSERT_TRUE(waitUntil([&] { return toggle.grab().toImage() == on; }));
    StillStyle still;
    Switch other;
    other.setStyle(&still);
    other.show();
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_EQ(other.grab().toImage(), on);
}

TEST(SwitchTest, aSwitchThatIsTurnedBackAtOnceDoesNotMove)
{
    Switch toggle;
    toggle.show();
    const QImage off = toggle.grab().toImage();
    QObject::connect(&toggle, &Switch::toggled, &toggle, [&] {
        const QSignalBlocker blocker(toggle);
        toggle.setChecked(false);
    });
    QTest::mouseClick(&toggle, Qt::LeftButton);
    EXPECT_EQ(toggle.grab().toImage(), off);
}

TEST(SwitchTest, theRingComesWithTheFirstKey)
{
    QWidget window;
    auto *one = new Switch(&window);
    auto *two = new Switch(&window);
    for (Switch *each : {one, two})
        each->resize(each->sizeHint());
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QImage without = one->grab().toImage();
    one->setFocus();
    QTest::mouseClick(&window, Qt::LeftButton);
    EXPECT_EQ(one->grab().toImage(), without);
    QTest::keyClick(one, Qt::Key_Tab);
    QTest::keyClick(two, Qt::Key_Backtab);
    ASSERT_TRUE(one->hasFocus());
    EXPECT_NE(one->grab().toImage(), without);
}

TEST(SwitchTest, aClickOnTheLineTurnsItAndADragAwayDoesNot)
{
    SwitchRow row(u"Open at login"_s);
    row.resize(300, 30);
    row.show();
    EXPECT_EQ(row.control().accessibleName(), u"Open at login"_s);
    QTest::mouseClick(&row, Qt::LeftButton, {}, QPoint(20, 15));
    EXPECT_TRUE(row.control().isChecked());
    QTest::mousePress(&row, Qt::LeftButton, {}, QPoint(20, 15));
    QTest::mouseRelease(&row, Qt::LeftButton, {}, QPoint(20, 100));
    QTest::mouseClick(&row, Qt::RightButton, {}, QPoint(20, 15));
    EXPECT_TRUE(row.control().isChecked());
}

} // namespace
} // namespace roamlet::testing
