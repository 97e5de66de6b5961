// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowDelegate.h"

#include "App/Look/ForeignText.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Tables/SearchMatches.h"
#include "App/Tables/TableHeader.h"
#include "App/Tables/TableModel.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextCharFormat>
#include <QTextLayout>
#include <QTreeView>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// In lines of text: what a title keeps beside its site, and how wide its column gets before the whole
/// address has room there.
constexpr double leastTitle = 16;
/// Of a title's cell, what an address takes at most before the title has all that it needs.
constexpr double addressShare = 0.46;

/// The address as people know it: without "https://" and "www.".
QString shownAddress(const QString &url)
{
    for (const QLatin1StringView scheme : {"https://"_L1, "http://"_L1}) {
        if (!url.startsWith(scheme, Qt::CaseInsensitive))
            continue;
        const QString rest = url.sliced(scheme.size());
        return rest.startsWith("www."_L1, Qt::CaseInsensitive) ? rest.sliced(4) : rest;
    }
    return url;
}

/// The address behind the name of its site.
QString pathOf(const QString &url)
{
    const QString address = shownAddress(url);
    const qsizetype slash = address.indexOf(u'/');
    return slash < 0 ? QString() : address.sliced(slash);
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// The width of the widest digit where they differ, or else 0.
int digitCell(const QFont &font)
{
    // A list asks for the same one all the time.
    static QFont known;
    static std::optional<int> cell;
    if (cell && known == font)
        return *cell;
    const QFontMetrics metrics(font);
    int least = metrics.horizontalAdvance(u'0');
    int most = least;
    for (char16_t digit = u'1'; digit <= u'9'; ++digit) {
        const int width = metrics.horizontalAdvance(QChar(digit));
        least = std::min(least, width);
        most = std::max(most, width);
    }
    known = font;
    cell = least == most ? 0 : most;
    return *cell;
}

/// A number or date in pieces: each digit by itself where digits differ in width, what lies between them, and
/// all of a text that is read from right to left, whole.
QStringList tabularPieces(const QFont &font, const QString &text)
{
    if (text.isRightToLeft() || digitCell(font) == 0)
        return {text};
    QStringList pieces;
    for (const QChar c : text) {
        if (pieces.isEmpty() || isDigit(c) || isDigit(pieces.last().back()))
            pieces.append(QString(c));
        else
            pieces.last().append(c);
    }
    return pieces;
}

int pieceWidth(const QFont &font, const QString &piece)
{
    return piece.size() == 1 && isDigit(piece.front()) && digitCell(font) > 0
               ? digitCell(font)
               : QFontMetrics(font).horizontalAdvance(piece);
}

} // namespace

void drawMarkedText(QPainter &painter, const QRect &place, Qt::LayoutDirection direction, const QString &text,
                    const QColor &ink, const MarkedWords &marked)
{
    painter.setPen(ink);
    const QList<TextRange> matches =
        marked.words.isEmpty() ? QList<TextRange>() : searchMatches(text, marked.words);
    const bool isMirrored = direction == Qt::RightToLeft;
    if (matches.isEmpty()) {
        painter.setLayoutDirection(Qt::LayoutDirectionAuto);
        painter.drawText(place,
                         static_cast<int>(Qt::AlignVCenter | Qt::AlignAbsolute |
                                          (isMirrored ? Qt::AlignRight : Qt::AlignLeft)) |
                             Qt::TextSingleLine,
                         text);
        return;
    }
    QTextLayout layout(text, painter.font(), painter.device());
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    layout.setTextOption(option);
    QTextCharFormat inked;
    inked.setForeground(marked.ink);
    QList<QTextLayout::FormatRange> formats;
    for (const TextRange &match : matches)
        formats.append({static_cast<int>(match.begin), static_cast<int>(match.length), inked});
    layout.setFormats(formats);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setNumColumns(static_cast<int>(text.size()));
    layout.endLayout();
    const qreal width = line.naturalTextWidth();
    const QPointF origin(isMirrored ? place.right() + 1 - width : place.left(),
                         place.top() + ((place.height() - line.height()) / 2));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(marked.ground);
    const qreal radius = line.height() / 6;
    constexpr qreal air = 1.5;
    for (const TextRange &match : matches) {
        const qreal begin = line.cursorToX(static_cast<int>(match.begin));
        const qreal end = line.cursorToX(static_cast<int>(match.begin + match.length));
        painter.drawRoundedRect(QRectF(origin.x() + std::min(begin, end) - air, origin.y(),
                                       std::abs(end - begin) + (2 * air), line.height()),
                                radius, radius);
    }
    painter.restore();
    painter.setPen(ink);
    layout.draw(&painter, origin);
}

