// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/PackageDownload.h"

#include "Platform/Linux/LinuxIO.h"
#include "Platform/Linux/Updates/PackageSignature.h"

#include <QCoreApplication>
#include <QEvent>

#include <unistd.h>

#include <cstdio>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The signature is of the whole content, which has to be in memory to be checked.
constexpr qint64 largestPackage = qint64{512} << 20U;

QString unfinishedName(const QString &target)
{
    return target % u".part";
}

UpdateError systemError(UpdateError::Code code)
{
    return {code, QString::fromStdString(lastError().message())};
}

/// Checks the file against the signature and sees to it that it survives a power cut. It is read from the
/// disk again: what was written is what counts.
std::optional<UpdateError> check(const QString &path, qint64 length, const QByteArray &signature,
                                 const QByteArray &key)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return UpdateError{UpdateError::Code::CannotWrite, file.errorString()};
    const QByteArray content = file.read(length + 1);
    if (content.size() != length)
        return UpdateError{UpdateError::Code::WrongLength, {}};
    if (!PackageSignature::isValid(content, signature, key))
        return UpdateError{UpdateError::Code::WrongSignature, {}};
    if (::fsync(file.handle()) != 0)
        return systemError(UpdateError::Code::CannotWrite);
    return {};
}

} // namespace

PackageDownload::PackageDownload(QNetworkAccessManager &network, const Clock &clock,
                                 const HttpOptions &options, Package package, const QByteArray &key,
                                 const QString &target, Handlers handlers)
    : m_package(std::move(package)),
      m_key(key),
      m_target(target),
      m_handlers(std::move(handlers)),
      m_file(unfinishedName(target))
{
    if (const auto error = prepare()) {
        clock.after(Clock::Duration::zero(), this, [this, error] { finish(error); });
        return;
    }
    m_transfer = std::make_unique<HttpTransfer>(
        network, clock, options, m_package.address,
        HttpTransfer::Handlers{
            .begin = [this](const HttpTransfer::Head &head) { return begin(head); },
            .receive = [this](const QByteArray &piece) { return receive(piece); },
            .finish =
                [this](const std::optional<UpdateError> &error) {
                    if (error)
                        finish(error);
                    else
                        verify();
                },
        });
}

PackageDownload::~PackageDownload()
{
    if (m_verification.joinable())
        m_verification.join();
    // After a success it has another name by now.
    if (m_file.isOpen())
        m_file.remove();
}

void PackageDownload::removeUnfinished(const QString &target)
{
    QFile::remove(unfinishedName(target));
}

std::optional<UpdateError> PackageDownload::prepare()
{
    const auto signature = PackageSignature::decodedSignature(m_package.signature);
    if (!signature)
        return UpdateError{UpdateError::Code::PackageUnsigned, {}};
    m_signature = *signature;
    if (m_package.length.value_or(0) > largestPackage)
        return UpdateError{UpdateError::Code::PackageTooLarge, {}};
    // What an earlier download left, or what somebody else put there, is neither kept nor written into.
    QFile::remove(m_target);
    m_file.remove();
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
                     QFile::ReadOwner | QFile::WriteOwner))
        return writeError();
    return {};
}

std::optional<UpdateError> PackageDownload::begin(const HttpTransfer::Head &head)
{
    if (m_package.length && head.length && *head.length != *m_package.length)
        return UpdateError{UpdateError::Code::WrongLength, {}};
    m_total = m_package.length ? m_package.length : head.length;
    if (m_total.value_or(0) > largestPackage)
        return UpdateError{UpdateError::Code::PackageTooLarge, {}};
    return {};
}

std::optional<UpdateError> PackageDownload::receive(const QByteArray &piece)
{
    m_received += piece.size();
    if (m_package.length && m_received > *m_package.length)
        return UpdateError{UpdateError::Code::WrongLength, {}};
    if (m_received > largestPackage)
        return UpdateError{UpdateError::Code::PackageTooLarge, {}};
    if (m_file.write(piece) != piece.size())
        return writeError();
    m_handlers.progress(m_received, m_total);
    return {};
}

void PackageDownload::verify()
{
    if (m_package.length && m_received != *m_package.length) {
        finish(UpdateError{UpdateError::Code::WrongLength, {}});
        return;
    }
    m_handlers.verifying();
    // Hashing a large package takes longer than a window may stand still.
    m_verification = std::jthread([this] {
        m_verdict = check(m_file.fileName(), m_received, m_signature, m_key);
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    });
}

void PackageDownload::customEvent(QEvent * /*event*/)
{
    m_verification.join();
    finish(m_verdict);
}

void PackageDownload::finish(const std::optional<UpdateError> &error)
{
    std::optional<UpdateError> result = error;
    const QByteArray name = QFile::encodeName(m_file.fileName());
    if (!result && std::rename(name.constData(), QFile::encodeName(m_target).constData()) != 0)
        result = systemError(UpdateError::Code::CannotWrite);
    if (result && m_file.isOpen())
        m_file.remove();
    m_file.close();
    // The handler may destroy this.
    const auto handler = std::exchange(m_handlers.finish, nullptr);
    handler(result);
}

UpdateError PackageDownload::writeError() const
{
    return {UpdateError::Code::CannotWrite, m_file.errorString()};
}

} // namespace roamlet
