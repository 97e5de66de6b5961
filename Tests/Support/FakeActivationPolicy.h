// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/ActivationPolicy.h"

#include <QList>

#include <optional>

namespace roamlet::testing
{

/// Writes down how present the program was asked to be.
class FakeActivationPolicy final : public ActivationPolicy
{
public:
    void setPolicy(Policy policy) override
    {
        current = policy;
        policies.append(policy);
    }
    void bringToFront() override
    {
        ++timesInFront;
        policyInFront = current;
    }

    /// What was set last.
    std::optional<Policy> current;
    /// Everything that was set.
    QList<Policy> policies;
    int timesInFront = 0;
    /// What held when the program was last brought to the front.
    std::optional<Policy> policyInFront;
};

} // namespace roamlet::testing