int tabularWidth(const QFont &font, const QString &text)
{
    int width = 0;
    for (const QString &piece : tabularPieces(font, text))
        width += pieceWidth(font, piece);
    return width;
}

void drawTabularText(QPainter &painter, const QRect &place, Qt::LayoutDirection direction,
                     const QString &text)
{
    const QFont font = painter.font();
    const QFontMetrics metrics = painter.fontMetrics();
    int x = direction == Qt::RightToLeft ? place.left() : place.right() + 1 - tabularWidth(font, text);
    const int baseline = place.top() + ((place.height() - metrics.height()) / 2) + metrics.ascent();
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    for (const QString &piece : tabularPieces(font, text)) {
        const int width = pieceWidth(font, piece);
        // A narrow digit ends where a wide one would.
        painter.drawText(x + width - metrics.horizontalAdvance(piece), baseline, piece);
        x += width;
    }
}

/// One cell while it is painted.
struct RowDelegate::Cell {
    QPainter &painter;
    const QStyleOptionViewItem &option;
    const QModelIndex &index;
    const TableRow &row;
    const RowTree::Node &node;
    /// Where text and icon go.
    QRect place;
    const Ground &ground;
    /// The texts that are not on a selection have one quiet ink for all states.
    QColor ink;
    QColor quiet;
    QColor mark;

    QRect visual(const QRect &logical) const
    {
        return QStyle::visualRect(option.direction, option.rect, logical);
    }
};

RowDelegate::RowDelegate(const TableModel &model, const TableHeader &header, const Look &look,
                         QObject *parent)
    : QStyledItemDelegate(parent), m_model(model), m_header(header), m_look(look)
{
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    // The first row would decide about all.
    const auto *const view = qobject_cast<const QTreeView *>(option.widget);
    const bool isBand = m_model.isBand(index) && (view == nullptr || !view->uniformRowHeights());
    return {0, isBand ? m_look.measures.sectionHeight : m_look.measures.rowHeight};
}

int RowDelegate::iconAndGap() const
{
    return m_look.measures.iconSide + m_look.measures.gapAfterIcon;
}

bool RowDelegate::isWide(int titleWidth) const
{
    return titleWidth >= m_header.widestTitle();
}

QString RowDelegate::companion(const TableRow &row, int titleWidth) const
{
    if (row.kind != TableRow::Kind::Link || row.title.isEmpty() || row.title == row.url)
        return {};
    // Nobody sees more of it, and looking through megabytes would take its time.
    const QString url = ForeignText::oneLine(row.url);
    if (m_search.site)
        return pathOf(url);
    const QString address = shownAddress(url);
    if (!m_search.words.isEmpty()) {
        for (const QString &text : {address, url}) {
            if (!searchMatches(text, m_search.words).isEmpty())
                return text;
        }
    }
    return isWide(titleWidth) ? address : ForeignText::oneLine(row.site);
}

