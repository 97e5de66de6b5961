// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

/// The text in lower case by all of Unicode's rules and those of no language: what is searched, and what is
/// searched for.
QString lowerCased(QString text);

/// Whether the text holds a small sigma of either kind, so that it has to be compared withPlainSigmas().
bool hasSigma(const QString &text);

/// The text with every final sigma as a plain one. A word in capitals is lower-cased as if it ended where the
/// typing does, and may be the beginning of a longer one.
QString withPlainSigmas(QString text);

} // namespace roamlet
