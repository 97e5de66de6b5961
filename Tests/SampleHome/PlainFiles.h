// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <stdexcept>

namespace roamlet::sample
{

/// Why a sample could not be written. Builders throw: a test without its input has nothing left to prove.
class Failure : public std::runtime_error
{
public:
    explicit Failure(const QString &text) : std::runtime_error(text.toStdString()) {}
};

/// Writes these bytes into a new or replaced file and makes the folders that it needs.
void writeFile(const QString &path, const QByteArray &bytes);

/// Makes a folder and those above it.
void makeFolder(const QString &path);

/// Makes the folder that a file at this path will lie in.
void makeFolderOf(const QString &path);

} // namespace roamlet::sample
