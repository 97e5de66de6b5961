// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

namespace roamlet::testing
{

using NamedContent = std::pair<QByteArray, QByteArray>;

/// The members of an archive of Unix's ar, in which a Debian package keeps its parts.
QByteArray arArchive(const QList<NamedContent> &members);
/// A tape archive of plain files.
QByteArray tarArchive(const QList<NamedContent> &files);
/// A Debian package that says this of itself and holds `content`, nothing of it packed.
QByteArray debianPackage(const QByteArray &control, const QByteArray &content = {});

} // namespace roamlet::testing
