// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/FeedUpdateSession.h"

#include "Platform/Linux/Updates/Session/PackageCheck.h"
#include "Platform/UpdateDriver.h"

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 longestNotes = qint64{1} << 20U;

ReleaseNotes notesOf(const HttpTransfer::Document &document)
{
    ReleaseNotes result;
    const QString path = document.head.address.path();
    if (document.head.contentType == u"text/markdown" || path.endsWith(u".md"_s))
        result.format = ReleaseNotes::Format::Markdown;
    else if (document.head.contentType == u"text/plain" || path.endsWith(u".txt"_s))
        result.format = ReleaseNotes::Format::Plain;
    result.text = QString::fromUtf8(document.content);
    return result;
}

} // namespace

/// The user answers when they like; by then the question may be another one, or nobody may be left to listen.
template<typename Action>
auto FeedUpdateSession::inThisStep(Action action) const
{
    return [step = QPointer(m_step.get()), action = std::move(action)](auto... arguments) {
        if (!step)
            return;
        // Acting can close the window that holds this.
        const auto act = action;
        act(arguments...);
    };
}

FeedUpdateSession::FeedUpdateSession(const Setup &setup, Origin origin, Handlers handlers)
    : m_setup(setup),
      m_publicKey(PackageSignature::decodedKey(setup.publicKey).value_or(QByteArray())),
      m_handlers(std::move(handlers)),
      m_origin(origin)
{
}

void FeedUpdateSession::start()
{
    beginStep();
    if (m_origin == Origin::User) {
        m_isSeen = true;
        m_setup.userInterface.showChecking(inThisStep([this] { finish(); }));
    }
    if (m_setup.feed.isEmpty() || m_publicKey.isEmpty()) {
        failToRead({UpdateError::Code::NotConfigured, {}});
        return;
    }
    m_document = HttpTransfer::document(
        m_network, m_setup.http, m_setup.feed, Feed::longest,
        [this](const std::expected<HttpTransfer::Document, UpdateError> &feed) { readFeed(feed); });
}

void FeedUpdateSession::bringToFront()
{
    m_origin = Origin::User;
    if (m_isSeen) {
        m_setup.userInterface.focus();
        if (m_choice)
            giveAttention();
        return;
    }
    if (m_choice) {
        if (m_setup.installer.isProgramReplaced()) {
            m_isSeen = true;
            giveAttention();
            fail({UpdateError::Code::RestartNeeded, {}});
        } else {
            showUpdate();
        }
        return;
    }
    m_isSeen = true;
    m_setup.userInterface.showChecking(inThisStep([this] { finish(); }));
}

void FeedUpdateSession::readFeed(const std::expected<HttpTransfer::Document, UpdateError> &feed)
{
    if (!feed) {
        failToRead(feed.error());
        return;
    }
    const auto items = Feed::parse(feed->content, feed->head.address);
    m_document.reset();
    if (!items) {
        failToRead(items.error());
        return;
    }
    m_handlers.feedRead();
    const std::optional<UpdateChoice> choice = UpdateChoice::best(*items, m_setup.host);
    // Who asks wants to know, whatever was skipped before; and some updates are not to be skipped.
    if (choice &&
        (m_origin == Origin::User || choice->isCritical || !m_handlers.isSkipped(choice->item.version))) {
        offer(*choice);
        return;
    }
    if (m_origin == Origin::Schedule) {
        finish();
        return;
    }
    beginStep();
    m_setup.userInterface.showUpToDate(inThisStep([this] { finish(); }));
}

void FeedUpdateSession::failToRead(const UpdateError &error)
{
    m_handlers.feedFailed();
    fail(error);
}

void FeedUpdateSession::offer(const UpdateChoice &choice)
{
    // It may be this very version, or one on the way to it; the program that runs cannot tell.
    if (m_setup.installer.isProgramReplaced()) {
        fail({UpdateError::Code::RestartNeeded, {}});
        return;
    }
    m_choice = choice;
    beginStep();
    UpdateDriverDelegate &delegate = m_setup.delegate;
    const Update update = choice.update();
    const bool isAskedFor = m_origin == Origin::User;
    const bool handlesShowing = isAskedFor || !delegate.supportsGentleScheduledUpdateReminders() ||
                                delegate.shouldHandleShowingScheduledUpdate(update, m_setup.isInFront());
    delegate.willHandleShowingUpdate(
        handlesShowing, update, {.stage = UpdateState::Stage::NotDownloaded, .isUserInitiated = isAskedFor});
    // Otherwise it waits until the user asks.
    if (handlesShowing)
        showUpdate();
}

