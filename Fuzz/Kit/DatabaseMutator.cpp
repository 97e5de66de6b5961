// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseMutator.h"

#include "Kit/DatabaseInput.h"
#include "SampleHome/SampleText.h"

#include <algorithm>
#include <array>

namespace roamlet::fuzz
{

namespace
{

using sample::Random;

/// Where something stands that decides how the rest is read: the file's header, the beginning of a page, or
/// anywhere.
qsizetype place(const QByteArray &bytes, Random &random)
{
    constexpr qsizetype pageSize = 512;
    constexpr qsizetype headerSize = 100;
    switch (random.below(5)) {
    case 0:
        return random.below(std::min(bytes.size(), headerSize));
    case 1:
    case 2:
        return std::min(random.below(bytes.size() / pageSize + 1) * pageSize + random.below(40),
                        bytes.size() - 1);
    default:
        return random.below(bytes.size());
    }
}

void mutateInPlace(QByteArray &bytes, Random &random, const Mutate &mutate)
{
    constexpr std::array<qsizetype, 6> lengths{1, 2, 4, 8, 16, 64};
    for (qint64 count = 1 + random.below(4); count > 0; --count) {
        const qsizetype begin = place(bytes, random);
        const qsizetype length = std::min(lengths.at(static_cast<std::size_t>(random.below(lengths.size()))),
                                          bytes.size() - begin);
        mutate(bytes.data() + begin, length, length);
    }
}

} // namespace

QByteArray mutatedDatabase(QByteArrayView bytes, qsizetype most, quint64 seed, const Mutate &mutate)
{
    Random random(seed);
    DatabaseInput input = DatabaseInput::of(bytes);
    QList<QByteArray *> files;
    for (QByteArray *file : {&input.database, &input.log, &input.journal}) {
        if (!file->isEmpty())
            files.append(file);
    }
    if (files.isEmpty())
        files.append(&input.database);
    QByteArray &file = *files.at(random.below(files.size()));
    const qint64 kind = random.below(16);
    if (kind == 0 || file.isEmpty()) {
        // Anything at all.
        const qsizetype room = std::max<qsizetype>(most - input.bytes().size(), 0);
        const qsizetype size = file.size();
        file.resize(size + room, '\0');
        file.resize(mutate(file.data(), size, file.size()));
    } else if (kind == 1) {
        file.truncate(random.below(file.size() + 1));
    } else {
        mutateInPlace(file, random, mutate);
    }
    if (random.below(8) != 0)
        input.repairChecksums();
    const QByteArray result = input.bytes();
    return result.size() <= most ? result : bytes.first(std::min(bytes.size(), most)).toByteArray();
}

} // namespace roamlet::fuzz
