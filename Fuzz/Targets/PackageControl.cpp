// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/Targets.h"
#include "Platform/Linux/Updates/Session/PackageCheck.h"
#include "Platform/Updates/DebianPackage.h"

#include <archive.h>
#include <archive_entry.h>
#include <memory>

namespace roamlet::fuzz
{

namespace
{

void attackPackageControl(QByteArrayView bytes)
{
    const QByteArray package = bytes.toByteArray();
    const auto control = PackageControl::of(package);
    require(control || !control.error().isEmpty(), "what fails has a reason");
    // What nobody signed is no package, whatever it says of itself.
    const PackageCheck check{.key = QByteArray(32, 'k'),
                             .signature = QByteArray(64, 's'),
                             .name = QStringLiteral("roamlet"),
                             .version = QStringLiteral("2.0"),
                             .installedVersion = QStringLiteral("1.0")};
    const auto problem = check.problemOf(package);
    require(problem && problem->code == UpdateError::Code::WrongSignature, "the signature comes first");
}

/// The same tape archive, packed.
QByteArray packed(const QByteArray &content, int (*addFilter)(archive *))
{
    QByteArray result(65'536, '\0');
    std::size_t used = 0;
    const std::unique_ptr<archive, int (*)(archive *)> writer(archive_write_new(), archive_write_free);
    archive_write_set_format_raw(writer.get());
    addFilter(writer.get());
    archive_write_set_bytes_in_last_block(writer.get(), 1);
    archive_write_open_memory(writer.get(), result.data(), static_cast<std::size_t>(result.size()), &used);
    const std::unique_ptr<archive_entry, void (*)(archive_entry *)> entry(archive_entry_new(),
                                                                          archive_entry_free);
    archive_entry_set_pathname(entry.get(), "data");
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_write_header(writer.get(), entry.get());
    archive_write_data(writer.get(), content.constData(), static_cast<std::size_t>(content.size()));
    archive_write_close(writer.get());
    result.truncate(static_cast<qsizetype>(used));
    return result;
}

QList<QByteArray> packageControlSeeds()
{
    const QByteArray control = "Package: roamlet\nVersion: 2.0-1\nDescription: a\n b\n";
    const QByteArray tar = testing::tarArchive({{"./control", control}});
    const auto package = [](const QByteArray &name, const QByteArray &content) {
        return testing::arArchive({{"debian-binary", "2.0\n"}, {name, content}});
    };
    return {testing::debianPackage(control),
            package("control.tar.gz", packed(tar, archive_write_add_filter_gzip)),
            package("control.tar.xz", packed(tar, archive_write_add_filter_xz)),
            package("control.tar.zst", packed(tar, archive_write_add_filter_zstd))};
}

} // namespace

Target packageControl()
{
    return {.name = "PackageControl",
            .attack = attackPackageControl,
            .seeds = packageControlSeeds,
            .dictionary = "PackageControl",
            .longest = 8192};
}

} // namespace roamlet::fuzz
