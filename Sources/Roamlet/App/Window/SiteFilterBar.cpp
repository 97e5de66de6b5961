// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/SiteFilterBar.h"

#include "App/Look/ElidedLabel.h"
#include "App/Look/RoamletStyle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace roamlet
{

using namespace Qt::StringLiterals;

SiteFilterBar::SiteFilterBar(QWidget *parent)
    : Strip(Tone::Notice, parent), m_icon(new QLabel(this)), m_text(new ElidedLabel(this))
{
    setObjectName(u"siteFilterBar"_s);
    m_text->setObjectName(u"siteFilterText"_s);
    auto *clear = new QPushButton(tr("Show All Sites"), this);
    clear->setObjectName(u"showAllSitesButton"_s);
    clear->setAutoDefault(false);
    RoamletStyle::applyTo(*clear);
    connect(clear, &QPushButton::clicked, this, &SiteFilterBar::clearRequested);
    row()->addWidget(m_icon);
    row()->addWidget(m_text, 1);
    row()->addWidget(clear);
    updateLook();
}

void SiteFilterBar::updateLook()
{
    Strip::updateLook();
    setPaletteColor(*m_text, QPalette::WindowText, Look::of(*this).notice.ink);
}

void SiteFilterBar::setSite(const QString &site, const std::optional<QImage> &image)
{
    const int side = Measures(font()).iconSide;
    //: %1 is a web site, such as "example.org": the list shows nothing else.
    const QString words = tr("Only %1");
    const qsizetype place = words.indexOf(u"%1");
    m_text->setText(words.left(place), site, words.mid(place + 2));
    m_icon->setVisible(image.has_value());
    if (!image)
        return;
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(
        image->scaled(QSize(side, side) * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    m_icon->setPixmap(pixmap);
}

} // namespace roamlet
