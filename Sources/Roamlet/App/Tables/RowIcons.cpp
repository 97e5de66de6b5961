// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowIcons.h"

#include "App/Look/Look.h"
#include "App/Look/Symbol.h"
#include "Library/Library.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace roamlet
{

using namespace Qt::StringLiterals;

RowIcons::RowIcons(Library &library, Opener &opener, const QWidget &widget)
    : m_library(library), m_sources(library, opener, widget), m_widget(widget)
{
}

const QIcon &RowIcons::site(const QString &site)
{
    const QIcon &icon = siteIfKnown(site);
    return icon.isNull() ? m_globe : icon;
}

const QIcon &RowIcons::siteIfKnown(const QString &site)
{
    followDisplay();
    auto icon = m_sites.constFind(site);
    if (icon == m_sites.cend()) {
        const std::optional<QImage> image = m_library.favicon(site);
        icon = m_sites.insert(site, image ? iconOf(*image) : QIcon());
    }
    return *icon;
}

const QIcon &RowIcons::folder()
{
    followDisplay();
    return m_folder;
}

void RowIcons::clear()
{
    m_sites.clear();
}

void RowIcons::followDisplay()
{
    const qreal ratio = m_widget.devicePixelRatioF();
    const Look look = Look::of(m_widget);
    const QList<QColor> inks{look.list.ink, look.list.quiet, look.list.selected.ink,
                             look.list.selected.quiet};
    if (ratio == m_ratio && look.measures.iconSide == m_side && inks == m_inks)
        return;
    m_ratio = ratio;
    m_side = look.measures.iconSide;
    m_inks = inks;
    m_globe = symbolIcon(u"globe"_s, look.list.quiet, look.list.selected.quiet);
    m_folder = symbolIcon(u"folder"_s, look.list.ink, look.list.selected.ink);
    clear();
}

QIcon RowIcons::iconOf(const QImage &image) const
{
    const int pixels = qRound(m_side * m_ratio);
    QImage scaled = image.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(1);
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.drawImage((pixels - scaled.width()) / 2, (pixels - scaled.height()) / 2, scaled);
    painter.end();
    pixmap.setDevicePixelRatio(m_ratio);
    QIcon icon(pixmap);
    // A site's colours are its own, also in a selected row.
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

} // namespace roamlet
