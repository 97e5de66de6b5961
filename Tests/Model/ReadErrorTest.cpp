// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/ReadError.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A domain of errors as other systems have them.
class Domain final : public std::error_category
{
public:
    explicit Domain(const char *name) : m_name(name) {}
    const char *name() const noexcept override { return m_name; }
    std::string message(int code) const override { return "reason " + std::to_string(code) + " über"; }

private:
    const char *m_name;
};

const Domain cocoa("NSCocoaErrorDomain");
const Domain other("OtherErrorDomain");

std::error_code posix(int code)
{
    return {code, std::generic_category()};
}

const QString path = u"/home/x/History"_s;

} // namespace

TEST(ReadError, saysThatAccessWasRefused)
{
    const ReadError error = ReadError::noAccess(path);
    EXPECT_EQ(error.kind(), ReadError::Kind::NoAccess);
    EXPECT_EQ(error.path(), path);
    EXPECT_EQ(error.errorDescription(), u"macOS blocked access to /home/x/History."_s);
}

TEST(ReadError, saysWhyAFileCannotBeRead)
{
    const ReadError error = ReadError::unreadable(path, u"file is not a database"_s);
    EXPECT_EQ(error.kind(), ReadError::Kind::Unreadable);
    EXPECT_EQ(error.path(), path);
    EXPECT_EQ(error.reason(), u"file is not a database"_s);
    EXPECT_EQ(error.errorDescription(), u"Couldn't read /home/x/History: file is not a database"_s);
    EXPECT_EQ(ReadError::unreadable(u"query"_s, u"no such table: urls"_s).errorDescription(),
              u"Couldn't read query: no such table: urls"_s);
    EXPECT_EQ(ReadError::unreadable({}, {}).errorDescription(), u"Couldn't read : "_s);
}

TEST(ReadError, aRefusalBecomesNoAccess)
{
    for (const std::error_code error :
         {posix(EPERM), posix(EACCES), std::error_code(EPERM, std::system_category()),
          std::error_code(EACCES, std::system_category()), std::error_code(257, cocoa)})
        EXPECT_EQ(ReadError::wrap(error, path), ReadError::noAccess(path)) << error;
}

TEST(ReadError, anythingElseIsUnreadableForItsReason)
{
    for (const std::error_code error :
         {posix(ENOENT), posix(EIO), posix(ENOSPC), posix(257),
          std::error_code(ENOENT, std::system_category()), std::error_code(260, cocoa),
          std::error_code(1, cocoa), std::error_code(13, cocoa), std::error_code(257, other),
          std::error_code(1, other), std::error_code(13, other)})
        EXPECT_EQ(ReadError::wrap(error, path),
                  ReadError::unreadable(path, QString::fromStdString(error.message())))
            << error;
    EXPECT_EQ(ReadError::wrap(std::error_code(4, other), path).reason(), u"reason 4 über"_s);
}

TEST(ReadError, aRefusalUnderneathCountsToo)
{
    for (const std::error_code underlying : {posix(EACCES), posix(EPERM), std::error_code(257, cocoa)}) {
        EXPECT_EQ(ReadError::wrap(posix(EIO), path, underlying), ReadError::noAccess(path)) << underlying;
        EXPECT_EQ(ReadError::wrap(std::error_code(512, cocoa), path, underlying), ReadError::noAccess(path));
    }
    EXPECT_EQ(ReadError::wrap(posix(EACCES), path, posix(EIO)), ReadError::noAccess(path));
}

TEST(ReadError, theReasonIsTheOuterErrors)
{
    const ReadError error = ReadError::wrap(std::error_code(7, other), path, posix(ENOSPC));
    EXPECT_EQ(error, ReadError::unreadable(path, u"reason 7 über"_s));
}

TEST(ReadError, anErrorThatWasWrappedStaysAsItIs)
{
    const ReadError query = ReadError::unreadable(u"query"_s, u"disk image is malformed"_s);
    EXPECT_EQ(ReadError::wrap(query, path), query);
    const ReadError refused = ReadError::noAccess(u"/other"_s);
    EXPECT_EQ(ReadError::wrap(refused, path), refused);
}

TEST(ReadError, equalityCoversEveryField)
{
    EXPECT_NE(ReadError::noAccess(path), ReadError::noAccess(u"/other"_s));
    EXPECT_NE(ReadError::noAccess(path), ReadError::unreadable(path, {}));
    EXPECT_NE(ReadError::unreadable(path, u"a"_s), ReadError::unreadable(path, u"b"_s));
    EXPECT_NE(ReadError::unreadable(path, u"a"_s), ReadError::unreadable(u"/other"_s, u"a"_s));
    EXPECT_EQ(ReadError::unreadable(path, u"a"_s), ReadError::unreadable(path, u"a"_s));
    EXPECT_LT(ReadError::Kind::NoAccess, ReadError::Kind::Unreadable);
}

} // namespace roamlet::testing
