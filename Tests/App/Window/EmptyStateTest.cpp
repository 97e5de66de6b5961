// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/EmptyState.h"

#include "App/Look/Look.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(EmptyStateTest, itsGapsGrowWithItsLetters)
{
    EmptyState page(u"globe"_s, u"Nothing here"_s);
    page.setText(u"Really nothing."_s);
    page.resize(900, 900);
    auto *button = page.addAction(u"Reload"_s, u"reload"_s);
    page.addAction(u"Show All"_s, u"showAll"_s);
    auto *box = new QWidget;
    box->setFixedSize(50, 50);
    page.setBox(box);
    page.show();
    const auto *text = page.findChild<QLabel *>(u"emptyStateText"_s);
    const auto gaps = [&] {
        page.widget()->layout()->activate();
        const auto *other = page.findChild<QPushButton *>(u"showAll"_s);
        return QList<int>{box->y() - text->geometry().bottom(), button->y() - box->geometry().bottom(),
                          other->x() - button->geometry().right(),
                          page.widget()->layout()->contentsMargins().left()};
    };
    const QList<int> before = gaps();
    QFont font = page.font();
    font.setPixelSize(2 * QFontInfo(font).pixelSize());
    page.setFont(font);
    const QList<int> after = gaps();
    for (qsizetype i = 0; i < before.size(); ++i)
        EXPECT_GE(after[i], before[i] + before[i] / 2) << i;
}

TEST(EmptyStateTest, theSignGivesWayToWhatIsSaid)
{
    QWidget window;
    EmptyState page(u"globe"_s, u"Nothing here"_s, &window);
    page.setText(u"Really nothing."_s);
    const auto *button = page.addAction(u"Reload"_s, u"reload"_s);
    const auto *text = page.findChild<QLabel *>(u"emptyStateText"_s);
    const auto *sign = page.findChild<QLabel *>();
    page.resize(400, 600);
    window.resize(400, 600);
    window.show();
    QApplication::processEvents();
    EXPECT_TRUE(sign->isVisible());
    const int all = page.widget()->layout()->totalHeightForWidth(page.width());
    page.resize(400, all - 1);
    QApplication::processEvents();
    EXPECT_FALSE(sign->isVisible());
    EXPECT_LE(text->geometry().bottom(), button->geometry().top());
    EXPECT_GE(text->height(), text->sizeHint().height());
    page.resize(400, all);
    QApplication::processEvents();
    EXPECT_TRUE(sign->isVisible());
}

TEST(EmptyStateTest, whatDoesNotFitIsReachedByScrolling)
{
    EmptyState page(u"globe"_s, u"Nothing here"_s);
    page.setText(u"Really nothing."_s);
    const QPushButton *button = page.addAction(u"Reload"_s, u"reload"_s);
    auto *box = new QWidget;
    box->setFixedHeight(50);
    page.setBox(box);
    page.resize(400, 600);
    page.show();
    QApplication::processEvents();
    EXPECT_EQ(page.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(page.focusPolicy(), Qt::NoFocus);
    page.resize(400, 60);
    QApplication::processEvents();
    EXPECT_GT(page.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(page.focusPolicy(), Qt::TabFocus);
    EXPECT_GE(button->height(), button->sizeHint().height());
    page.verticalScrollBar()->setValue(page.verticalScrollBar()->maximum());
    EXPECT_LE(button->mapTo(&page, button->rect().bottomLeft()).y(), page.height());
    page.resize(400, 600);
    QApplication::processEvents();
    EXPECT_EQ(page.verticalScrollBar()->maximum(), 0);
}

} // namespace roamlet::testing
