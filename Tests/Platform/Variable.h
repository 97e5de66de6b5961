// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <optional>

namespace roamlet::testing
{

/// An environment variable with another value for as long as this lives.
class Variable
{
public:
    Variable(const char *name, const std::optional<QByteArray> &value)
        : m_name(name), m_wasSet(qEnvironmentVariableIsSet(name)), m_before(qgetenv(name))
    {
        if (value)
            qputenv(name, *value);
        else
            qunsetenv(name);
    }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;
    ~Variable()
    {
        if (m_wasSet)
            qputenv(m_name, m_before);
        else
            qunsetenv(m_name);
    }

private:
    const char *m_name;
    bool m_wasSet;
    QByteArray m_before;
};

} // namespace roamlet::testing
