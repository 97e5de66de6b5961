// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxWorkspace.h"

#include "Model/Browser.h"
#include "Platform/BrowserFolders.h"
#include "Platform/Files.h"
#include "Platform/Linux/Workspace/DetachedProcess.h"
#include "Platform/Linux/Workspace/ProgramsModule.h"

#include <QDir>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <iterator>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Whether the address is one of Safari's own pages, which no browser here knows.
bool isSafariPage(const QString &url)
{
    const QString scheme = QUrl(url).scheme();
    return scheme == u"history" || scheme == u"bookmarks";
}

using Family = Browser::Family;

/// What a browser of Chromium's family is started with to open URLs in a profile.
QStringList chromiumCommand(const BrowserInstallation &installation, const QString &profile,
                            const QStringList &urls)
{
    QStringList command = installation.entry.command;
    if (const QString name = Browser::sideProfile(profile); !name.isEmpty()) {
        // To Opera this is a data folder of its own, and not a profile of the first one.
        command << u"--side-profile-name=" % name << u"--with-feature:side-profiles"_s;
    } else if (!profile.isEmpty()) {
        // One in the data folder itself has no name; the browser finds it when it is told nothing. Without
        // the second argument a profile that was deleted would come back, empty.
        command << u"--profile-directory=" % profile << u"--ignore-profile-directory-if-not-exists"_s;
    }
    return command + urls;
}

/// What a browser of Firefox's family is started with to open something in the profile in this folder.
QStringList firefoxCommand(const BrowserInstallation &installation, const QString &profileFolder,
                           const QStringList &arguments)
{
    return installation.entry.command + QStringList{u"--profile"_s, profileFolder} + arguments;
}

/// The icon on a square of exactly `side` points: themes have other sizes, and not every icon is a square.
QImage onSquare(const QIcon &icon, int side, qreal devicePixelRatio)
{
    const int pixels = qRound(side * devicePixelRatio);
    QImage square(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    const QImage image = icon.pixmap(QSize(side, side), devicePixelRatio)
                             .toImage()
                             .scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&square);
    const QSize rest = square.size() - image.size();
    painter.drawImage(QRect(QPoint(rest.width() / 2, rest.height() / 2), image.size()), image);
    painter.end();
    square.setDevicePixelRatio(devicePixelRatio);
    return square;
}

} // namespace

LinuxWorkspace::Environment LinuxWorkspace::Environment::ofThisProcess()
{
    const bool isWayland =
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
    return {.dataFolders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation),
            .display = isWayland ? QByteArray() : qgetenv("DISPLAY")};
}

LinuxWorkspace::LinuxWorkspace(const Environment &environment, const Folders &folders, const Files &files,
                               const Clock &clock, PasteNotice notice)
    : LinuxWorkspace(
          environment.dataFolders, folders, files, clock,
          [display = environment.display] { return ProgramsModule::browserWindows(display); },
          std::move(notice))
{
}

LinuxWorkspace::LinuxWorkspace(QStringList dataFolders, const Folders &folders, const Files &files,
                               const Clock &clock, MakeWindows makeWindows, PasteNotice notice)
    : m_dataFolders(std::move(dataFolders)),
      m_folders(folders),
      m_files(files),
      m_clock(clock),
      m_makeWindows(std::move(makeWindows)),
      m_notice(std::move(notice))
{
    m_starts.setMaxThreadCount(1);
}

LinuxWorkspace::~LinuxWorkspace() = default;

bool LinuxWorkspace::canShowPages(Source::Kind browser) const
{
    return Browser::of(browser).family != Family::Safari;
}

QList<Source::Kind> LinuxWorkspace::installedBrowsers() const
{
    // Looking for the data folders of one browser is looking for those of all.
    const auto folders = BrowserFolders::of(m_folders, m_files);
    QList<Source::Kind> installed;
    for (const Browser &browser : Browser::all()) {
        if (BrowserInstallation::any(browser.kind, folders, m_dataFolders))
            installed.append(browser.kind);
    }
    return installed;
}

std::optional<QImage> LinuxWorkspace::icon(Source::Kind browser, int side, qreal devicePixelRatio) const
{
    const auto installation = installationOf(browser);
    if (!installation || installation->entry.icon.isEmpty())
        return {};
    const QString &name = installation->entry.icon;
    const QIcon icon = QDir::isAbsolutePath(name) ? QIcon(name) : QIcon::fromTheme(name);
    if (icon.pixmap(QSize(side, side)).isNull())
        return {};
    return onSquare(icon, side, devicePixelRatio);
}

