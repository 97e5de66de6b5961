// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/UpdateWindows.h"

#include "App/Look/ForeignText.h"
#include "App/Updates/UpdateErrorText.h"
#include "App/Updates/UpdateFoundDialog.h"
#include "App/Updates/UpdateProgressDialog.h"
#include "Platform/Update.h"

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

UpdateWindows::UpdateWindows(QString currentVersion, std::function<void(const QString &url)> openLink)
    : m_currentVersion(std::move(currentVersion)), m_openLink(std::move(openLink))
{
}

UpdateWindows::~UpdateWindows()
{
    // There is no event loop any more that could do it later.
    delete m_window.release();
}

void UpdateWindows::DeleteLater::operator()(UpdateDialog *window) const
{
    window->withdraw();
    window->deleteLater();
}

void UpdateWindows::show(UpdateDialog *window)
{
    if (m_window) {
        // In the place of the last one, and in front only if that was: the user may be at something else.
        window->adjustSize();
        QRect place(QPoint(), window->size());
        place.moveCenter(m_window->geometry().center());
        window->move(place.topLeft());
        window->setAttribute(Qt::WA_ShowWithoutActivating,
                             m_window->isVisible() && !m_window->isActiveWindow());
    }
    m_window.reset(window);
    window->show();
}

void UpdateWindows::showChecking(std::function<void()> cancel)
{
    show(new UpdateProgressDialog(u"updateChecking"_s, tr("Checking for updates…"), cancel));
}

void UpdateWindows::showUpToDate(std::function<void()> acknowledge)
{
    show(new UpdateMessageDialog(u"updateUpToDate"_s, tr("Roamlet is up to date"),
                                 tr("Version %1 is the newest there is.").arg(m_currentVersion),
                                 acknowledge));
}

void UpdateWindows::showUpdate(const Update &update, std::function<void(Choice)> choose)
{
    show(new UpdateFoundDialog(update, m_currentVersion, choose, m_openLink));
}

void UpdateWindows::showReleaseNotes(const ReleaseNotes &notes)
{
    if (auto *window = qobject_cast<UpdateFoundDialog *>(m_window.get()))
        window->showNotes(notes);
}

void UpdateWindows::showDownload(const Update &update, std::function<void()> cancel)
{
    auto *window = new UpdateProgressDialog(u"updateDownload"_s, tr("Downloading the update…"), cancel);
    if (update.size)
        window->setProgress(0, update.size);
    show(window);
}

void UpdateWindows::setDownloadProgress(std::int64_t received, std::optional<std::int64_t> total)
{
    if (auto *window = qobject_cast<UpdateProgressDialog *>(m_window.get()))
        window->setProgress(received, total);
}

void UpdateWindows::showVerifying()
{
    if (auto *window = qobject_cast<UpdateProgressDialog *>(m_window.get())) {
        window->setHeading(tr("Checking the update…"));
        window->setProgress({}, {});
    }
}

void UpdateWindows::showError(const UpdateError &error, std::function<void()> acknowledge)
{
    // The system's words can be anything, and of any length.
    constexpr qsizetype longestDetail = 500;
    const QString text =
        updateErrorText({.code = error.code, .detail = ForeignText::oneLine(error.detail, longestDetail)});
    show(new UpdateMessageDialog(u"updateError"_s, tr("Roamlet could not be updated"), text, acknowledge));
}

void UpdateWindows::focus()
{
    if (!m_window)
        return;
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void UpdateWindows::close()
{
    m_window.reset();
}

} // namespace roamlet
