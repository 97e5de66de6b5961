// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/FullDiskAccessBanner.h"

#include "App/Look/Look.h"
#include "App/Look/RoamletStyle.h"
#include "App/Look/Symbol.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace roamlet
{

using namespace Qt::StringLiterals;

FullDiskAccessBanner::FullDiskAccessBanner(QWidget *parent)
    : Strip(Tone::Warning, parent),
      m_lock(new QLabel(this)),
      m_heading(new QLabel(tr("Roamlet can't read Safari yet"), this)),
      m_text(new QLabel(tr("Turn on Roamlet in Privacy & Security › Full Disk Access, then reload."), this)),
      m_details(new QLabel(this))
{
    setObjectName(u"fullDiskAccessBanner"_s);
    m_heading->setObjectName(u"fullDiskAccessHeading"_s);
    m_text->setObjectName(u"fullDiskAccessText"_s);
    m_details->setObjectName(u"fullDiskAccessDetails"_s);
    for (QLabel *label : {m_heading, m_text, m_details}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_details->hide();
    auto *words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(m_heading);
    words->addWidget(m_text);
    words->addWidget(m_details);

    auto *settings = new QPushButton(tr("Open Settings"), this);
    settings->setObjectName(u"openSettingsButton"_s);
    auto *reload = new QPushButton(tr("Reload"), this);
    reload->setObjectName(u"bannerReloadButton"_s);
    for (QPushButton *button : {settings, reload}) {
        button->setAutoDefault(false);
        RoamletStyle::applyTo(*button);
    }
    connect(settings, &QPushButton::clicked, this, &FullDiskAccessBanner::openSettingsRequested);
    connect(reload, &QPushButton::clicked, this, &FullDiskAccessBanner::reloadRequested);

    row()->addWidget(m_lock);
    row()->addLayout(words, 1);
    row()->addWidget(settings);
    row()->addWidget(reload);
    updateLook();
}

void FullDiskAccessBanner::setDetails(const QString &details)
{
    m_details->setText(details);
    m_details->setVisible(!details.isEmpty());
}

void FullDiskAccessBanner::updateLook()
{
    Strip::updateLook();
    const Look look = Look::of(*this);
    const int side = look.measures.signSide;
    m_lock->setPixmap(
        symbolIcon(u"lock.fill"_s, look.warningMark).pixmap(QSize(side, side), devicePixelRatioF()));
    m_heading->setFont(look.headingFont);
    setPaletteColor(*m_heading, QPalette::WindowText, look.warning.ink);
    for (QLabel *label : {m_text, m_details})
        setPaletteColor(*label, QPalette::WindowText, look.warning.quiet);
}

} // namespace roamlet
