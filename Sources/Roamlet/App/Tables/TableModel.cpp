// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableModel.h"

#include "App/Look/ForeignText.h"
#include "App/Tables/RowIcons.h"

#include <QMimeData>
#include <QUrl>

#include <memory>
#include <unordered_set>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Qt keeps remembered indexes in a hash table by their plain identifiers, and taking one out of a row of
/// neighbours there moves all the others. With thousands of selected sections that takes minutes, so numbers
/// that follow each other become identifiers that do not: multiplied by an odd number, and back by its
/// inverse.
constexpr quintptr scatter = static_cast<quintptr>(0x9E37'79B9'7F4A'7C15);

/// Newton's method: each step doubles the number of right bits.
constexpr quintptr inverse(quintptr odd)
{
    quintptr result = odd;
    for (int step = 0; step < 6; ++step)
        result *= 2 - odd * result;
    return result;
}
static_assert(scatter * inverse(scatter) == 1);

constexpr quintptr scattered(RowTree::Number number)
{
    return number * scatter;
}

constexpr RowTree::Number gathered(quintptr identifier)
{
    return identifier * inverse(scatter);
}

} // namespace

TableModel::TableModel(QList<TableColumn> columns, LocalText localText, QObject *parent)
    : QAbstractItemModel(parent),
      m_columns(std::move(columns)),
      m_localText(std::move(localText)),
      m_tree(std::make_shared<RowTree>())
{
}

void TableModel::setTree(SharedRowTree tree)
{
    beginResetModel();
    m_tree = std::move(tree);
    endResetModel();
}

RowTree::Number TableModel::numberOf(const QModelIndex &index)
{
    return index.isValid() ? gathered(index.internalId()) : RowTree::root;
}

QModelIndex TableModel::indexOf(RowTree::Number number, int column) const
{
    if (number == RowTree::root)
        return {};
    return createIndex(m_tree->node(number).position, column, scattered(number));
}

QModelIndex TableModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const RowTree::Number first = m_tree->node(numberOf(parent)).firstChild;
    return createIndex(row, column, scattered(first + static_cast<RowTree::Number>(row)));
}

QModelIndex TableModel::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(m_tree->node(numberOf(child)).parent) : QModelIndex();
}

bool TableModel::isBand(const RowTree::Node &node)
{
    return node.row.kind == TableRow::Kind::Section ||
           (node.depth == 0 && node.row.kind == TableRow::Kind::Folder &&
            node.row.id == BookmarkNode::idOfSource(node.row.source));
}

QStringList TableModel::mimeTypes() const
{
    return {u"text/uri-list"_s, u"text/html"_s, u"text/plain"_s};
}

QMimeData *TableModel::mimeData(const QModelIndexList &indexes) const
{
    // Every row comes once for each column.
    std::unordered_set<RowTree::Number> links;
    for (const QModelIndex &index : indexes) {
        if (index.isValid() && rowAt(index).kind == TableRow::Kind::Link)
            links.insert(numberOf(index));
    }
    if (links.empty())
        return nullptr;
    QList<QUrl> urls;
    QStringList html;
    QStringList plain;
    for (const RowTree::Number number : m_tree->inReadingOrder(std::move(links))) {
        const TableRow *row = &m_tree->row(number);
        const QUrl url(row->url);
        if (url.isValid() && !url.isRelative())
            urls.append(url);
        const QString &title = row->title.isEmpty() ? row->url : row->title;
        html.append(u"<a href=\""_s % row->url.toHtmlEscaped() % u"\">"_s % title.toHtmlEscaped() %
                    u"</a>"_s);
        plain.append(row->url);
    }
    auto data = std::make_unique<QMimeData>();
    data->setUrls(urls);
    data->setHtml(html.join(u"<br>\n"_s));
    data->setText(plain.join(u'\n'));
    return data.release();
}

int TableModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : m_tree->node(numberOf(parent)).childCount;
}

int TableModel::columnCount(const QModelIndex & /*parent*/) const
{
    return static_cast<int>(m_columns.size());
}

bool TableModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

