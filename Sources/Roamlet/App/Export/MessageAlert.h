// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/Alert.h"

#include <QCoreApplication>

namespace roamlet
{

/// Alerts in a message box.
class MessageAlert final : public Alert
{
    Q_DECLARE_TR_FUNCTIONS(roamlet::MessageAlert)

public:
    void show(QWidget *parent, const QString &problem, const QString &subject) override;
};

} // namespace roamlet
