// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/UpdateErrorText.h"

#include "Platform/Update.h"

#include <QSet>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

TEST(UpdateErrorTextTest, everyErrorHasASentenceOfItsOwn)
{
    QSet<QString> sentences;
    const int last = static_cast<int>(UpdateError::Code::NoInstaller);
    for (int code = 0; code <= last; ++code) {
        const QString text = updateErrorText({static_cast<UpdateError::Code>(code), {}});
        EXPECT_TRUE(text.endsWith(u'.')) << code;
        sentences.insert(text);
    }
    EXPECT_EQ(sentences.size(), last + 1);
}

TEST(UpdateErrorTextTest, theSystemsWordsStandBehindIt)
{
    EXPECT_EQ(updateErrorText({UpdateError::Code::CannotWrite, u"No space left on device"_s}),
              u"The update cannot be saved. (No space left on device)"_s);
    EXPECT_EQ(updateErrorText({UpdateError::Code::NetworkFailed, u"Host %1 not found"_s}),
              u"The update server cannot be reached, or the connection was lost. (Host %1 not found)"_s);
}

} // namespace
} // namespace roamlet::testing
