// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/LastInput.h"

#include "App/Look/Painting.h"

#include <QAction>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A window with two fields, after a click in it.
class LastInputTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        window.resize(300, 100);
        other->setGeometry(0, 50, 100, 30);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        isKeyboardUsed();
        QTest::mouseClick(&window, Qt::LeftButton);
        ASSERT_FALSE(isKeyboardUsed());
    }

    QWidget window;
    QLineEdit *field = new QLineEdit(&window);
    QLineEdit *other = new QLineEdit(&window);
};

} // namespace

TEST_F(LastInputTest, isAKeyUntilTheMouseIsPressed)
{
    QTest::keyClick(field, Qt::Key_Down);
    EXPECT_TRUE(isKeyboardUsed());
    QTest::mouseMove(&window, QPoint(5, 5));
    EXPECT_TRUE(isKeyboardUsed()) << "it may have been pushed by chance";
    QTest::mousePress(other, Qt::LeftButton);
    EXPECT_FALSE(isKeyboardUsed());
    QTest::keyClick(field, Qt::Key_Down);
    QTest::mouseDClick(other, Qt::LeftButton);
    EXPECT_FALSE(isKeyboardUsed());
}

TEST_F(LastInputTest, aKeyThatIsHeldDownForAnotherLeadsNowhere)
{
    for (const Qt::Key key : {Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_CapsLock})
        QTest::keyClick(field, key);
    EXPECT_FALSE(isKeyboardUsed());
    QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(isKeyboardUsed()) << "nor does copying";
}

TEST_F(LastInputTest, aShortcutIsAKeyAndTheSameCommandOfAMenuIsNone)
{
    QAction command;
    command.setShortcut(Qt::Key_F9);
    QObject::connect(&command, &QAction::triggered, field,
                     [this] { field->setFocus(Qt::ShortcutFocusReason); });
    window.addAction(&command);
    other->setFocus();
    command.trigger();
    ASSERT_TRUE(field->hasFocus());
    EXPECT_FALSE(showsFocus(*field));
    other->setFocus();
    QTest::keyClick(other, Qt::Key_F9);
    ASSERT_TRUE(field->hasFocus());
    EXPECT_TRUE(showsFocus(*field)) << "which no widget has got";
}

TEST_F(LastInputTest, whatHasTheKeyboardIsPaintedAgain)
{
    /// Counts how often it is painted.
    struct Painted final : QWidget {
        using QWidget::QWidget;
        void paintEvent(QPaintEvent * /*event*/) override { ++count; }
        int count = 0;
    };
    Painted around(&window);
    around.setGeometry(150, 0, 100, 100);
    around.show();
    auto *button = new QWidget(&around);
    button->setFocusPolicy(Qt::StrongFocus);
    button->resize(20, 20);
    button->show();
    button->setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return around.count > 0; }));
    const auto paintings = [&] {
        QCoreApplication::processEvents();
        return std::exchange(around.count, 0);
    };
    paintings();
    QTest::keyClick(button, Qt::Key_Down);
    EXPECT_EQ(paintings(), 1);
    QTest::keyClick(button, Qt::Key_Down);
    EXPECT_EQ(paintings(), 0);
    QTest::mouseClick(&window, Qt::LeftButton);
    EXPECT_EQ(paintings(), 1) << "also where the click was elsewhere";
}

} // namespace roamlet::testing
