// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "PackageSigner.h"
#include "Platform/Linux/Updates/Session/PackageCheck.h"

#include <QString>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

bool isValid(const QByteArray &content, const QByteArray &signature, const QByteArray &key)
{
    const auto decodedSignature = PackageSignature::decodedSignature(signature);
    const auto decodedKey = PackageSignature::decodedKey(key);
    return decodedSignature && decodedKey &&
           PackageSignature::isValid(content, *decodedSignature, *decodedKey);
}

TEST(PackageSignatureTest, theStandardsOwnExampleIsValid)
{
    // The third test vector of RFC 8032, section 7.1.
    const QByteArray key =
        QByteArray::fromHex("fc51cd8e6218a1a38da47ed00230f0580816ed13ba3303ac5deb911548908025").toBase64();
    const QByteArray signature =
        QByteArray::fromHex("6291d657deec24024827e69c3abe01a30ce548a284743a445e3680d7db5ac3ac"
                            "18ff9b538d16f290ae67f760984dc6594a7c15e9716ed28dc027beceea1ec40a")
            .toBase64();
    EXPECT_TRUE(isValid(QByteArray::fromHex("af82"), signature, key));
    EXPECT_FALSE(isValid(QByteArray::fromHex("af83"), signature, key));
}

TEST(PackageSignatureTest, onlyTheSignedContentIsValid)
{
    const PackageSigner signer;
    const QByteArray content(100'000, 'x');
    const QByteArray signature = signer.signature(content);
    EXPECT_TRUE(isValid(content, signature, signer.publicKey()));
    EXPECT_TRUE(isValid(content, ' ' + signature + '\n', signer.publicKey() + '\n'));
    QByteArray changed = content;
    changed[99'999] = 'y';
    EXPECT_FALSE(isValid(changed, signature, signer.publicKey()));
    EXPECT_FALSE(isValid(content + 'x', signature, signer.publicKey()));
    EXPECT_FALSE(isValid({}, signature, signer.publicKey()));
}

TEST(PackageSignatureTest, nobodyElsesSignatureIsValid)
{
    const PackageSigner other(2);
    EXPECT_FALSE(isValid("content", other.signature("content"), PackageSigner().publicKey()));
}

TEST(PackageSignatureTest, emptyContentCanBeSigned)
{
    const PackageSigner signer;
    EXPECT_TRUE(isValid({}, signer.signature({}), signer.publicKey()));
}

TEST(PackageSignatureTest, whatIsNoKeyOrSignatureIsNone)
{
    const QByteArray key = PackageSigner().publicKey();
    const QByteArray signature = PackageSigner().signature("content");
    for (const QByteArray &text :
         {QByteArray(), QByteArray("????"), QByteArray("AAAA"), key.chopped(4), QByteArray(key + "AAAA"),
          QByteArray(signature + "!"), signature.chopped(4)}) {
        EXPECT_FALSE(PackageSignature::decodedKey(text)) << text.constData();
        EXPECT_FALSE(PackageSignature::decodedSignature(text)) << text.constData();
    }
    EXPECT_FALSE(PackageSignature::decodedKey(signature));
    EXPECT_FALSE(PackageSignature::decodedSignature(key));
    EXPECT_FALSE(PackageSignature::isValid("content", {}, {}));
}

} // namespace
} // namespace roamlet::testing
