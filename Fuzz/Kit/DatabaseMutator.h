// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <functional>

namespace roamlet::fuzz
{

/// Changes bytes in place and returns how many there are now, `most` at most.
using Mutate = std::function<qsizetype(char *bytes, qsizetype size, qsizetype most)>;

/// A DatabaseInput with a change in one of its files, `most` bytes at most. Most changes keep every page in
/// its place: of a file that is shifted by a byte nothing is read.
QByteArray mutatedDatabase(QByteArrayView bytes, qsizetype most, quint64 seed, const Mutate &mutate);

} // namespace roamlet::fuzz