Qt::ItemFlags TableModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    const RowTree::Node &node = m_tree->node(numberOf(index));
    Qt::ItemFlags result = Qt::ItemIsEnabled;
    // Headings can be reached with the keyboard, but there is nothing to be done with them.
    if (node.row.kind != TableRow::Kind::Section)
        result |= Qt::ItemIsSelectable;
    if (node.row.kind == TableRow::Kind::Link)
        result |= Qt::ItemNeverHasChildren | Qt::ItemIsDragEnabled;
    return result;
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const RowTree::Node &node = m_tree->node(numberOf(index));
    const TableColumn::Content content = m_columns[index.column()].content;
    // The heading of a section and the name of a folder stand alone.
    if (node.row.kind != TableRow::Kind::Link && content != TableColumn::Content::Title &&
        (node.row.kind == TableRow::Kind::Section || content != TableColumn::Content::Date))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(node, content);
    case Qt::DecorationRole:
        return icon(node, content);
    case Qt::ToolTipRole:
        return toolTip(node, content);
    case Qt::AccessibleTextRole:
        return accessibleText(node, content);
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_columns.size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return m_columns[section].title;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignLeading | Qt::AlignVCenter);
    default:
        return {};
    }
}

bool TableModel::isWithinADay(const RowTree::Node &node) const
{
    const VisitStrip &visits = m_tree->visits(node.parent);
    return !visits.ticks.empty() && visits.unit == VisitStrip::Unit::Hour;
}

QString TableModel::text(const RowTree::Node &node, TableColumn::Content content) const
{
    const TableRow &row = node.row;
    switch (content) {
    case TableColumn::Content::Title:
        // A bookmark without a name is still a row that can be read.
        return ForeignText::oneLine(row.title.isEmpty() ? row.url : row.title);
    case TableColumn::Content::Date:
        if (!row.date)
            return {};
        // The heading says which day it is.
        return isWithinADay(node) ? m_localText.timeOfDay(*row.date) : m_localText.briefDate(*row.date);
    case TableColumn::Content::Visits:
        return m_localText.number(row.visits);
    case TableColumn::Content::Folder:
        return ForeignText::oneLine(row.folder);
    case TableColumn::Content::Source:
        return ForeignText::oneLine(row.source.label());
    }
    return {};
}

QString TableModel::accessibleText(const RowTree::Node &node, TableColumn::Content content) const
{
    // Whoever hears it does not see the heading.
    if (content == TableColumn::Content::Date && node.row.date)
        return m_localText.fullDate(*node.row.date);
    QString shown = text(node, content);
    if (content != TableColumn::Content::Title || node.row.kind == TableRow::Kind::Link)
        return shown;
    const QString count = m_localText.number(node.childCount);
    //: How many rows a section or a folder has. %1 is the number.
    const QString items =
        node.childCount == 1 ? tr("1 item") : tr("%1 items", nullptr, node.childCount).arg(count);
    if (node.row.kind == TableRow::Kind::Folder)
        //: Read aloud: the name of a folder, and how many items it has.
        return tr("%1, folder, %2").arg(shown, items);
    //: Read aloud: the heading of a section, and how many items it has.
    return tr("%1, %2").arg(shown, items);
}

QString TableModel::toolTip(const RowTree::Node &node, TableColumn::Content content) const
{
    const TableRow &row = node.row;
    if (content == TableColumn::Content::Date)
        return row.date ? m_localText.fullDate(*row.date) : QString();
    const QString shown = text(node, content);
    if (content == TableColumn::Content::Title && row.kind == TableRow::Kind::Link && row.url != row.title)
        return ForeignText::toolTip({shown, row.url});
    return ForeignText::toolTip({shown});
}

QVariant TableModel::icon(const RowTree::Node &node, TableColumn::Content content) const
{
    const TableRow &row = node.row;
    if (m_icons == nullptr)
        return {};
    if (content == TableColumn::Content::Source)
        return m_icons->source(row.source);
    if (content != TableColumn::Content::Title)
        return {};
    switch (row.kind) {
    case TableRow::Kind::Section: {
        const QIcon &known = m_icons->siteIfKnown(row.site);
        return known.isNull() ? QVariant() : QVariant(known);
    }
    case TableRow::Kind::Folder:
        return isBand(node) ? m_icons->source(row.source) : m_icons->folder();
    case TableRow::Kind::Link:
        return m_icons->site(row.site);
    }
    return {};
}

} // namespace roamlet
