// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/DetailHeader.h"

#include "App/Look/BusyBar.h"
#include "App/Look/ElidedLabel.h"
#include "App/Look/ForeignText.h"
#include "App/Look/Look.h"
#include "App/Look/RoamletStyle.h"
#include "App/Look/Symbol.h"
#include "App/Window/GroupByButton.h"
#include "App/Window/PaneText.h"
#include "App/Window/ReloadButton.h"
#include "App/Window/SearchField.h"

#include <QActionGroup>
#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

// All in heights of a line.
constexpr double gap = 0.3;
constexpr double endMargin = 0.6;
constexpr double gapAfterSearch = 0.4;
/// What the title and the subtitle keep while something else can still get shorter.
constexpr double usualWords = 12;
/// What they keep at all.
constexpr double fewestWords = 4;

} // namespace

DetailHeader::DetailHeader(QWidget *parent)
    : QWidget(parent),
      m_sidebar(new HeaderButton(u"sidebar.leading"_s, tr("Sidebar"), this)),
      m_title(new ElidedLabel(this)),
      m_subtitle(new ElidedLabel(this)),
      m_groupBy(new GroupByButton(this)),
      m_groupingMenu(new QMenu(tr("Group By"), this)),
      m_groupings(new QActionGroup(this)),
      m_reload(new ReloadButton(this)),
      m_export(new HeaderButton(u"square.and.arrow.up"_s, tr("Export Bookmarks"), this)),
      m_search(new SearchField(this)),
      m_menuButton(new HeaderButton(u"line.3.horizontal"_s, tr("Menu"), this)),
      m_mainMenu(new QMenu(tr("Menu"), this))
{
    m_sidebar->setObjectName(u"sidebarButton"_s);
    m_sidebar->hide();
    m_title->setObjectName(u"listTitle"_s);
    m_subtitle->setObjectName(u"listSubtitle"_s);
    m_groupingMenu->setObjectName(u"groupingMenu"_s);
    m_groupBy->setMenu(m_groupingMenu);
    m_export->setObjectName(u"exportButton"_s);
    m_mainMenu->setObjectName(u"mainMenu"_s);
    m_menuButton->setObjectName(u"menuButton"_s);
    m_menuButton->setMenu(m_mainMenu);
    for (QMenu *menu : {m_groupingMenu, m_mainMenu})
        RoamletStyle::outline(*menu);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    updateLook();

    connect(m_sidebar, &QToolButton::clicked, this, &DetailHeader::sidebarRequested);
    connect(m_groupings, &QActionGroup::triggered, this, [this](const QAction *action) {
        m_groupBy->setChoice(action->text());
        arrange();
        Q_EMIT groupingChosen(static_cast<Grouping>(action->data().toInt()));
    });
    connect(m_reload, &QToolButton::clicked, this, &DetailHeader::reloadRequested);
    connect(m_export, &QToolButton::clicked, this, &DetailHeader::exportRequested);
    connect(m_search, &QLineEdit::textChanged, this, &DetailHeader::searchChanged);
    connect(m_search, &SearchField::searchExpected, this, &DetailHeader::searchExpected);
    connect(m_search, &SearchField::listRequested, this, &DetailHeader::listRequested);
}

QLineEdit *DetailHeader::searchField() const
{
    return m_search;
}

QToolButton *DetailHeader::menuButton() const
{
    return m_menuButton;
}

void DetailHeader::setTitle(const QString &title, const QString &subtitle, Subtitle kind)
{
    m_title->setText(title);
    m_subtitle->setText(subtitle);
    m_subtitleKind = kind;
    updateSubtitle();
    arrange();
}

void DetailHeader::setGroupings(std::optional<GroupedList> list, Grouping current)
{
    for (QAction *action : m_groupings->actions())
        delete action;
    if (list) {
        for (const Grouping grouping : groupingChoices(*list)) {
            QAction *action = m_groupingMenu->addAction(PaneText::label(grouping, *list));
            action->setCheckable(true);
            action->setChecked(grouping == current);
            action->setData(static_cast<int>(grouping));
            m_groupings->addAction(action);
        }
    }
    m_groupBy->setChoice(list ? PaneText::label(current, *list) : QString());
    m_groupBy->setEnabled(list.has_value());
    arrange();
}

void DetailHeader::setReloading(bool isReloading)
{
    m_reload->setReloading(isReloading);
}

bool DetailHeader::isReloading() const
{
    return m_reload->isReloading();
}

void DetailHeader::setCanExport(bool canExport)
{
    m_export->setEnabled(canExport);
}

void DetailHeader::setWork(const QString &work)
{
    if (!work.isEmpty() && m_busy == nullptr) {
        m_busy = new BusyBar(this);
        arrange();
    }
    if (m_busy == nullptr)
        return;
    m_busy->setAccessibleName(work);
    m_busy->setVisible(!work.isEmpty());
}

void DetailHeader::setSidebarButtonShown(bool isShown)
{
    m_sidebar->setVisible(isShown);
    arrange();
}

