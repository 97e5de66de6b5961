// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DebianPackage.h"

#include <numeric>

namespace roamlet::testing
{

QByteArray arArchive(const QList<NamedContent> &members)
{
    QByteArray result = "!<arch>\n";
    for (const auto &[name, content] : members) {
        result += name.leftJustified(16) + QByteArray("0").leftJustified(12) +
                  QByteArray("0").leftJustified(6) + QByteArray("0").leftJustified(6) +
                  QByteArray("100644").leftJustified(8) +
                  QByteArray::number(content.size()).leftJustified(10) + "`\n" + content;
        if (content.size() % 2 != 0)
            result += '\n';
    }
    return result;
}

QByteArray tarArchive(const QList<NamedContent> &files)
{
    constexpr qsizetype block = 512;
    QByteArray result;
    for (const auto &[name, content] : files) {
        QByteArray header = name.leftJustified(100, '\0');
        header += QByteArray("0000644\0000000000\0000000000\000", 24);
        header += QByteArray::number(content.size(), 8).rightJustified(11, '0') + '\0';
        header += QByteArray("00000000000\0        0", 21);
        header = header.leftJustified(257, '\0') + QByteArray("ustar\00000", 8);
        header = header.leftJustified(block, '\0');
        const int sum = std::accumulate(header.cbegin(), header.cend(), 0,
                                        [](int all, char each) { return all + static_cast<uchar>(each); });
        header.replace(148, 7, QByteArray::number(sum, 8).rightJustified(6, '0').append('\0'));
        result += header + content;
        result.resize((result.size() + block - 1) / block * block, '\0');
    }
    return result + QByteArray(2 * block, '\0');
}

QByteArray debianPackage(const QByteArray &control, const QByteArray &content)
{
    return arArchive({{"debian-binary", "2.0\n"},
                      {"control.tar", tarArchive({{"./control", control}})},
                      {"data.tar", tarArchive({{"./content", content}})}});
}

} // namespace roamlet::testing
