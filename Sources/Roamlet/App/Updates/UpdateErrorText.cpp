// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/UpdateErrorText.h"

#include "Platform/Update.h"

#include <QCoreApplication>

namespace roamlet
{

namespace
{

class Sentences
{
    Q_DECLARE_TR_FUNCTIONS(roamlet::UpdateError)

public:
    /// What happened, without the words of the system or the server.
    static QString of(UpdateError::Code code);
    static QString withDetail(const QString &sentence, const QString &detail)
    {
        //: What happened, and the words of the system or the server.
        return tr("%1 (%2)").arg(sentence, detail);
    }
};

QString Sentences::of(UpdateError::Code code)
{
    switch (code) {
    case UpdateError::Code::NotConfigured:
        return tr("This build of Roamlet cannot be updated.");
    case UpdateError::Code::InsecureAddress:
        return tr("The update was refused because its address is not secure.");
    case UpdateError::Code::TooManyRedirects:
        return tr("The update server sends Roamlet from one address to the next without end.");
    case UpdateError::Code::NetworkFailed:
        return tr("The update server cannot be reached, or the connection was lost.");
    case UpdateError::Code::TimedOut:
        return tr("The update server does not answer.");
    case UpdateError::Code::ServerRefused:
        return tr("The update server answered with an error.");
    case UpdateError::Code::FeedTooLarge:
        return tr("The list of updates was refused because it is far too long.");
    case UpdateError::Code::FeedMalformed:
        return tr("The list of updates cannot be read.");
    case UpdateError::Code::PackageUnsigned:
        return tr("The update was refused because it is not signed.");
    case UpdateError::Code::PackageTooLarge:
        return tr("The update was refused because it is far too large.");
    case UpdateError::Code::WrongLength:
        return tr("The update was refused and deleted because its length is not the announced one.");
    case UpdateError::Code::WrongSignature:
        return tr("The update was refused and deleted because its signature is wrong.");
    case UpdateError::Code::WrongPackage:
        return tr("The update was refused and deleted because it is not the version that was announced.");
    case UpdateError::Code::CannotWrite:
        return tr("The update cannot be saved.");
    case UpdateError::Code::InstallRefused:
        return tr("The update was not installed because nobody gave permission to do so.");
    case UpdateError::Code::CannotInstall:
        return tr("The update cannot be installed.");
    case UpdateError::Code::RestartNeeded:
        return tr("Roamlet has been updated already. Quit it and open it again to use the new version.");
    case UpdateError::Code::NoInstaller:
        return tr("The update was downloaded, but no program here installs packages.");
    }
    return {};
}

} // namespace

QString updateErrorText(const UpdateError &error)
{
    const QString sentence = Sentences::of(error.code);
    return error.detail.isEmpty() ? sentence : Sentences::withDetail(sentence, error.detail);
}

} // namespace roamlet