void DetailHeader::updateLook()
{
    const Look look = Look::of(*this);
    m_title->setFont(look.titleFont);
    m_subtitle->setFont(look.smallFont);
    setPaletteColor(*m_title, QPalette::WindowText, look.list.ink);
    updateSubtitle();
    setFixedHeight(look.measures.headerHeight);
    arrange();
}

void DetailHeader::updateSubtitle()
{
    const Look look = Look::of(*this);
    const bool isProblem = m_subtitleKind == Subtitle::Problem;
    setPaletteColor(*m_subtitle, QPalette::WindowText, isProblem ? look.list.ink : look.list.quiet);
    m_subtitle->setSign(isProblem ? symbolIcon(u"exclamationmark.triangle"_s, look.warningMark) : QIcon());
    const QString problem = isProblem ? m_subtitle->text() : QString();
    m_subtitle->setToolTip(isProblem ? ForeignText::wrappedToolTipOfLines(problem) : QString());
    m_subtitle->setAccessibleDescription(ForeignText::shownBeginning(problem));
}

int DetailHeader::wordsStart() const
{
    const Measures measures(font());
    if (m_sidebar->isHidden())
        return measures.alignmentLine;
    // The button's symbol, not its edge, stands on the line.
    return measures.alignmentLine + m_sidebar->sizeHint().width();
}

int DetailHeader::fixedWidth() const
{
    const Measures measures(font());
    return wordsStart() + m_reload->sizeHint().width() + m_export->sizeHint().width() +
           m_menuButton->sizeHint().width() + (5 * measures.units(gap)) + measures.units(gapAfterSearch) +
           measures.units(endMargin);
}

QSize DetailHeader::sizeHint() const
{
    const Measures measures(font());
    return {fixedWidth() + m_groupBy->widthWhen(false) + m_search->sizeHint().width() +
                measures.units(usualWords),
            measures.headerHeight};
}

QSize DetailHeader::minimumSizeHint() const
{
    const Measures measures(font());
    return {fixedWidth() + m_groupBy->widthWhen(true) + m_search->minimumSizeHint().width() +
                measures.units(fewestWords),
            measures.headerHeight};
}

void DetailHeader::arrange()
{
    const Measures measures(font());
    const int space = measures.units(gap);
    const int free = width() - fixedWidth();
    int search = m_search->sizeHint().width();
    const int words = std::min(std::max(m_title->sizeHint().width(), m_subtitle->sizeHint().width()),
                               measures.units(usualWords));
    const int missing = words + m_groupBy->widthWhen(false) + search - free;
    search = std::clamp(search - missing, m_search->minimumSizeHint().width(), search);
    const bool isCompact = words + m_groupBy->widthWhen(false) + search > free;
    // Only the title is worth a field in which little can be seen of what is typed.
    const int title = std::min(m_title->sizeHint().width(), words);
    search = std::clamp(free - m_groupBy->widthWhen(isCompact) - title, measures.leastSearchWidth, search);
    if (isCompact != m_groupBy->isCompact())
        m_groupBy->setCompact(isCompact);

    int start = 0;
    const auto place = [&](QWidget *widget, int from, const QSize &size) {
        const QRect wanted(QPoint(from, (height() - size.height()) / 2), size);
        widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), wanted));
        start = from + size.width();
    };
    place(m_sidebar, measures.alignmentLine - m_sidebar->padding(), m_sidebar->sizeHint());
    const int wordsWidth = std::max(0, free - m_groupBy->widthWhen(isCompact) - search);
    const int titleHeight = m_title->sizeHint().height();
    const int subtitleHeight = m_subtitle->sizeHint().height();
    const int top = (height() - titleHeight - subtitleHeight) / 2;
    const QRect titlePlace(wordsStart(), top, wordsWidth, titleHeight);
    const QRect subtitle(wordsStart(), top + titleHeight, wordsWidth, subtitleHeight);
    m_title->setGeometry(QStyle::visualRect(layoutDirection(), rect(), titlePlace));
    m_subtitle->setGeometry(QStyle::visualRect(layoutDirection(), rect(), subtitle));
    place(m_groupBy, titlePlace.right() + 1 + space, m_groupBy->sizeHint());
    place(m_reload, start + space, m_reload->sizeHint());
    place(m_export, start + space, m_export->sizeHint());
    place(m_search, start + (2 * space), QSize(search, m_search->sizeHint().height()));
    place(m_menuButton, start + measures.units(gapAfterSearch), m_menuButton->sizeHint());
    if (m_busy != nullptr) {
        m_busy->setGeometry(0, height() - BusyBar::thickness, width(), BusyBar::thickness);
        m_busy->raise();
    }
}

bool DetailHeader::event(QEvent *event)
{
    const bool result = QWidget::event(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        updateLook();
        break;
    case QEvent::LayoutDirectionChange:
        arrange();
        break;
    default:
        break;
    }
    return result;
}

void DetailHeader::paintEvent(QPaintEvent * /*event*/)
{
    QPainter(this).fillRect(rect(), Look::of(*this).list.base);
}

void DetailHeader::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

} // namespace roamlet
