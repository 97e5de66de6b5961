// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/BundleInformation.h"

#include "App/Updates/ReleaseFacts.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

BundleInformation BundleInformation::ofThisProgram()
{
    return {.name = u"Roamlet"_s,
            .version = ReleaseFacts::version.toString(),
            .feedURL = ReleaseFacts::feedURL.toString(),
            .publicKey = ReleaseFacts::publicKey.toString()};
}

} // namespace roamlet
