// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/PackageDownload.h"

#include "Platform/Linux/LinuxIO.h"
#include "Platform/Linux/Updates/UpdateInstaller.h"

#include <unistd.h>

#include <cstdio>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// More than any honest one. The signature is of the whole content, which is checked at one go.
constexpr qint64 largestPackage = qint64{512} << 20U;

UpdateError systemError(UpdateError::Code code)
{
    return {code, QString::fromStdString(lastError().message())};
}

/// Checks the file and sees to it that it survives a power cut. It is read from the disk again: what was
/// written is what counts.
std::optional<UpdateError> problemOf(const QString &path, qint64 length, const PackageCheck &check)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return UpdateError{UpdateError::Code::CannotWrite, file.errorString()};
    if (file.size() != length)
        return UpdateError{UpdateError::Code::WrongLength, {}};
    const uchar *bytes = length > 0 ? file.map(0, length) : nullptr;
    if (bytes == nullptr && length > 0)
        return UpdateError{UpdateError::Code::CannotWrite, file.errorString()};
    if (auto problem =
            check.problemOf(QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), length)))
        return problem;
    if (::fsync(file.handle()) != 0)
        return systemError(UpdateError::Code::CannotWrite);
    return {};
}

} // namespace

PackageDownload::PackageDownload(QNetworkAccessManager &network, BackgroundTasks &checks,
                                 const HttpOptions &options, FeedItem::Package package, PackageCheck check,
                                 const QString &target, Handlers handlers)
    : m_checks(checks),
      m_package(std::move(package)),
      m_check(std::move(check)),
      m_target(target),
      m_handlers(std::move(handlers)),
      m_file(UpdateInstaller::unfinished(target))
{
    if (const auto error = prepare()) {
        QMetaObject::invokeMethod(this, [this, error] { finish(error); }, Qt::QueuedConnection);
        return;
    }
    m_transfer = std::make_unique<HttpTransfer>(
        network, options, m_package.address,
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
    // After a success it has another name by now.
    if (m_file.isOpen())
        m_file.remove();
}

std::optional<UpdateError> PackageDownload::prepare()
{
    const auto signature = PackageSignature::decodedSignature(m_package.signature);
    if (!signature)
        return UpdateError{UpdateError::Code::PackageUnsigned, {}};
    m_check.signature = *signature;
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
    m_checks.run(
        this,
        [path = m_file.fileName(), length = m_received, check = m_check](const std::stop_token &) {
            return problemOf(path, length, check);
        },
        [this](const std::optional<UpdateError> &verdict) { finish(verdict); });
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