RowDelegate::TitleLayout RowDelegate::titleLayout(const TableRow &row, const QString &title, int width,
                                                  int cellWidth) const
{
    const QFontMetrics metrics(m_look.textFont);
    const int gap = m_look.measures.gapAfterIcon;
    const int wanted = metrics.horizontalAdvance(title);
    const QString companion = this->companion(row, cellWidth);
    TitleLayout alone{
        .companion = {}, .titleWidth = std::clamp(wanted, 0, std::max(width, 0)), .isWhole = wanted <= width};
    if (companion.isEmpty())
        return alone;
    const int companionWanted = metrics.horizontalAdvance(companion);
    const bool isSite = companion == ForeignText::oneLine(row.site);
    // A site is shown whole or not at all; an address gives way as a title does.
    const int share = isSite ? companionWanted : std::min(companionWanted, qRound(width * addressShare));
    const int titleWidth = std::min(wanted, width - gap - share);
    const int least = std::min(wanted, m_look.measures.units(leastTitle));
    const bool isTheReason = !m_search.words.isEmpty() && !isSite &&
                             searchMatches(title, m_search.words).isEmpty() &&
                             !searchMatches(companion, m_search.words).isEmpty();
    if (titleWidth < least && !isTheReason)
        return alone;
    return {.companion = companion,
            .titleWidth = std::max(titleWidth, 0),
            .isWhole = wanted <= titleWidth && companionWanted <= width - gap - titleWidth};
}

void RowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isActive = option.widget == nullptr || option.widget->isActiveWindow();
    const Ground &ground = m_look.list.of(isSelected, isActive);
    const RowTree::Node &node = m_model.tree()->node(TableModel::numberOf(index));
    const QRect logical = option.rect.adjusted(m_header.leadingPadding(index.column()), 0,
                                               -m_header.trailingPadding(index.column()), 0);
    const Cell cell{.painter = *painter,
                    .option = option,
                    .index = index,
                    .row = node.row,
                    .node = node,
                    .place = logical,
                    .ground = ground,
                    .ink = ground.ink,
                    .quiet = ground.quiet,
                    .mark = isSelected ? m_look.matchSelected : m_look.match};
    if (logical.width() <= 0)
        return;
    painter->save();
    painter->setFont(option.font);
    const TableColumn::Content content = m_model.columns()[index.column()].content;
    switch (content) {
    case TableColumn::Content::Title:
        paintTitle(cell);
        break;
    case TableColumn::Content::Date:
    case TableColumn::Content::Visits:
        paintNumber(cell, index.data().toString());
        break;
    case TableColumn::Content::Folder:
        paintText(cell, index.data().toString());
        break;
    case TableColumn::Content::Source:
        paintSource(cell, index.data().toString());
        break;
    }
    painter->restore();
}

void RowDelegate::paintTitle(const Cell &cell) const
{
    const Measures &measures = m_look.measures;
    QRect rest = cell.place;
    if (const auto icon = cell.index.data(Qt::DecorationRole).value<QIcon>(); !icon.isNull()) {
        const QRect iconPlace = squareIn(rest, rest.left(), measures.iconSide);
        const bool isOnHighlight = &cell.ground == &m_look.list.selected;
        icon.paint(&cell.painter, cell.visual(iconPlace), Qt::AlignCenter,
                   isOnHighlight ? QIcon::Selected : QIcon::Normal);
    }
    rest.setLeft(rest.left() + iconAndGap());
    if (rest.width() <= 0)
        return;
    const QFontMetrics metrics = cell.painter.fontMetrics();
    const MarkedWords marked{.words = m_search.words, .ground = cell.mark, .ink = cell.ink};
    const auto draw = [&](const QRect &place, const QString &text, const QColor &ink,
                          const MarkedWords &words = {}) {
        drawMarkedText(cell.painter, cell.visual(place), cell.option.direction, text, ink, words);
    };
    const QString title = cell.index.data().toString();
    const int gap = measures.gapAfterIcon;
    const int wanted = metrics.horizontalAdvance(title);
    if (cell.row.kind == TableRow::Kind::Folder) {
        const QString count = m_model.localText().number(cell.node.childCount);
        const QFont &small = m_look.smallFont;
        const int countWidth = tabularWidth(small, count);
        const int titleWidth = std::clamp(rest.width() - gap - countWidth, 0, wanted);
        draw(QRect(rest.topLeft(), QSize(titleWidth, rest.height())),
             ForeignText::fitted(title, metrics, titleWidth), cell.ink);
        cell.painter.setFont(small);
        cell.painter.setPen(cell.quiet);
        drawTabularText(
            cell.painter,
            cell.visual(QRect(rest.left() + titleWidth + gap, rest.top(), countWidth, rest.height())),
            cell.option.direction, count);
        return;
    }

    const TitleLayout layout = titleLayout(cell.row, title, rest.width(), cell.option.rect.width());
    draw(QRect(rest.topLeft(), QSize(layout.titleWidth, rest.height())),
         fittedAroundMatch(title, m_search.words, metrics, layout.titleWidth), cell.ink, marked);
    if (layout.companion.isEmpty())
        return;
    rest.setLeft(rest.left() + layout.titleWidth + gap);
    draw(rest, fittedAroundMatch(layout.companion, m_search.words, metrics, rest.width()), cell.quiet,
         marked);
}