bool LinuxWorkspace::open(const QStringList &urls, Source::Kind browser)
{
    if (Browser::of(browser).family == Family::Safari) {
        QStringList links;
        std::ranges::remove_copy_if(urls, std::back_inserter(links), isSafariPage);
        if (!links.isEmpty())
            launchPreferred(u"https"_s, links);
        return !links.isEmpty();
    }
    const auto installation = installationOf(browser);
    if (!installation)
        return false;
    const bool isFirefox = Browser::of(browser).family == Family::Firefox;
    const QList<QStringList> portions = DetachedProcess::portions(urls);
    for (const QStringList &some : portions) {
        // Its entry takes one address at a time, and while it starts it refuses further starts.
        if (isFirefox && some.size() > 1)
            start(installation->entry.command + some);
        else
            launch(installation->entry, some);
    }
    return !portions.isEmpty();
}

void LinuxWorkspace::openSystemURL(const QString &url)
{
    launchPreferred(QUrl(url).scheme(), {url});
}

bool LinuxWorkspace::openInProfile(const QStringList &urls, const Source &source)
{
    const auto folders = BrowserFolders::of(m_folders, m_files);
    const auto installation = BrowserInstallation::ofSource(source, folders, m_dataFolders, m_files);
    if (!installation || isGone(source, folders))
        return false;
    const QList<QStringList> portions = DetachedProcess::portions(urls);
    for (const QStringList &some : portions) {
        if (Browser::of(source.kind).family == Family::Firefox)
            start(firefoxCommand(*installation, folders.profile(source, m_files), some));
        else
            start(chromiumCommand(*installation, source.profile.value_or(QString()), some));
    }
    return !portions.isEmpty();
}

void LinuxWorkspace::showPage(const QString &page, const Source &source)
{
    const auto folders = BrowserFolders::of(m_folders, m_files);
    const auto installation = source.profile
                                  ? BrowserInstallation::ofSource(source, folders, m_dataFolders, m_files)
                                  : BrowserInstallation::any(source.kind, folders, m_dataFolders);
    if (!installation || isGone(source, folders))
        return;
    if (Browser::of(source.kind).family == Family::Firefox) {
        // Windows of its own are no addresses, and it has an option for them.
        const bool isWindow = page.startsWith(u"chrome:");
        start(firefoxCommand(*installation, folders.profile(source, m_files),
                             isWindow ? QStringList{u"--chrome"_s, page} : QStringList{page}));
        return;
    }
    const QStringList blank{u"about:blank"_s};
    const auto openBlankTab = [this, installation = *installation, profile = source.profile, blank] {
        if (profile)
            start(chromiumCommand(installation, *profile, blank));
        else
            launch(installation.entry, blank);
    };
    if (PageSteering *const steering = this->steering()) {
        steering->show(
            {.page = page, .windowClasses = installation->windowClasses, .openBlankTab = openBlankTab});
    } else {
        m_notice.show(page);
        openBlankTab();
    }
}

std::optional<BrowserInstallation> LinuxWorkspace::installationOf(Source::Kind browser) const
{
    return BrowserInstallation::any(browser, BrowserFolders::of(m_folders, m_files), m_dataFolders);
}

bool LinuxWorkspace::isGone(const Source &source, const BrowserFolders &folders) const
{
    // Firefox would wait with a dialog for ever, and Opera make the profile anew, empty.
    const QString folder = folders.profile(source, m_files);
    if (Browser::of(source.kind).family == Family::Firefox)
        return !m_files.exists(folder % u'/' % Browser::historyFile(Family::Firefox));
    return !Browser::sideProfile(source.profile.value_or(QString())).isEmpty() && !m_files.exists(folder);
}

PageSteering *LinuxWorkspace::steering()
{
    if (!m_windows)
        m_windows = m_makeWindows();
    if (!m_windows || !m_windows->canSteer())
        return nullptr;
    if (!m_steering)
        m_steering.emplace(*m_windows, m_clock);
    return &*m_steering;
}

void LinuxWorkspace::start(const QStringList &command)
{
    m_starts.start([this, command, token = m_activationToken] {
        if (!DetachedProcess::start(command, token))
            m_hasFailed = true;
    });
}

void LinuxWorkspace::launch(const DesktopEntry &entry, const QStringList &urls)
{
    m_starts.start([this, entry, urls, token = m_activationToken] {
        if (!entry.launch(urls, token))
            m_hasFailed = true;
    });
}

void LinuxWorkspace::launchPreferred(const QString &scheme, const QStringList &urls)
{
    m_starts.start([this, scheme, urls, token = m_activationToken] {
        if (!DesktopEntry::launchPreferred(scheme, urls, token))
            m_hasFailed = true;
    });
}

} // namespace roamlet
