// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/PackageSignature.h"

#include <sodium.h>

namespace roamlet::PackageSignature
{

namespace
{

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

} // namespace

std::optional<QByteArray> decodedKey(const QByteArray &base64)
{
    return decoded(base64, crypto_sign_PUBLICKEYBYTES);
}

std::optional<QByteArray> decodedSignature(const QByteArray &base64)
{
    return decoded(base64, crypto_sign_BYTES);
}

bool isValid(const QByteArray &content, const QByteArray &signature, const QByteArray &key)
{
    if (signature.size() != qsizetype{crypto_sign_BYTES} ||
        key.size() != qsizetype{crypto_sign_PUBLICKEYBYTES} || sodium_init() < 0)
        return false;
    return crypto_sign_verify_detached(bytes(signature), bytes(content),
                                       static_cast<unsigned long long>(content.size()), bytes(key)) == 0;
}

} // namespace roamlet::PackageSignature
