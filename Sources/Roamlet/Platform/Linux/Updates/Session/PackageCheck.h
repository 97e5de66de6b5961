// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Update.h"

#include <QByteArray>
#include <QString>

#include <expected>
#include <optional>

namespace roamlet
{

/// Ed25519 signatures of packages.
namespace PackageSignature
{

/// The key in its Base64, when that is what it is.
std::optional<QByteArray> decodedKey(const QByteArray &base64);
/// The signature in its Base64, when that is what it is.
std::optional<QByteArray> decodedSignature(const QByteArray &base64);
/// Whether the owner of the key signed exactly this content. Key and signature are decoded ones. Any thread.
bool isValid(const QByteArray &content, const QByteArray &signature, const QByteArray &key);

} // namespace PackageSignature

/// What a Debian package says of itself.
struct PackageControl {
    QString name;
    /// With the revision of the packaging behind a hyphen.
    QString version;

    /// Reads it from the whole package, or says why that is none. However much the package unfolds to, little
    /// of it is read. Any thread.
    static std::expected<PackageControl, QString> of(const QByteArray &package);
};

/// What a package has to be to be installed.
struct PackageCheck {
    /// Decoded ones.
    QByteArray key;
    QByteArray signature;
    /// The package's name, and its version as it was announced.
    QString name;
    QString version;
    /// The version that it has to be newer than.
    QString installedVersion;

    /// What is wrong with the package, if anything is. The signature is looked at before anything else. Any
    /// thread.
    std::optional<UpdateError> problemOf(const QByteArray &package) const;
};

} // namespace roamlet
