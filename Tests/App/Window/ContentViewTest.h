// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/ContentView.h"
#include "App/Window/WindowTest.h"
#include "Support/Waiting.h"

#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>

namespace roamlet::testing
{

/// The content of a main window.
class ContentViewTest : public WindowTest
{
protected:
    std::unique_ptr<ContentView> makeContent()
    {
        auto content = std::make_unique<ContentView>(services());
        content->resize(1000, 600);
        content->show();
        return content;
    }

    /// The search field, which has the keyboard.
    static QLineEdit *beginSearch(ContentView &content)
    {
        content.activateWindow();
        content.startSearch();
        auto *field = part<QLineEdit>(content, QStringLiteral("searchField"));
        EXPECT_TRUE(waitUntil([field] { return field->hasFocus(); }));
        return field;
    }
    static QString title(const ContentView &content)
    {
        return part<QWidget>(content, QStringLiteral("listTitle"))->accessibleName();
    }
    static QString subtitle(const ContentView &content)
    {
        return part<QWidget>(content, QStringLiteral("listSubtitle"))->accessibleName();
    }
    /// The object name of the table that is seen.
    static QString shownTable(const ContentView &content)
    {
        for (const QTreeView *view : content.findChildren<QTreeView *>()) {
            if (view->isVisible() && view->objectName() != u"sidebar")
                return view->objectName();
        }
        return {};
    }
    /// What is said where no table is seen: a heading, and a text below it.
    static QStringList shownTexts(const ContentView &content)
    {
        QStringList result;
        for (const QString &name : {QStringLiteral("emptyStateTitle"), QStringLiteral("emptyStateText")}) {
            for (const QLabel *label : content.findChildren<QLabel *>(name)) {
                if (label->isVisible())
                    result.append(label->text());
            }
        }
        return result;
    }
    static bool isShown(const ContentView &content, const QString &name)
    {
        const auto *widget = content.findChild<QWidget *>(name);
        return widget != nullptr && widget->isVisible();
    }
    void expectSubtitle(const ContentView &content, const QString &text)
    {
        EXPECT_TRUE(waitUntil([&] {
            home.clock.advance(std::chrono::milliseconds(300));
            return subtitle(content) == text;
        })) << qPrintable(subtitle(content));
    }
};

} // namespace roamlet::testing
