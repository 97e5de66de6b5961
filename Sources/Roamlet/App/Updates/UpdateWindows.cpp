// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/UpdateWindows.h"

#include "App/Look/ForeignText.h"
#include "App/Updates/ReleaseNotesView.h"
#include "App/Updates/UpdateDialog.h"
#include "App/Updates/UpdateErrorText.h"
#include "Platform/Update.h"

#include <QLocale>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;
using Role = UpdateDialog::Role;

namespace
{

/// A version comes from elsewhere, and can be of any length.
QString shortened(const QString &version)
{
    return ForeignText::oneLine(version, ForeignText::longestMenuText);
}

} // namespace

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

void UpdateWindows::showProgress(const QString &name, const QString &heading,
                                 const std::function<void()> &cancel)
{
    auto *window = new UpdateDialog(name, heading, cancel);
    window->setProgress({});
    window->addButtonSpace();
    window->addButton(u"updateCancel"_s, tr("Cancel"), Role::Default, cancel);
    show(window);
}

void UpdateWindows::showMessage(const QString &name, const QString &heading, const QString &text,
                                const std::function<void()> &read)
{
    auto *window = new UpdateDialog(name, heading, read);
    window->setText(text);
    window->addButtonSpace();
    window->addButton(u"updateOk"_s, tr("OK"), Role::Default, read);
    show(window);
}

void UpdateWindows::showChecking(std::function<void()> cancel)
{
    showProgress(u"updateChecking"_s, tr("Checking for updates…"), cancel);
}

void UpdateWindows::showUpToDate(std::function<void()> acknowledge)
{
    showMessage(u"updateUpToDate"_s, tr("Roamlet is up to date"),
                tr("Version %1 is the newest there is.").arg(m_currentVersion), acknowledge);
}

void UpdateWindows::showUpdate(const Update &update, std::function<void(Choice)> choose)
{
    const auto answer = [&choose](Choice choice) { return [choose, choice] { choose(choice); }; };
    auto *window = new UpdateDialog(u"updateFound"_s,
                                    tr("Roamlet %1 is available").arg(shortened(update.displayVersion)),
                                    answer(Choice::Later));
    QStringList sentences{tr("You have version %1.").arg(m_currentVersion)};
    if (update.size)
        sentences.append(tr("The download takes %1.").arg(window->locale().formattedDataSize(*update.size)));
    if (update.isCritical)
        sentences.append(tr("This is an important update: please install it soon."));
    window->setText(sentences.join(u' '));

    auto *notes = new ReleaseNotesView(m_openLink);
    notes->setObjectName(u"updateNotes"_s);
    notes->setAccessibleName(tr("Release notes"));
    notes->setMinimumHeight(180);
    notes->hide();
    window->contents().addWidget(notes, 1);
    if (!update.isCritical)
        window->addButton(u"updateSkip"_s, tr("Skip This Version"), Role::Other, answer(Choice::Skip));
    window->addButtonSpace();
    window->addButton(u"updateLater"_s, tr("Remind Me Later"), Role::Other, answer(Choice::Later));
    window->addButton(u"updateInstall"_s, tr("Install"), Role::Default, answer(Choice::Install));
    m_notes = notes;
    if (update.notes)
        showReleaseNotes(*update.notes);
    show(window);
}

void UpdateWindows::showReleaseNotes(const ReleaseNotes &notes)
{
    if (m_notes == nullptr || notes.text.isEmpty())
        return;
    m_notes->show(notes);
    m_notes->setVisible(true);
    constexpr QSize sizeWithNotes(560, 420);
    QWidget &window = *m_notes->window();
    window.resize(window.isVisible() ? window.size().expandedTo(sizeWithNotes) : sizeWithNotes);
}

void UpdateWindows::showDownload(const Update &update, std::function<void()> cancel)
{
    showProgress(u"updateDownload"_s, tr("Downloading the update…"), cancel);
    if (update.size)
        setDownloadProgress(0, update.size);
}

void UpdateWindows::setDownloadProgress(std::int64_t received, std::optional<std::int64_t> total)
{
    if (!m_window || !m_window->hasProgress())
        return;
    const auto size = [this](std::int64_t bytes) { return m_window->locale().formattedDataSize(bytes); };
    const bool isKnown = total && *total > 0;
    m_window->setProgress(isKnown ? std::optional(static_cast<double>(received) / static_cast<double>(*total))
                                  : std::nullopt);
    //: How much was downloaded: "1.2 MB of 3.4 MB".
    m_window->setText(isKnown ? tr("%1 of %2").arg(size(std::min(received, *total)), size(*total))
                              : size(received));
}

void UpdateWindows::showVerifying()
{
    if (!m_window || !m_window->hasProgress())
        return;
    m_window->setHeading(tr("Checking the update…"));
    m_window->setText({});
    m_window->setProgress({});
}

void UpdateWindows::showInstalling(std::function<void()> cancel)
{
    showProgress(u"updateInstalling"_s, tr("Installing the update…"), cancel);
    m_window->setText(tr("Your system may ask for your password."));
}

void UpdateWindows::setInstallProgress(std::optional<int> percent)
{
    if (m_window && m_window->hasProgress())
        m_window->setProgress(percent ? std::optional(*percent / 100.0) : std::nullopt);
}

void UpdateWindows::showInstalled(const Update &update, std::function<void()> acknowledge)
{
    showMessage(u"updateInstalled"_s, tr("Roamlet %1 is installed").arg(shortened(update.displayVersion)),
                tr("Quit Roamlet and open it again to use the new version."), acknowledge);
}

void UpdateWindows::showHandedOver(const Update &update, std::function<void()> acknowledge)
{
    showMessage(u"updateHandedOver"_s,
                tr("Roamlet %1 is not installed yet").arg(shortened(update.displayVersion)),
                tr("It was opened with your program for packages. Install it there, then quit Roamlet and "
                   "open it again to use the new version."),
                acknowledge);
}

void UpdateWindows::showError(const UpdateError &error, std::function<void()> acknowledge)
{
    // The system's words can be anything, and of any length.
    constexpr qsizetype longestDetail = 500;
    showMessage(
        u"updateError"_s, tr("Roamlet could not be updated"),
        updateErrorText({.code = error.code, .detail = ForeignText::oneLine(error.detail, longestDetail)}),
        acknowledge);
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
