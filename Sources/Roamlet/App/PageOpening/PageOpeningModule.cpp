// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/PageOpening/PageOpening.h"

#include <QtCore/qglobal.h>

/// The module's OpenPageEntry.
extern "C" Q_DECL_EXPORT void roamletOpenPage(const QString &url, const roamlet::Source &source,
                                              const QString &activationToken, QString &problem)
{
    const auto opened = roamlet::PageOpening::open(url, source, activationToken);
    problem = opened ? QString() : opened.error();
}
