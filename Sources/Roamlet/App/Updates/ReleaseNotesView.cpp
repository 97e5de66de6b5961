// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/ReleaseNotesView.h"

#include "Platform/Update.h"

#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// More than anybody reads, and little enough to be laid out at once.
constexpr qsizetype longestNotes = 100'000;

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
    switch (notes.format) {
    case ReleaseNotes::Format::Html:
        setHtml(text);
        break;
    case ReleaseNotes::Format::Markdown:
        document()->setMarkdown(text, QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectGitHub) |
                                          QTextDocument::MarkdownNoHTML);
        break;
    case ReleaseNotes::Format::Plain:
        setPlainText(text);
        break;
    }
    takeColorsAway();
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

void ReleaseNotesView::takeColorsAway()
{
    QTextFrameFormat frame = document()->rootFrame()->frameFormat();
    frame.clearBackground();
    document()->rootFrame()->setFrameFormat(frame);
    struct Part {
        int start;
        int end;
        QTextCharFormat format;
    };
    QList<Part> parts;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        format.clearBackground();
        QTextCursor(block).setBlockFormat(format);
        for (auto each = block.begin(); !each.atEnd(); ++each) {
            const QTextFragment fragment = each.fragment();
            parts.append({.start = fragment.position(),
                          .end = fragment.position() + fragment.length(),
                          .format = fragment.charFormat()});
        }
    }
    for (Part &part : parts) {
        part.format.clearBackground();
        if (part.format.isAnchor())
            part.format.setForeground(palette().link());
        else
            part.format.clearForeground();
        QTextCursor cursor(document());
        cursor.setPosition(part.start);
        cursor.setPosition(part.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(part.format);
    }
}

} // namespace roamlet
