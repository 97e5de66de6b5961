// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <optional>

/// Ed25519 signatures of packages.
namespace roamlet::PackageSignature
{

/// The key in its Base64, when that is what it is.
std::optional<QByteArray> decodedKey(const QByteArray &base64);
/// The signature in its Base64, when that is what it is.
std::optional<QByteArray> decodedSignature(const QByteArray &base64);
/// Whether the owner of the key signed exactly this content. Key and signature are decoded ones. Any thread.
bool isValid(const QByteArray &content, const QByteArray &signature, const QByteArray &key);

} // namespace roamlet::PackageSignature
