// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/ReleaseNotesView.h"

#include "Platform/Update.h"

#include <QImage>
#include <QLatin1StringView>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>

#include <algorithm>
#include <utility>
#include <vector>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// More than anybody reads.
constexpr qsizetype longestNotes = 20'000;

/// Whether a text has so many marks that laying it out would keep the window waiting.
bool isHeavy(const QString &text)
{
    constexpr qsizetype mostMarks = 2'000;
    return std::ranges::count_if(text, [](QChar each) { return "\n*_`[<&"_L1.contains(each); }) > mostMarks;
}

/// Tables take twice as long to lay out with each level of nesting: their rows become lines. What is of no
/// use without colours and pictures goes, too.
QString withoutTables(QString html)
{
    using Option = QRegularExpression::PatternOption;
    constexpr auto options = Option::CaseInsensitiveOption | Option::DotMatchesEverythingOption;
    static const QRegularExpression hidden(u"<(style|script|title)\\b.*?(</\\1\\s*>|$)|<img\\b[^>]*>"_s,
                                           options);
    static const QRegularExpression row(u"<tr\\b[^>]*>"_s, options);
    static const QRegularExpression rest(u"</?(table|caption|thead|tbody|tfoot|tr|td|th|col)\\b[^>]*>"_s,
                                         options);
    return html.remove(hidden).replace(row, u"<br>"_s).replace(rest, u" "_s);
}

/// The author knows nothing of the ground that the notes are shown on.
void removeColours(QTextDocument &document)
{
    QTextFrameFormat frame = document.rootFrame()->frameFormat();
    frame.clearBackground();
    document.rootFrame()->setFrameFormat(frame);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        QTextBlockFormat ground = block.blockFormat();
        ground.clearBackground();
        cursor.setBlockFormat(ground);
        // Pieces that become alike are joined, and an iterator would be lost: first all of them are looked
        // for.
        std::vector<QTextLayout::FormatRange> inks;
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextFragment fragment = piece.fragment();
            QTextCharFormat ink = fragment.charFormat();
            ink.clearBackground();
            if (!ink.isAnchor())
                ink.clearForeground();
            inks.push_back({.start = fragment.position(), .length = fragment.length(), .format = ink});
        }
        for (const QTextLayout::FormatRange &ink : inks) {
            cursor.setPosition(ink.start);
            cursor.setPosition(ink.start + ink.length, QTextCursor::KeepAnchor);
            cursor.setCharFormat(ink.format);
        }
    }
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
    if (notes.format == ReleaseNotes::Format::Plain || isHeavy(text)) {
        setPlainText(text);
    } else if (notes.format == ReleaseNotes::Format::Html) {
        setHtml(withoutTables(text));
        removeColours(*document());
    } else {
        // Without tables, the layout of which takes longest.
        document()->setMarkdown(text,
                                QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectCommonMark) |
                                    QTextDocument::MarkdownNoHTML);
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
