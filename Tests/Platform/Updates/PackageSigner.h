// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace roamlet::testing
{

/// Whoever makes the releases. Always the same one for the same seed.
class PackageSigner
{
public:
    explicit PackageSigner(char seed = 1);

    /// In Base64.
    QByteArray publicKey() const { return m_publicKey.toBase64(); }
    QByteArray signature(const QByteArray &package) const;

private:
    QByteArray m_publicKey;
    QByteArray m_secretKey;
};

} // namespace roamlet::testing
