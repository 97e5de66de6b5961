// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowDelegate.h"

#include "App/Look/Look.h"
#include "App/Tables/CellText.h"
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

bool hasDigit(QStringView text)
{
    return std::ranges::any_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// The width of the widest digit where they differ, or else 0.
int digitCell(const QFontMetrics &metrics)
{
    int least = metrics.horizontalAdvance(u'0');
    int most = least;
    for (char16_t digit = u'1'; digit <= u'9'; ++digit) {
        const int width = metrics.horizontalAdvance(QChar(digit));
        least = std::min(least, width);
        most = std::max(most, width);
    }
    return least == most ? 0 : most;
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
    const QFontMetrics metrics(font);
    const int cell = hasDigit(text) && !text.isRightToLeft() ? digitCell(metrics) : 0;
    if (cell == 0)
        return metrics.horizontalAdvance(text);
    int width = 0;
    for (const QChar c : text)
        width += c >= u'0' && c <= u'9' ? cell : metrics.horizontalAdvance(c);
    return width;
}

void drawTabularText(QPainter &painter, const QRect &place, Qt::LayoutDirection direction,
                     const QString &text)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const bool isMirrored = direction == Qt::RightToLeft;
    const int cell = hasDigit(text) && !text.isRightToLeft() ? digitCell(metrics) : 0;
    if (cell == 0) {
        painter.setLayoutDirection(Qt::LayoutDirectionAuto);
        painter.drawText(place,
                         static_cast<int>(Qt::AlignVCenter | Qt::AlignAbsolute |
                                          (isMirrored ? Qt::AlignLeft : Qt::AlignRight)) |
                             Qt::TextSingleLine,
                         text);
        return;
    }
    const int width = tabularWidth(painter.font(), text);
    int x = isMirrored ? place.left() : place.right() + 1 - width;
    const int baseline = place.top() + ((place.height() - metrics.height()) / 2) + metrics.ascent();
    for (const QChar c : text) {
        const bool isDigit = c >= u'0' && c <= u'9';
        const int advance = metrics.horizontalAdvance(c);
        painter.drawText(isDigit ? x + cell - advance : x, baseline, QString(c));
        x += isDigit ? cell : advance;
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

QSize RowDelegate::sizeHint(const QStyleOptionViewItem & /*option*/, const QModelIndex &index) const
{
    const bool isBand = m_model.isBand(index);
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
    if (m_search.site)
        return CellText::oneLine(pathOf(row.url));
    const bool isFoundInAddress =
        !m_search.words.isEmpty() && !searchMatches(row.url, m_search.words).isEmpty();
    return CellText::oneLine(isFoundInAddress || isWide(titleWidth) ? shownAddress(row.url) : row.site);
}

void RowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isActive = option.widget == nullptr || option.widget->isActiveWindow();
    const RowGround &list = m_look.list;
    const Ground &ground = !isSelected ? static_cast<const Ground &>(list)
                           : isActive  ? list.selected
                                       : list.selectedInactive;
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
        const QRect iconPlace(rest.left(), rest.top() + ((rest.height() - measures.iconSide) / 2),
                              measures.iconSide, measures.iconSide);
        icon.paint(&cell.painter, cell.visual(iconPlace));
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
        QFont small = m_look.smallFont;
        const int countWidth = tabularWidth(small, count);
        const int titleWidth = std::clamp(rest.width() - gap - countWidth, 0, wanted);
        draw(QRect(rest.topLeft(), QSize(titleWidth, rest.height())),
             CellText::fitted(title, metrics, titleWidth), cell.ink);
        cell.painter.setFont(small);
        cell.painter.setPen(cell.quiet);
        drawTabularText(
            cell.painter,
            cell.visual(QRect(rest.left() + titleWidth + gap, rest.top(), countWidth, rest.height())),
            cell.option.direction, count);
        return;
    }

    const QString companion = this->companion(cell.row, cell.option.rect.width());
    const bool isSite = companion == cell.row.site;
    const bool isMarked = !isSite && !searchMatches(companion, m_search.words).isEmpty();
    const int companionWanted = metrics.horizontalAdvance(companion);
    const int least = std::min(wanted, measures.units(leastTitle));
    // A site is shown whole or not at all; an address gives way as a title does.
    const int share =
        isSite ? companionWanted : std::min(companionWanted, qRound(rest.width() * addressShare));
    int titleWidth = std::min(wanted, rest.width() - gap - share);
    const bool isShown =
        !companion.isEmpty() &&
        (titleWidth >= least || (isMarked && searchMatches(title, m_search.words).isEmpty()));
    if (!isShown)
        titleWidth = std::min(wanted, rest.width());
    titleWidth = std::max(titleWidth, 0);
    draw(QRect(rest.topLeft(), QSize(titleWidth, rest.height())),
         fittedAroundMatch(title, m_search.words, metrics, titleWidth), cell.ink, marked);
    if (!isShown)
        return;
    rest.setLeft(rest.left() + titleWidth + gap);
    draw(rest, fittedAroundMatch(companion, m_search.words, metrics, rest.width()), cell.quiet, marked);
}

void RowDelegate::paintText(const Cell &cell, const QString &text) const
{
    const QString shown = CellText::fitted(text, cell.painter.fontMetrics(), cell.place.width());
    drawMarkedText(cell.painter, cell.visual(cell.place), cell.option.direction, shown, cell.quiet,
                   {.words = m_search.words, .ground = cell.mark, .ink = cell.ink});
}

void RowDelegate::paintNumber(const Cell &cell, const QString &text) const
{
    cell.painter.setPen(cell.quiet);
    const bool fits = tabularWidth(cell.painter.font(), text) <= cell.place.width();
    const QString shown =
        fits ? text : CellText::fitted(text, cell.painter.fontMetrics(), cell.place.width());
    drawTabularText(cell.painter, cell.visual(cell.place), cell.option.direction, shown);
}

void RowDelegate::paintSource(const Cell &cell, const QString &label) const
{
    const int side = m_look.measures.iconSide;
    const QRect &place = cell.place;
    if (const auto icon = cell.index.data(Qt::DecorationRole).value<QIcon>(); !icon.isNull()) {
        const QRect iconPlace(place.left(), place.top() + ((place.height() - side) / 2), side, side);
        icon.paint(&cell.painter, cell.visual(iconPlace));
    }
    const QRect rest = place.adjusted(iconAndGap(), 0, 0, 0);
    // Where there is only room for a letter or two, the icon alone says more.
    if (m_header.isNarrow() || rest.width() < m_look.measures.units(1))
        return;
    drawMarkedText(cell.painter, cell.visual(rest), cell.option.direction,
                   CellText::fitted(label, cell.painter.fontMetrics(), rest.width()), cell.quiet);
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
    const bool isSource = m_model.columns()[index.column()].content == TableColumn::Content::Source;
    return naturalWidth(index) > width || (isSource && m_header.isNarrow());
}

} // namespace roamlet
