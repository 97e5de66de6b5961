// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/BrowserPlaces.h"

#include "App/Look/BoxedList.h"
#include "App/Look/BrowserMark.h"
#include "App/Look/ForeignText.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "Model/Browser.h"
#include "Platform/Folders.h"

#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QToolTip>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// In heights of a line.
constexpr double widestPlaces = 34;
/// What the focus ring takes at each side. In pixels, as it does.
constexpr int placesRing = Measures::focusRingWidth + Measures::focusRingGap;

QString placesOf(const Browser &browser, const Folders &folders)
{
    const QString home = folders.home() % u'/';
    QStringList places = folders.dataFolders(browser.kind, {});
    // A Mac's place stands first, beside those of this system.
    if (places.size() > 1)
        places.removeFirst();
    for (QString &place : places) {
        if (place.startsWith(home))
            place.replace(0, home.size(), u"~/"_s);
    }
    return places.join(u", "_s);
}

/// A browser's mark and name at the start, its places at the end. A label, so that a screen reader reads it.
class PlaceRow final : public QLabel
{
public:
    PlaceRow(const Browser &browser, const QString &places)
        : m_mark(browserMark(browser.kind)), m_name(browser.displayName), m_places(places)
    {
        setObjectName(u"browserPlace"_s);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setAccessibleName(m_name % u": " % m_places);
    }

    QSize sizeHint() const override { return {placesWidth() + startOfPlaces(), Measures(font()).rowHeight}; }
    QSize minimumSizeHint() const override { return {startOfPlaces(), Measures(font()).rowHeight}; }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        const Look look = Look::of(*this);
        const Measures &measures = look.measures;
        QPainter painter(this);
        const auto place = [this](int start, int end, int height) {
            return QStyle::visualRect(layoutDirection(), rect(),
                                      QRect(start, (this->height() - height) / 2, end - start, height));
        };
        const int icon = measures.boxPadding;
        const int text = icon + measures.iconSide + measures.gapAfterIcon;
        m_mark.paint(&painter, place(icon, icon + measures.iconSide, measures.iconSide));
        painter.setPen(look.card.ink);
        painter.drawText(place(text, width(), height()), alignment(Qt::AlignLeft), m_name);
        const QRect room = place(startOfPlaces(), width() - measures.boxPadding, height());
        painter.setPen(look.card.quiet);
        // A path is read from left to right in every language.
        painter.setLayoutDirection(Qt::LeftToRight);
        painter.drawText(room, alignment(Qt::AlignRight),
                         painter.fontMetrics().elidedText(m_places, Qt::ElideRight, room.width()));
    }
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::FontChange)
            updateGeometry();
        if (event->type() == QEvent::ToolTip && width() < sizeHint().width()) {
            QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                               ForeignText::wrappedToolTip(m_places), this);
            return true;
        }
        return QLabel::event(event);
    }

private:
    int alignment(Qt::Alignment horizontal) const
    {
        return static_cast<int>(QStyle::visualAlignment(layoutDirection(), horizontal) | Qt::AlignVCenter) |
               Qt::TextSingleLine;
    }
    int startOfPlaces() const
    {
        const Measures measures(font());
        return measures.boxPadding + measures.iconSide + measures.gapAfterIcon +
               fontMetrics().horizontalAdvance(m_name) + measures.gapBetweenCells;
    }
    int placesWidth() const
    {
        return fontMetrics().horizontalAdvance(m_places) + Measures(font()).boxPadding;
    }

    QIcon m_mark;
    QString m_name;
    QString m_places;
};

} // namespace

BrowserPlaces::BrowserPlaces(const Folders &folders, QWidget *parent) : QScrollArea(parent)
{
    setObjectName(u"browserPlaces"_s);
    setAccessibleName(tr("Browsers"));
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    setFocusPolicy(Qt::NoFocus);
    auto *list = new BoxedList;
    for (const Browser &browser : Browser::all())
        list->addRow(new PlaceRow(browser, placesOf(browser, folders)));
    setWidget(list);
    // What lies below shows around the corners of the box.
    list->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    setViewportMargins(placesRing, placesRing, placesRing, placesRing);
    // With the keyboard one comes here only where there is something to do.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int /*first*/, int last) { setFocusPolicy(last > 0 ? Qt::TabFocus : Qt::NoFocus); });
    followFont();
}

QString BrowserPlaces::introduction()
{
    QStringList names;
    for (const Browser &browser : Browser::all())
        names.append(browser.displayName);
    const QString last = names.takeLast();
    //: %1 are all browsers but the last, with commas between them, %2 is the last. A list of folders follows.
    return tr("Roamlet looks for the data of %1 and %2 in these folders, in those of their beta "
              "versions, Flatpaks and snaps, and where a Mac keeps them:")
        .arg(names.join(tr(", ", "between the names of browsers")), last);
}

QSize BrowserPlaces::sizeHint() const
{
    return QScrollArea::sizeHint() + QSize(2 * placesRing, 2 * placesRing);
}

bool BrowserPlaces::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        followFont();
    if (event->type() != QEvent::Paint)
        return QScrollArea::event(event);
    if (showsFocus(*this)) {
        const Look look = Look::of(*this);
        QPainter painter(this);
        drawFocusRing(painter, rect(), look.measures.boxRadius + Measures::focusRingGap, look);
    }
    return true;
}

void BrowserPlaces::followFont()
{
    const Measures measures(font());
    setMaximumWidth(measures.units(widestPlaces));
    setMinimumHeight(measures.rowHeight + (2 * placesRing));
}

} // namespace roamlet