void RowDelegate::paintText(const Cell &cell, const QString &text) const
{
    const QString shown =
        fittedAroundMatch(text, m_search.words, cell.painter.fontMetrics(), cell.place.width());
    drawMarkedText(cell.painter, cell.visual(cell.place), cell.option.direction, shown, cell.quiet,
                   {.words = m_search.words, .ground = cell.mark, .ink = cell.ink});
}

void RowDelegate::paintNumber(const Cell &cell, const QString &text) const
{
    cell.painter.setPen(cell.quiet);
    const bool fits = tabularWidth(cell.painter.font(), text) <= cell.place.width();
    const QString shown =
        fits ? text : ForeignText::fitted(text, cell.painter.fontMetrics(), cell.place.width());
    drawTabularText(cell.painter, cell.visual(cell.place), cell.option.direction, shown);
}

void RowDelegate::paintSource(const Cell &cell, const QString &label) const
{
    const int side = m_look.measures.iconSide;
    const QRect &place = cell.place;
    if (const auto icon = cell.index.data(Qt::DecorationRole).value<QIcon>(); !icon.isNull()) {
        icon.paint(&cell.painter, cell.visual(squareIn(place, place.left(), side)));
    }
    const QRect rest = place.adjusted(iconAndGap(), 0, 0, 0);
    // Where there is only room for a letter or two, the icon alone says more.
    if (m_header.isNarrow() || rest.width() < m_look.measures.unit)
        return;
    drawMarkedText(cell.painter, cell.visual(rest), cell.option.direction,
                   ForeignText::fitted(label, cell.painter.fontMetrics(), rest.width()), cell.quiet);
}

int RowDelegate::naturalWidth(const QModelIndex &index) const
{
    const TableColumn::Content content = m_model.columns()[index.column()].content;
    const QString text = index.data().toString();
    const int padding = m_header.leadingPadding(index.column()) + m_header.trailingPadding(index.column());
    const bool hasIcon = content == TableColumn::Content::Title || content == TableColumn::Content::Source;
    const bool isNumber = content == TableColumn::Content::Date || content == TableColumn::Content::Visits;
    const QFont &font = m_look.textFont;
    const int width = isNumber ? tabularWidth(font, text) : QFontMetrics(font).horizontalAdvance(text);
    return padding + (hasIcon ? iconAndGap() : 0) + width;
}

bool RowDelegate::isCut(const QModelIndex &index, int width) const
{
    const TableRow &row = m_model.rowAt(index);
    const TableColumn::Content content = m_model.columns()[index.column()].content;
    if (content == TableColumn::Content::Title && row.kind == TableRow::Kind::Link) {
        const int padding =
            m_header.leadingPadding(index.column()) + m_header.trailingPadding(index.column());
        return !titleLayout(row, index.data().toString(), width - padding - iconAndGap(), width).isWhole;
    }
    const bool isSource = content == TableColumn::Content::Source;
    return naturalWidth(index) > width || (isSource && m_header.isNarrow());
}

} // namespace roamlet
