// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <stdexcept>
#include <vector>

/// What attacks every door through which foreign bytes come in: each target lets bytes in through one of them
/// and looks whether what has to hold still does.
namespace roamlet::fuzz
{

/// Something that has to hold whatever the bytes are does not. Nobody catches it while bytes are made up, so
/// that the process ends where it was thrown.
class Finding : public std::logic_error
{
public:
    using std::logic_error::logic_error;
};

/// Throws a Finding of this name where it does not hold.
inline void require(bool holds, const char *what)
{
    if (!holds)
        throw Finding(what);
}

/// One door.
struct Target {
    enum class Input {
        Bytes,   ///< the bytes are what is let in
        Database ///< they are a DatabaseInput
    };

    const char *name;
    /// Lets bytes in.
    void (*attack)(QByteArrayView bytes);
    /// Honest inputs, to make others of. Throws sample::Failure.
    QList<QByteArray> (*seeds)();
    /// A file in Dictionaries, without its extension; empty for none.
    const char *dictionary = "";
    /// More bytes than these open no other doors and take longer.
    int longest = 4096;
    Input input = Input::Bytes;
};

/// Every door.
const std::vector<Target> &allTargets();

} // namespace roamlet::fuzz
