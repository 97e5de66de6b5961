// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Symbol.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

/// The resources of a static library are there only once somebody asks for them, from outside of any
/// namespace.
// NOLINTNEXTLINE(misc-use-anonymous-namespace)
static void initializeResources()
{
    Q_INIT_RESOURCE(Resources);
}

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Draws a symbol as a stencil through which the text's colour shows.
class SymbolEngine final : public QIconEngine
{
public:
    SymbolEngine(QString path, const std::optional<QColor> &color, SymbolWeight weight,
                 QString themeName = {})
        : m_path(std::move(path)),
          m_color(color),
          m_colorInSelection(color),
          m_weight(weight),
          m_themeName(std::move(themeName))
    {
    }

    SymbolEngine(QString path, const QColor &color, const QColor &colorInSelection)
        : m_path(std::move(path)), m_color(color), m_colorInSelection(colorInSelection)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device() != nullptr ? painter->device()->devicePixelRatioF() : 1;
        painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/, qreal scale) override
    {
        const std::optional<QColor> &own = mode == QIcon::Selected ? m_colorInSelection : m_color;
        const QColor color = own.value_or(textColor(mode));
        const QString key = u"roamlet-symbol/%1/%2x%3@%4/%5/%6"_s.arg(m_path)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(scale)
                                .arg(color.rgba(), 0, 16)
                                .arg(static_cast<int>(m_weight));
        QPixmap result;
        if (QPixmapCache::find(key, &result))
            return result;
        result = drawn(size, color);
        result.setDevicePixelRatio(scale);
        QPixmapCache::insert(key, result);
        return result;
    }

    QIconEngine *clone() const override { return new SymbolEngine(*this); }

    /// A name that a theme does not know would be shown as a missing icon.
    QString iconName() override { return QIcon::hasThemeIcon(m_themeName) ? m_themeName : QString(); }

private:
    static QColor textColor(QIcon::Mode mode)
    {
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::WindowText);
        case QIcon::Selected:
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        default:
            return palette.color(QPalette::Active, QPalette::WindowText);
        }
    }

    QByteArray source() const
    {
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QByteArray svg = file.readAll();
        if (m_weight == SymbolWeight::Thin)
            svg.replace("stroke-width=\"1.25\"", "stroke-width=\"0.9\"");
        return svg;
    }

    QPixmap drawn(const QSize &size, const QColor &color) const
    {
        QSvgRenderer renderer(source());
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        const QSizeF fitting = renderer.defaultSize().toSizeF().scaled(size.toSizeF(), Qt::KeepAspectRatio);
        QRectF place({}, fitting);
        place.moveCenter(QRectF(pixmap.rect()).center());
        renderer.render(&painter, place);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(pixmap.rect(), color);
        return pixmap;
    }

    QString m_path;
    std::optional<QColor> m_color;
    std::optional<QColor> m_colorInSelection;
    SymbolWeight m_weight = SymbolWeight::Usual;
    QString m_themeName;
};

QString symbolPath(const QString &name)
{
    return u":/symbols/%1.svg"_s.arg(name);
}

} // namespace

void useDrawings()
{
    initializeResources();
}

QIcon symbolIcon(const QString &name, const std::optional<QColor> &color, SymbolWeight weight)
{
    useDrawings();
    const QString path = symbolPath(name);
    if (!QFile::exists(path))
        return {};
    return QIcon(new SymbolEngine(path, color, weight));
}

QIcon symbolIcon(const QString &name, const QColor &color, const QColor &colorInSelection)
{
    useDrawings();
    const QString path = symbolPath(name);
    if (!QFile::exists(path))
        return {};
    return QIcon(new SymbolEngine(path, color, colorInSelection));
}

QIcon panelIcon()
{
    useDrawings();
    // Nobody says whether such a panel is light or dark, and many are not like the windows.
    constexpr QRgb seenOnBoth = 0xff5b9df0;
    return QIcon(new SymbolEngine(symbolPath(u"steeringwheel"_s), QColor::fromRgba(seenOnBoth),
                                  SymbolWeight::Usual, u"org.roamlet.Roamlet-symbolic"_s));
}

QIcon applicationIcon()
{
    useDrawings();
    // Not the desktop theme's: it would be looked for in every folder before the window shows.
    return QIcon(u":/org.roamlet.Roamlet.svg"_s);
}

} // namespace roamlet
