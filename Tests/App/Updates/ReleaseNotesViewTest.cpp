// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/ReleaseNotesView.h"

#include "Platform/Update.h"

#include <QTextDocument>
#include <QTextFrame>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// HTML notes, as they are laid out.
class ReleaseNotesViewTest : public ::testing::Test
{
protected:
    QString textOf(const QString &html)
    {
        view.show({.format = ReleaseNotes::Format::Html, .text = html});
        view.resize(400, 300);
        view.document()->size();
        return view.toPlainText();
    }

    ReleaseNotesView view{[](const QString &) {}};
};

TEST_F(ReleaseNotesViewTest, wordsHeadingsAndListsStay)
{
    EXPECT_EQ(textOf(u"<h2>New &amp; nice</h2><p>It is <b>fast</b>.</p><ul><li>One<li>Two</ul>"_s),
              u"New & nice\nIt is fast.\nOne\nTwo"_s);
    EXPECT_TRUE(view.toHtml().contains(u"<li"));
    EXPECT_TRUE(view.toHtml().contains(u"<h2"));
}

TEST_F(ReleaseNotesViewTest, stylesScriptsAndPicturesGo)
{
    EXPECT_EQ(textOf(u"<!DOCTYPE html><head><title>t</title><STYLE>p{margin:900px}</Style >"
                     "<script>if (a<b) x</script></head><p>a<img src=x width=99999999>b"_s),
              u"ab"_s);
    EXPECT_EQ(textOf(u"a<script>b"_s), u"a"_s);
}

TEST_F(ReleaseNotesViewTest, theRowsOfATableBecomeLines)
{
    EXPECT_EQ(textOf(u"<table><tr><td colspan=20000>a</td><td>b</td></tr><tr><th>c</th></tr></table>"_s)
                  .simplified(),
              u"a b c"_s);
    EXPECT_TRUE(view.document()->rootFrame()->childFrames().isEmpty());
    EXPECT_EQ(view.toPlainText().count(u'\n'), 2);
}

TEST_F(ReleaseNotesViewTest, whateverComesIsLaidOut)
{
    for (const QString &html :
         {u"<table><tr><td>"_s, u"<ul><li>"_s, u"<b>a</b>b"_s, u"<p>a"_s, u"<div>"_s, u"<br>"_s, u"<x>"_s,
          u"< "_s, u"&lt;"_s, u"word "_s, u"<blockquote>a"_s, u"<!---->"_s, u"<style></style>"_s, u"</b>"_s,
          u"<div style='float:left'>"_s, u"<"_s, u"<a href='"_s, u"<td"_s}) {
        EXPECT_LE(textOf(html.repeated(200'000)).size(), 20'000) << qPrintable(html);
        EXPECT_LE(textOf(html.repeated(900)).size(), 20'000) << qPrintable(html);
    }
}

} // namespace
} // namespace roamlet::testing