void FeedUpdateSession::showUpdate()
{
    m_isSeen = true;
    const Update update = m_choice->update();
    m_setup.userInterface.showUpdate(
        update, inThisStep([this](UpdateUserInterface::Choice choice) { choose(choice); }));
    if (m_origin == Origin::User || m_setup.isInFront())
        giveAttention();
    if (!update.notes && m_choice->item.notesAddress.isValid())
        fetchNotes();
}

void FeedUpdateSession::fetchNotes()
{
    m_document =
        HttpTransfer::document(m_network, m_setup.http, m_choice->item.notesAddress, longestNotes,
                               // The update is as good without its notes.
                               [this](const std::expected<HttpTransfer::Document, UpdateError> &document) {
                                   if (document)
                                       m_setup.userInterface.showReleaseNotes(notesOf(*document));
                                   m_document.reset();
                               });
}

void FeedUpdateSession::choose(UpdateUserInterface::Choice choice)
{
    giveAttention();
    m_document.reset();
    switch (choice) {
    case UpdateUserInterface::Choice::Install:
        download();
        break;
    case UpdateUserInterface::Choice::Skip:
        m_handlers.skip(m_choice->item.version);
        finish();
        break;
    case UpdateUserInterface::Choice::Later:
        finish();
        break;
    }
}

void FeedUpdateSession::download()
{
    beginStep();
    const auto path = m_setup.installer.packagePath();
    if (!path) {
        fail(path.error());
        return;
    }
    m_setup.userInterface.showDownload(m_choice->update(), inThisStep([this] { finish(); }));
    m_package = std::make_unique<PackageDownload>(
        m_network, m_setup.checks, m_setup.http, m_choice->package,
        PackageCheck{.key = m_publicKey,
                     .signature = {},
                     .name = m_setup.host.package,
                     .version = m_choice->item.version,
                     .installedVersion = m_setup.host.version},
        *path,
        PackageDownload::Handlers{
            .progress =
                [this](qint64 received, std::optional<qint64> total) {
                    m_setup.userInterface.setDownloadProgress(received, total);
                },
            .verifying = [this] { m_setup.userInterface.showVerifying(); },
            .finish =
                [this, path = *path](const std::optional<UpdateError> &error) {
                    if (error)
                        fail(*error);
                    else
                        install(path);
                },
        });
}

void FeedUpdateSession::install(const QString &package)
{
    m_package.reset();
    // Somebody may have been quicker.
    if (m_setup.installer.isProgramReplaced()) {
        fail({UpdateError::Code::RestartNeeded, {}});
        return;
    }
    beginStep();
    const UpdateInstaller::Environment &environment = m_setup.installer.environment();
    m_setup.userInterface.showInstalling(inThisStep([this] { finish(); }));
    m_installation = std::make_unique<PackageKitInstallation>(
        environment.systemBus(), environment.patience, package,
        PackageKitInstallation::Handlers{
            .progress =
                [this](std::optional<int> percent) { m_setup.userInterface.setInstallProgress(percent); },
            .finish = [this](PackageKitInstallation::End end,
                             const QString &text) { endInstallation(end, text); }});
}

void FeedUpdateSession::endInstallation(PackageKitInstallation::End end, const QString &text)
{
    using End = PackageKitInstallation::End;
    m_installation.reset();
    beginStep();
    switch (end) {
    case End::Installed:
        // Some services call it a success that they did nothing.
        if (!m_setup.installer.isProgramReplaced()) {
            fail({UpdateError::Code::CannotInstall, text});
            break;
        }
        m_setup.installer.removePackage();
        m_setup.userInterface.showInstalled(m_choice->update(), inThisStep([this] { finish(); }));
        break;
    case End::Refused:
        fail({UpdateError::Code::InstallRefused, {}});
        break;
    case End::Failed:
        fail({UpdateError::Code::CannotInstall, text});
        break;
    case End::Unavailable:
        if (const auto error = m_setup.installer.handOver())
            fail(*error);
        else
            m_setup.userInterface.showHandedOver(m_choice->update(), inThisStep([this] { finish(); }));
        break;
    }
}

void FeedUpdateSession::endWork()
{
    m_document.reset();
    m_package.reset();
    m_installation.reset();
}

void FeedUpdateSession::fail(const UpdateError &error)
{
    endWork();
    beginStep();
    // Nobody asked, so nobody is bothered; the next check tries again.
    if (!m_isSeen) {
        finish();
        return;
    }
    m_setup.userInterface.showError(error, inThisStep([this] { finish(); }));
}

void FeedUpdateSession::finish()
{
    endWork();
    m_step.reset();
    if (m_isSeen)
        m_setup.userInterface.close();
    m_setup.delegate.willFinishUpdateSession();
    m_handlers.finish();
}

void FeedUpdateSession::giveAttention()
{
    if (!std::exchange(m_hasAttention, true))
        m_setup.delegate.didReceiveUserAttention(m_choice->update());
}

} // namespace roamlet
