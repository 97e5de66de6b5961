// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHashFunctions>
#include <QString>

#include <system_error>

#include <optional>

namespace roamlet
{

/// Why a file of a browser could not be read. Readers return it; they report nothing themselves.
class ReadError
{
public:
    enum class Kind {
        NoAccess,   ///< the operating system refused access
        Unreadable, ///< anything else
    };

    static ReadError noAccess(const QString &path);
    /// `reason` is the underlying error's own words.
    static ReadError unreadable(const QString &path, const QString &reason);
    /// A refusal, of `error` itself or of what lies under it, becomes noAccess(path), anything else
    /// unreadable(path, the words of `error`).
    static ReadError wrap(std::error_code error, const QString &path,
                          std::optional<std::error_code> underlying = {});
    /// An error that already is a ReadError stays as it is.
    static ReadError wrap(const ReadError &error, const QString &path);

    bool operator==(const ReadError &) const = default;

    Kind kind() const { return m_kind; }
    QString path() const { return m_path; }
    QString reason() const { return m_reason; }
    /// The text that the user reads.
    QString errorDescription() const;

private:
    ReadError(Kind kind, QString path, QString reason);

    Kind m_kind;
    QString m_path;
    QString m_reason;
};

inline size_t qHash(const ReadError &error, size_t seed = 0)
{
    return qHashMulti(seed, static_cast<int>(error.kind()), error.path(), error.reason());
}

} // namespace roamlet
