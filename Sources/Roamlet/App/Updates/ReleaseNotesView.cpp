// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/ReleaseNotesView.h"

#include "App/Updates/SimpleHtml.h"
#include "Platform/Update.h"

#include <QImage>
#include <QLatin1StringView>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// More than anybody reads.
constexpr qsizetype longestNotes = 20'000;

/// Whether Markdown has so many marks that laying it out would keep the window waiting.
bool isHeavy(const QString &markdown)
{
    constexpr qsizetype mostMarks = 2'000;
    return std::ranges::count_if(markdown, [](QChar each) { return "\n*_`[<&"_L1.contains(each); }) >
           mostMarks;
}

} // namespace

ReleaseNotesView::ReleaseNotesView(std::function<void(const QString &url)> openLink, QWidget *parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, [openLink = std::move(openLink)](const QUrl &url) {
        if (url.scheme() == "https"_L1 || url.scheme() == "http"_L1)
            openLink(QString::fromLatin1(url.toEncoded()));
    });
}

void ReleaseNotesView::show(const ReleaseNotes &notes)
{
    const QString text = notes.text.left(longestNotes);
    if (notes.format == ReleaseNotes::Format::Html) {
        setHtml(simpleHtml(notes.text));
    } else if (notes.format == ReleaseNotes::Format::Markdown && !isHeavy(text)) {
        // Without tables, the layout of which takes longest.
        document()->setMarkdown(text,
                                QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectCommonMark) |
                                    QTextDocument::MarkdownNoHTML);
    } else {
        setPlainText(text);
    }
    moveCursor(QTextCursor::Start);
}

QVariant ReleaseNotesView::loadResource(int type, const QUrl & /*name*/)
{
    if (type != QTextDocument::ImageResource)
        return {};
    // An image that is there, so that no sign for a missing one is drawn.
    QImage nothing(1, 1, QImage::Format_ARGB32);
    nothing.fill(Qt::transparent);
    return nothing;
}

} // namespace roamlet
