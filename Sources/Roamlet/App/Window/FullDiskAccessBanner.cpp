// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/FullDiskAccessBanner.h"

#include "App/Look/Look.h"
#include "App/Look/Symbol.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace roamlet
{

using namespace Qt::StringLiterals;

FullDiskAccessBanner::FullDiskAccessBanner(QWidget *parent)
    : Strip(Tone::Warning, parent), m_lock(new QLabel(this))
{
    setObjectName(u"fullDiskAccessBanner"_s);
    drawLock();

    auto *heading = new QLabel(u"Roamlet can't read Safari yet"_s, this);
    heading->setObjectName(u"fullDiskAccessHeading"_s);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    auto *text =
        new QLabel(u"Turn on Roamlet in Privacy & Security › Full Disk Access, then reload."_s, this);
    text->setObjectName(u"fullDiskAccessText"_s);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto *words = new QVBoxLayout;
    words->setSpacing(1);
    words->addWidget(heading);
    words->addWidget(text);

    auto *settings = new QPushButton(u"Open Settings"_s, this);
    settings->setObjectName(u"openSettingsButton"_s);
    auto *reload = new QPushButton(u"Reload"_s, this);
    reload->setObjectName(u"bannerReloadButton"_s);
    for (QPushButton *button : {settings, reload})
        button->setAutoDefault(false);
    connect(settings, &QPushButton::clicked, this, &FullDiskAccessBanner::openSettingsRequested);
    connect(reload, &QPushButton::clicked, this, &FullDiskAccessBanner::reloadRequested);

    row()->addWidget(m_lock);
    row()->addLayout(words, 1);
    row()->addWidget(settings);
    row()->addWidget(reload);
}

void FullDiskAccessBanner::drawLock()
{
    constexpr int iconSide = 20;
    m_lock->setPixmap(symbolIcon(u"lock.fill"_s, Look::of(*this).warningMark)
                          .pixmap(QSize(iconSide, iconSide), devicePixelRatioF()));
}

void FullDiskAccessBanner::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        drawLock();
    Strip::changeEvent(event);
}

} // namespace roamlet
