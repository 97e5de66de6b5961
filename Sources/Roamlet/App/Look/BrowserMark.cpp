// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/BrowserMark.h"

#include "App/Look/Look.h"
#include "App/Look/Symbol.h"

#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The marks are drawn on a square of so many units.
constexpr qreal markUnits = 16;

/// The colour of each browser's square.
QColor squareColor(const QString &browser)
{
    static const QHash<QString, QRgb> colors{
        {u"safari"_s, 0xff1a7fe0},   {u"chrome"_s, 0xff2b8a3e},   {u"edge"_s, 0xff0b7f8f},
        {u"chromium"_s, 0xff5472a8}, {u"brave"_s, 0xffd9480f},    {u"vivaldi"_s, 0xffc92a3a},
        {u"opera"_s, 0xffa61e4d},    {u"firefox"_s, 0xffd9730d},  {u"librewolf"_s, 0xff4263eb},
        {u"zen"_s, 0xff6b5e4b},      {u"waterfox"_s, 0xff1098ad}, {u"floorp"_s, 0xff7048c8},
    };
    return QColor::fromRgb(colors.value(browser));
}

/// A browser with more profiles than colours has to repeat them.
QColor dotColor(qsizetype profileNumber)
{
    constexpr std::array<QRgb, 8> colors{0xfff08c00, 0xffd6336c, 0xff12b886, 0xff845ef7,
                                         0xff228be6, 0xffe03131, 0xff82c91e, 0xff868e96};
    return QColor::fromRgb(colors.at(static_cast<size_t>(profileNumber) % colors.size()));
}

/// Made once for a theme: it takes far longer than a mark.
const Look &applicationLook()
{
    struct Made {
        qint64 palette;
        Look look;
    };
    static std::optional<Made> last;
    const QPalette palette = QGuiApplication::palette();
    if (!last || last->palette != palette.cacheKey())
        last.emplace(Made{.palette = palette.cacheKey(), .look = Look(palette, QGuiApplication::font())});
    return last->look;
}

class BrowserMarkEngine final : public QIconEngine
{
public:
    BrowserMarkEngine(QString browser, const std::optional<qsizetype> &profileNumber, QImage ownIcon)
        : m_browser(std::move(browser)), m_profileNumber(profileNumber), m_ownIcon(std::move(ownIcon))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const qreal ratio = painter->device() != nullptr ? painter->device()->devicePixelRatioF() : 1;
        painter->drawPixmap(rect, kept(rect.size() * ratio, mode, ratio, painter->layoutDirection()));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/, qreal scale) override
    {
        return kept(size, mode, scale, QGuiApplication::layoutDirection());
    }

    QIconEngine *clone() const override { return new BrowserMarkEngine(*this); }

private:
    /// All tables, menus and lists show the same few.
    QPixmap kept(const QSize &size, QIcon::Mode mode, qreal scale, Qt::LayoutDirection direction) const
    {
        const QString drawing = m_ownIcon.isNull() ? m_browser : QString::number(m_ownIcon.cacheKey());
        const QString key = u"roamlet-browser/%1/%2/%3x%4@%5/%6/%7/%8"_s.arg(drawing)
                                .arg(m_profileNumber.value_or(-1))
                                .arg(size.width())
                                .arg(size.height())
                                .arg(scale)
                                .arg(static_cast<int>(mode))
                                .arg(direction)
                                .arg(QGuiApplication::palette().cacheKey());
        QPixmap result;
        if (QPixmapCache::find(key, &result))
            return result;
        result = drawn(size, mode, direction);
        result.setDevicePixelRatio(scale);
        QPixmapCache::insert(key, result);
        return result;
    }

    QPixmap drawn(const QSize &size, QIcon::Mode mode, Qt::LayoutDirection direction) const
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const int side = std::min(size.width(), size.height());
        const QRect place((size.width() - side) / 2, (size.height() - side) / 2, side, side);
        if (m_ownIcon.isNull())
            drawMark(painter, place);
        else
            drawOwnIcon(painter, place);
        if (m_profileNumber)
            drawDot(painter, place, direction);
        if (mode == QIcon::Disabled) {
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            painter.fillRect(pixmap.rect(), QColor::fromRgbF(0, 0, 0, 0.5));
        }
        return pixmap;
    }

    void drawMark(QPainter &painter, const QRect &place) const
    {
        const qreal unit = place.width() / markUnits;
        // On whole pixels, so that the edges of the square are sharp.
        const int margin = qRound(unit);
        const QColor square = applicationLook().mark(squareColor(m_browser));
        painter.setBrush(square);
        painter.drawRoundedRect(place.adjusted(margin, margin, -margin, -margin), 4 * unit, 4 * unit);
        QSvgRenderer(u":/marks/%1.svg"_s.arg(m_browser)).render(&painter, place);
    }

    void drawOwnIcon(QPainter &painter, const QRect &place) const
    {
        QImage icon = m_ownIcon.scaled(place.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        icon.setDevicePixelRatio(1);
        painter.drawImage(place.left() + (place.width() - icon.width()) / 2,
                          place.top() + (place.height() - icon.height()) / 2, icon);
    }

    void drawDot(QPainter &painter, const QRect &place, Qt::LayoutDirection direction) const
    {
        constexpr qreal middle = 13.2;
        constexpr qreal dot = 2.75;
        constexpr qreal ring = 3.9;
        const qreal unit = place.width() / markUnits;
        const qreal across = direction == Qt::RightToLeft ? markUnits - middle : middle;
        const QPointF center = QPointF(place.topLeft()) + QPointF(across, middle) * unit;
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        painter.setBrush(Qt::black);
        painter.drawEllipse(center, ring * unit, ring * unit);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.setBrush(dotColor(*m_profileNumber));
        painter.drawEllipse(center, dot * unit, dot * unit);
    }

    QString m_browser;
    std::optional<qsizetype> m_profileNumber;
    QImage m_ownIcon;
};

} // namespace

QIcon browserMark(Source::Kind kind, const std::optional<qsizetype> &profileNumber, const QImage &ownIcon)
{
    useDrawings();
    return QIcon(new BrowserMarkEngine(Source::rawValue(kind), profileNumber, ownIcon));
}

} // namespace roamlet
