// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Readers/ReaderTest.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SqliteFile.h"

#include <functional>
#include <optional>
#include <vector>

namespace roamlet::testing
{

/// A home with one small file of each kind, and what reads each of them.
class EveryReader : public ReaderTest
{
protected:
    struct Reading {
        const char *name;
        /// The file that is read.
        QString path;
        /// Reads it, looks at what comes out and returns the error, if there was one.
        std::function<std::optional<ReadError>(const ReadContext &)> read;
        bool isDatabase;
        /// Profile lists report nothing: where they cannot be read, there are no profiles. Nor do encrypted
        /// bookmarks, which are never read.
        bool reportsErrors;
        /// The statements that make the tables that are read, with one row each.
        const char *tables;
    };

    /// Each file has a profile of its own: a good one beside a bad one makes another answer.
    static inline const QString accountProfile = QStringLiteral("Account");
    static inline const QString encryptedProfile = QStringLiteral("Encrypted");

    EveryReader();

    /// Writes all files anew, the databases in this state.
    void writeHome(sample::Journal journal = sample::Journal::Clean,
                   sample::PropertyListFormat format = sample::PropertyListFormat::Binary) const;

    std::vector<Reading> readings;
};

} // namespace roamlet::testing
