// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxActivationPolicy.h"
#include "Support/Waiting.h"

#include <QApplication>
#include <QDialog>
#include <QWidget>

#include <gtest/gtest.h>

namespace roamlet::testing
{

TEST(BringToFrontTest, theWindowThatWasUsedLastComesForward)
{
    LinuxActivationPolicy policy;
    QWidget first;
    QWidget second;
    for (QWidget *window : {&first, &second})
        window->show();
    for (QWidget *used : {&first, &second, &first}) {
        used->activateWindow();
        ASSERT_TRUE(waitUntil([used] { return used->isActiveWindow(); }));
        // Another program's window takes the focus meanwhile.
        QWidget menu(nullptr, Qt::Popup);
        menu.show();
        menu.activateWindow();
        policy.bringToFront();
        EXPECT_TRUE(waitUntil([used] { return used->isActiveWindow(); }));
    }
    second.activateWindow();
    ASSERT_TRUE(waitUntil([&second] { return second.isActiveWindow(); }));
    second.hide();
    policy.bringToFront();
    EXPECT_TRUE(waitUntil([&first] { return first.isActiveWindow(); })) << "the other one is gone";
}

TEST(BringToFrontTest, whatIsMinimisedStaysSo)
{
    LinuxActivationPolicy policy;
    QWidget first;
    first.show();
    QWidget second;
    second.show();
    second.activateWindow();
    ASSERT_TRUE(waitUntil([&second] { return second.isActiveWindow(); }));
    second.showMinimized();
    policy.bringToFront();
    EXPECT_TRUE(waitUntil([&first] { return first.isActiveWindow(); }));
    EXPECT_TRUE(second.isMinimized());
}

TEST(BringToFrontTest, aDialogComesBeforeItsWindow)
{
    LinuxActivationPolicy policy;
    QWidget other;
    other.show();
    QWidget window;
    window.show();
    QDialog dialog(&window);
    dialog.show();
    window.activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return window.isActiveWindow(); }));
    policy.bringToFront();
    EXPECT_TRUE(waitUntil([&dialog] { return dialog.isActiveWindow(); }));
}

} // namespace roamlet::testing
