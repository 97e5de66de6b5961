// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/BrowserProfileSettings.h"

#include "App/Look/Look.h"
#include "App/Look/NoteLabel.h"
#include "App/Look/Painting.h"
#include "App/Settings/ProfileList.h"
#include "App/Settings/ProfileListModel.h"
#include "Library/Library.h"

#include <QEvent>
#include <QVBoxLayout>

namespace roamlet
{

using namespace Qt::StringLiterals;

BrowserProfileSettings::BrowserProfileSettings(Library &library, Opener &opener, QWidget *parent)
    : QWidget(parent),
      m_library(library),
      m_list(new ProfileList),
      m_note(new NoteLabel),
      m_watchNote(new NoteLabel)
{
    m_list->setObjectName(u"profileList"_s);
    m_list->setAccessibleName(tr("Browser Profiles"));
    m_list->setAccessibleDescription(tr("Space turns a profile on or off, Alt with an arrow key moves it."));
    m_list->setModel(new ProfileListModel(library, opener, *m_list));
    m_note->setObjectName(u"profileNote"_s);
    m_note->setText(tr("Drag profiles to change their order in the sidebar. Roamlet only reads the profiles "
                       "that are on, and new ones are on automatically."));
    m_watchNote->setObjectName(u"watchNote"_s);
    m_watchNote->setTone(NoteLabel::Tone::Problem);
    m_watchNote->setText(
        tr("The system has no more watches for files, so Roamlet looks for changes once a minute. "
           "The system's settings fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many "
           "there are."));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    layout->addWidget(m_note);
    layout->addWidget(m_watchNote);
    layout->addStretch();
    followWindow();

    updateWatchNote();
    connect(&library, &Library::watchLimitReached, this, &BrowserProfileSettings::updateWatchNote);
    updatePlaceholder();
    connect(&library, &Library::lastLoadedChanged, this, &BrowserProfileSettings::updatePlaceholder);
}

void BrowserProfileSettings::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        followWindow();
}

void BrowserProfileSettings::followWindow()
{
    const Measures measures = Look::of(*this).measures;
    layout()->setSpacing(measures.gapAfterIcon);
    for (NoteLabel *note : {m_note, m_watchNote}) {
        note->setContentsMargins(measures.boxPadding, 0, measures.boxPadding, 0);
        alignToLine(*note);
    }
}

void BrowserProfileSettings::updateWatchNote()
{
    m_watchNote->setVisible(m_library.isWatchLimitReached());
}

void BrowserProfileSettings::updatePlaceholder()
{
    m_list->setPlaceholderText(m_library.lastLoaded() ? tr("No browser profiles were found.")
                                                      : tr("Reading…"));
}

} // namespace roamlet
