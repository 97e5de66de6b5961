// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFunctionPointer>
#include <QString>

#include <expected>

/// Parts of the program that are loaded when they are needed first, and then stay.
namespace roamlet::ProgramModule
{

/// The function of the module in the file `name`, which is beside the program in a build, and in the
/// libraries' folder once installed. What is wrong, in the system's words, when it cannot be loaded.
std::expected<QFunctionPointer, QString> function(const QString &name, const char *function);

} // namespace roamlet::ProgramModule
