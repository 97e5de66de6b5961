// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <expected>

namespace roamlet::testing
{

/// A real browser that a test drives.
class DrivenBrowser
{
public:
    virtual ~DrivenBrowser() = default;

    /// Shows `url`, waits until it has loaded and returns the address that it ended at.
    virtual std::expected<QString, QString> open(const QString &url) = 0;
};

} // namespace roamlet::testing
