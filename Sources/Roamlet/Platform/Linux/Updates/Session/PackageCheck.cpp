// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/PackageCheck.h"

#include "Platform/Linux/Updates/Versions.h"

#include <QCoreApplication>
#include <QStringList>

#include <archive.h>
#include <archive_entry.h>
#include <memory>
#include <sodium.h>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

// An honest package stays far below all of these.
constexpr qsizetype largestControl = qsizetype{64} << 10U;
constexpr qsizetype largestControlArchive = qsizetype{1} << 20U;
constexpr qint64 mostUnpacked = qint64{4} << 20U;

std::optional<QByteArray> decoded(const QByteArray &base64, std::size_t length)
{
    const auto result =
        QByteArray::fromBase64Encoding(base64.trimmed(), QByteArray::AbortOnBase64DecodingErrors);
    if (!result || static_cast<std::size_t>(result.decoded.size()) != length)
        return {};
    return result.decoded;
}

/// The bytes as the library wants them.
const unsigned char *bytes(const QByteArray &content)
{
    return reinterpret_cast<const unsigned char *>(content.constData());
}

/// An archive in memory that is being read, one member after the other.
class ArchiveReader
{
public:
    using Problem = std::unexpected<QString>;

    /// With a tar, which may be packed, or with what holds the parts of a Debian package.
    enum class Kind { Tar, Package };
    ArchiveReader(const QByteArray &content, Kind kind) : m_archive(archive_read_new())
    {
        if (kind == Kind::Package) {
            archive_read_support_format_ar(m_archive.get());
        } else {
            archive_read_support_format_tar(m_archive.get());
            archive_read_support_filter_gzip(m_archive.get());
            archive_read_support_filter_xz(m_archive.get());
            archive_read_support_filter_zstd(m_archive.get());
        }
        m_isOpen = archive_read_open_memory(m_archive.get(), content.constData(),
                                            static_cast<std::size_t>(content.size())) == ARCHIVE_OK;
    }

    /// The name of the next member.
    std::expected<QByteArray, QString> next()
    {
        archive_entry *entry = nullptr;
        if (!m_isOpen || archive_read_next_header(m_archive.get(), &entry) < ARCHIVE_WARN)
            return Problem(problem());
        if (entry == nullptr)
            return Problem(u"A part is missing"_s);
        // What is passed over is unpacked, too, and so are the names.
        constexpr qint64 header = 512;
        m_unpacked += header + archive_entry_size(entry);
        if (m_unpacked > mostUnpacked && archive_filter_count(m_archive.get()) > 1)
            return Problem(QCoreApplication::translate("roamlet::UpdateError", "Too much is packed"));
        return QByteArray(archive_entry_pathname(entry));
    }

    /// The content of the member.
    std::expected<QByteArray, QString> content(qsizetype longest)
    {
        QByteArray result(longest + 1, '\0');
        qsizetype length = 0;
        while (length < result.size()) {
            const la_ssize_t count = archive_read_data(m_archive.get(), result.data() + length,
                                                       static_cast<std::size_t>(result.size() - length));
            if (count < 0)
                return Problem(problem());
            if (count == 0)
                return result.first(length);
            length += count;
        }
        return Problem(u"A part is too long"_s);
    }

private:
    struct End {
        void operator()(archive *each) const { archive_read_free(each); }
    };

    QString problem() const
    {
        const char *text = archive_error_string(m_archive.get());
        return text != nullptr ? QString::fromLocal8Bit(text) : u"A part is missing"_s;
    }

    std::unique_ptr<archive, End> m_archive;
    bool m_isOpen = false;
    qint64 m_unpacked = 0;
};

/// The file of a package's own data.
std::expected<QByteArray, QString> controlFile(const QByteArray &package)
{
    ArchiveReader parts(package, ArchiveReader::Kind::Package);
    const auto first = parts.next();
    if (!first || *first != "debian-binary")
        return std::unexpected(
            first ? QCoreApplication::translate("roamlet::UpdateError", "No Debian package") : first.error());
    const auto second = parts.next();
    if (!second || !second->startsWith("control.tar"))
        return std::unexpected(second
                                   ? QCoreApplication::translate("roamlet::UpdateError", "No Debian package")
                                   : second.error());
    const auto packed = parts.content(largestControlArchive);
    if (!packed)
        return packed;
    ArchiveReader files(*packed, ArchiveReader::Kind::Tar);
    for (auto name = files.next();; name = files.next()) {
        if (!name)
            return name;
        if (*name == "./control" || *name == "control")
            return files.content(largestControl);
    }
}

} // namespace

std::optional<QByteArray> PackageSignature::decodedKey(const QByteArray &base64)
{
    return decoded(base64, crypto_sign_PUBLICKEYBYTES);
}

std::optional<QByteArray> PackageSignature::decodedSignature(const QByteArray &base64)
{
    return decoded(base64, crypto_sign_BYTES);
}

bool PackageSignature::isValid(const QByteArray &content, const QByteArray &signature, const QByteArray &key)
{
    if (signature.size() != qsizetype{crypto_sign_BYTES} ||
        key.size() != qsizetype{crypto_sign_PUBLICKEYBYTES} || sodium_init() < 0)
        return false;
    return crypto_sign_verify_detached(bytes(signature), bytes(content),
                                       static_cast<unsigned long long>(content.size()), bytes(key)) == 0;
}

std::expected<PackageControl, QString> PackageControl::of(const QByteArray &package)
{
    const auto file = controlFile(package);
    if (!file)
        return std::unexpected(file.error());
    PackageControl result;
    for (const QString &line : QString::fromUtf8(*file).split(u'\n')) {
        const QString field = line.section(u':', 0, 0).toLower();
        if (field == u"package")
            result.name = line.section(u':', 1).trimmed();
        else if (field == u"version")
            result.version = line.section(u':', 1).trimmed();
    }
    return result;
}

std::optional<UpdateError> PackageCheck::problemOf(const QByteArray &package) const
{
    if (!PackageSignature::isValid(package, signature, key))
        return UpdateError{UpdateError::Code::WrongSignature, {}};
    const auto control = PackageControl::of(package);
    if (!control)
        return UpdateError{UpdateError::Code::WrongPackage, control.error()};
    // The signature says whose package it is, and only the package itself which one: a feed could offer an
    // older one as new.
    const qsizetype revision = control->version.lastIndexOf(u'-');
    const QString released = revision < 0 ? control->version : control->version.first(revision);
    if (control->name != name || released != version || Versions::compare(released, installedVersion) <= 0)
        return UpdateError{UpdateError::Code::WrongPackage, QString(control->name % u' ' % control->version)};
    return {};
}

} // namespace roamlet
