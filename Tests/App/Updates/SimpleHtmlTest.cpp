// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/SimpleHtml.h"

#include <QList>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// How deep the elements are nested, all of which have to be closed in order.
qsizetype depthOf(const QString &html)
{
    QStringList open;
    qsizetype result = 0;
    for (const QString &piece : html.split(u'<').sliced(1)) {
        const QString tag = piece.section(u'>', 0, 0).section(u' ', 0, 0);
        if (tag == u"br")
            continue;
        if (!tag.startsWith(u'/')) {
            open.append(tag);
        } else if (open.isEmpty() || tag != u'/' % open.takeLast()) {
            ADD_FAILURE() << "closed in the wrong order: " << qPrintable(html.left(1'000));
            return -1;
        }
        result = std::max(result, open.size());
    }
    EXPECT_TRUE(open.isEmpty());
    return result;
}

TEST(SimpleHtmlTest, wordsHeadingsListsAndEmphasisStay)
{
    for (const QString &html :
         {u"<h2>New &amp; nice</h2><p>It is <b>fast</b>, <em>really</em>.</p>"_s,
          u"<ul><li>One<ul><li>Half</li></ul></li></ul><ol><li><code>two</code></li></ol>"_s, u"1 > 0 ä€𝄞"_s,
          QString()})
        EXPECT_EQ(simpleHtml(html), html);
}

TEST(SimpleHtmlTest, linksLeadToWebPagesOnly)
{
    EXPECT_EQ(simpleHtml(u"<A class=x HREF='https://a.example/?b&amp;c' onclick=x>d</A>"_s),
              u"<a href=\"https://a.example/?b&amp;c\">d</a>"_s);
    EXPECT_EQ(simpleHtml(u"<a href= >a</a>"_s), u"<a>a</a>"_s);
    EXPECT_EQ(simpleHtml(u"<a href=http://a.example>d</a>"_s), u"<a href=\"http://a.example\">d</a>"_s);
    EXPECT_EQ(simpleHtml(u"<a href='https://a\"b'>d</a>"_s), u"<a href=\"https://a&quot;b\">d</a>"_s);
    for (const QString &address :
         {u"file:///etc/passwd"_s, u"javascript:x"_s, u"page.html"_s, u"//a.example"_s})
        EXPECT_EQ(simpleHtml(u"<a href='%1'>d</a>"_s.arg(address)), u"<a>d</a>"_s);
}

TEST(SimpleHtmlTest, stylesScriptsAndPicturesGo)
{
    EXPECT_EQ(simpleHtml(u"<!DOCTYPE html><head><title>t</title><STYLE>p{color:red}</Style >"
                         "<script>if (a<b) x</script></head>"
                         "<body bgcolor=red><p style='color:red'>a<img src=x><!-- <b> --></p></body>"_s)
                  .simplified(),
              u"<p>a </p>"_s);
}

TEST(SimpleHtmlTest, aTableBecomesLines)
{
    EXPECT_EQ(simpleHtml(u"<table><tr><td colspan=20000>a</td><td>b</td></tr><tr><td>c</td></tr></table>"_s)
                  .simplified(),
              u"<br> a b<br> c"_s);
}

TEST(SimpleHtmlTest, brokenMarkupIsMended)
{
    EXPECT_EQ(simpleHtml(u"<p><b>a</p>b</b></i>"_s), u"<p><b>a</b></p>b"_s);
    EXPECT_EQ(simpleHtml(u"<p>a"_s), u"<p>a</p>"_s);
    EXPECT_EQ(simpleHtml(u"1 < 2 <"_s), u"1 &lt; 2 &lt;"_s);
    for (const QString &html :
         {u"<"_s, u"</"_s, u"<b"_s, u"<!--"_s, u"<script>"_s, u"<a href"_s, u"<a href='"_s})
        EXPECT_GE(depthOf(simpleHtml(html)), 0);
}

TEST(SimpleHtmlTest, whateverComesTheResultIsSmallAndFlat)
{
    for (const QString &html : {u"<table><tr><td>"_s, u"<ul><li>"_s, u"<b>a</b>b"_s, u"<p>a"_s, u"<div>"_s,
                                u"<br>"_s, u"<x>"_s, u"< "_s, u"&lt;"_s, u"word "_s, u"<blockquote>a"_s,
                                u"<!---->"_s, u"<style></style>"_s, u"</b>"_s}) {
        const QString result = simpleHtml(html.repeated(200'000));
        EXPECT_LE(depthOf(result), 20) << qPrintable(html);
        EXPECT_LE(result.count(u'<'), 2'000) << qPrintable(html);
        EXPECT_LT(result.size(), 60'000) << qPrintable(html);
    }
}

} // namespace
} // namespace roamlet::testing
