// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/ReleaseFacts.h"
#include "App/Updates/UpdateErrorText.h"
#include "Platform/Linux/Updates/Session/Feed.h"
#include "Platform/Linux/Updates/Session/HttpTransfer.h"
#include "Platform/Linux/Updates/Session/PackageCheck.h"

#include <QCoreApplication>
#include <QFile>
#include <QSysInfo>

#include <cstdio>

namespace
{

using namespace Qt::StringLiterals;
using namespace roamlet;
using Code = UpdateError::Code;

constexpr qint64 longestFile = qint64{1} << 30U;

std::expected<QByteArray, UpdateError> contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(UpdateError{Code::CannotInstall, path % u": " % file.errorString()});
    return file.read(longestFile);
}

/// The version that the feed offers to whoever has `installed`, when its package is right.
std::expected<QString, UpdateError> offer(const QString &feedPath, const QString &packagePath,
                                          const QString &installed)
{
    const QUrl address(ReleaseFacts::feedURL.toString(), QUrl::StrictMode);
    if (!isAllowed(address, HttpOptions::Loopback::Refused))
        return std::unexpected(UpdateError{Code::InsecureAddress, ReleaseFacts::feedURL.toString()});
    const auto key = PackageSignature::decodedKey(ReleaseFacts::publicKey.toLatin1());
    if (!key)
        return std::unexpected(UpdateError{Code::NotConfigured, u"no key"_s});
    const auto feed = contentOf(feedPath);
    const auto package = contentOf(packagePath);
    if (!feed || !package)
        return std::unexpected(feed ? package.error() : feed.error());
    const auto items = Feed::parse(*feed, address);
    if (!items)
        return std::unexpected(items.error());
    const UpdateHost host{.version = installed,
                          .systemVersion = QSysInfo::kernelVersion(),
                          .architecture = QSysInfo::currentCpuArchitecture()};
    const auto choice = UpdateChoice::best(*items, host);
    if (!choice)
        return std::unexpected(UpdateError{Code::FeedMalformed, u"nothing newer than "_s % installed});
    if (!isAllowed(choice->package.address, HttpOptions::Loopback::Refused))
        return std::unexpected(UpdateError{Code::InsecureAddress, choice->package.address.toDisplayString()});
    if (choice->package.length != package->size())
        return std::unexpected(UpdateError{Code::WrongLength, {}});
    const auto signature = PackageSignature::decodedSignature(choice->package.signature);
    if (!signature)
        return std::unexpected(UpdateError{Code::PackageUnsigned, {}});
    const PackageCheck check{.key = *key,
                             .signature = *signature,
                             .name = host.package,
                             .version = choice->item.version,
                             .installedVersion = installed};
    if (const auto problem = check.problemOf(*package))
        return std::unexpected(*problem);
    return choice->item.version;
}

} // namespace

/// Takes the feed, the package and the version that somebody has who is to be offered it.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: roamlet-release-check FEED PACKAGE INSTALLED-VERSION\n", stderr);
        return 2;
    }
    const auto version = offer(arguments[1], arguments[2], arguments[3]);
    if (!version) {
        std::fputs((updateErrorText(version.error()) % u'\n').toUtf8().constData(), stderr);
        return 1;
    }
    std::fputs(
        QString(u"Who has "_s % arguments[3] % u" is offered " % *version % u", and the package is right.\n")
            .toUtf8()
            .constData(),
        stdout);
    return 0;
}
