// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/RowTree.h"

#include <QColor>
#include <QStringList>
#include <QStyledItemDelegate>

#include <optional>

namespace roamlet
{

struct Ground;
struct Look;
class TableHeader;
class TableModel;

/// What was searched for in the rows that are shown.
struct ShownSearch {
    QStringList words;
    /// The rows are those of this site only, which need not be said in each of them.
    std::optional<QString> site;

    bool operator==(const ShownSearch &) const = default;
};

/// Draws the cells of links and folders. What lies behind them, such as the selection, is the view's.
class RowDelegate final : public QStyledItemDelegate
{
public:
    /// All of them outlive it. `look` changes with the theme.
    RowDelegate(const TableModel &model, const TableHeader &header, const Look &look,
                QObject *parent = nullptr);

    void setSearch(const ShownSearch &search) { m_search = search; }

    /// Only the height counts: columns are as wide as the header has them.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// How wide a cell would have to be to show all of it.
    int naturalWidth(const QModelIndex &index) const;
    /// Whether a cell of this width leaves something out.
    bool isCut(const QModelIndex &index, int width) const;
    /// What accompanies the title of a row: the site, or as much of the address as tells why the row is here.
    /// Empty where nothing does.
    QString companion(const TableRow &row, int titleWidth) const;

private:
    struct Cell;

    /// What a cell of a title shows, and how wide the title is in it.
    struct TitleLayout {
        QString companion;
        int titleWidth = 0;
        bool isWhole = true;
    };
    /// `width` is what icon and words share, `cellWidth` the whole cell's.
    TitleLayout titleLayout(const TableRow &row, const QString &title, int width, int cellWidth) const;

    void paintTitle(const Cell &cell) const;
    void paintText(const Cell &cell, const QString &text) const;
    void paintNumber(const Cell &cell, const QString &text) const;
    void paintSource(const Cell &cell, const QString &label) const;
    int iconAndGap() const;
    bool isWide(int titleWidth) const;

    const TableModel &m_model;
    const TableHeader &m_header;
    const Look &m_look;
    ShownSearch m_search;
};

/// The words that were searched for, what lies behind them, and what they are written with.
struct MarkedWords {
    QStringList words;
    QColor ground;
    QColor ink;
};

/// Draws text in the direction of its own letters, at the leading edge of `place`.
void drawMarkedText(QPainter &painter, const QRect &place, Qt::LayoutDirection direction, const QString &text,
                    const QColor &ink, const MarkedWords &marked = {});
/// Draws a number or a date at the trailing edge, each digit as wide as the others.
void drawTabularText(QPainter &painter, const QRect &place, Qt::LayoutDirection direction,
                     const QString &text);
/// How wide that gets.
int tabularWidth(const QFont &font, const QString &text);

} // namespace roamlet
