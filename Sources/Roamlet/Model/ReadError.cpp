// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/ReadError.h"

#include <QCoreApplication>

#include <cerrno>
#include <string_view>
#include <utility>

namespace roamlet
{

namespace
{

/// The category under which a Mac reports file errors of its own, and its code for a refused read.
constexpr std::string_view cocoaDomain = "NSCocoaErrorDomain";
constexpr int cocoaReadNoPermission = 257;

bool isDenied(std::error_code error)
{
    const bool isPosix =
        error.category() == std::generic_category() || error.category() == std::system_category();
    return (isPosix && (error.value() == EPERM || error.value() == EACCES)) ||
           (error.category().name() == cocoaDomain && error.value() == cocoaReadNoPermission);
}

} // namespace

ReadError::ReadError(Kind kind, QString path, QString reason)
    : m_kind(kind), m_path(std::move(path)), m_reason(std::move(reason))
{
}

ReadError ReadError::noAccess(const QString &path)
{
    return {Kind::NoAccess, path, {}};
}

ReadError ReadError::unreadable(const QString &path, const QString &reason)
{
    return {Kind::Unreadable, path, reason};
}

ReadError ReadError::wrap(std::error_code error, const QString &path,
                          std::optional<std::error_code> underlying)
{
    if (isDenied(error) || (underlying && isDenied(*underlying)))
        return noAccess(path);
    return unreadable(path, QString::fromStdString(error.message()));
}

ReadError ReadError::wrap(const ReadError &error, const QString & /*path*/)
{
    return error;
}

QString ReadError::errorDescription() const
{
    if (m_kind == Kind::NoAccess)
        return QCoreApplication::translate("roamlet::ReadError", "macOS blocked access to %1.").arg(m_path);
    //: %1 is a file, %2 says why: "Couldn't read /home/anna/History: file is not a database".
    return QCoreApplication::translate("roamlet::ReadError", "Couldn't read %1: %2").arg(m_path, m_reason);
}

} // namespace roamlet
