// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Clock.h"

namespace roamlet
{

/// The machine's clock.
class SystemClock final : public Clock
{
public:
    PointInTime now() const override;
    void sleep(Duration duration, const std::stop_token &stop) const override;
    void after(Duration duration, QObject *context, std::function<void()> action) const override;
};

} // namespace roamlet
