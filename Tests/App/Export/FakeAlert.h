// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/Alert.h"

#include <QStringList>

namespace roamlet::testing
{

/// Writes down what the user was told.
class FakeAlert final : public Alert
{
public:
    void show(QWidget * /*parent*/, const QString &problem, const QString &subject) override
    {
        problems.append(problem);
        subjects.append(subject);
    }

    QStringList problems;
    QStringList subjects;
};

} // namespace roamlet::testing
