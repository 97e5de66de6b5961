// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "PackageSigner.h"

#include <sodium.h>

namespace roamlet::testing
{

namespace
{

unsigned char *bytes(QByteArray &content)
{
    return reinterpret_cast<unsigned char *>(content.data());
}

const unsigned char *bytes(const QByteArray &content)
{
    return reinterpret_cast<const unsigned char *>(content.constData());
}

} // namespace

PackageSigner::PackageSigner(char seed)
    : m_publicKey(crypto_sign_PUBLICKEYBYTES, '\0'), m_secretKey(crypto_sign_SECRETKEYBYTES, '\0')
{
    const QByteArray seedBytes(crypto_sign_SEEDBYTES, seed);
    crypto_sign_seed_keypair(bytes(m_publicKey), bytes(m_secretKey), bytes(seedBytes));
}

QByteArray PackageSigner::signature(const QByteArray &package) const
{
    QByteArray result(crypto_sign_BYTES, '\0');
    crypto_sign_detached(bytes(result), nullptr, bytes(package),
                         static_cast<unsigned long long>(package.size()), bytes(m_secretKey));
    return result.toBase64();
}

} // namespace roamlet::testing
