// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "ProgramTest.h"

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

const std::string ProgramTest::seconds = "[0-9]+\\.[0-9][0-9]";

const QList<QStringList> ProgramTest::readingJobs{
    {u"--summary"_s},
    {u"--top"_s},
    {u"--search"_s, u"page"_s},
    {u"--site"_s, u"example.org"_s},
    {u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s}};

std::vector<std::string> ProgramTest::linesOf(const QStringList &arguments) const
{
    const Ended ended = program.run(arguments);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.errors, "");
    std::vector<std::string> lines;
    for (const QString &line : ended.lines())
        lines.push_back(line.toStdString());
    return lines;
}

} // namespace roamlet::testing
