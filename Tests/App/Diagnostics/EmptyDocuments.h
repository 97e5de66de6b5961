// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace roamlet::testing
{

/// What a source without bookmarks is exported to.
const QByteArray emptyHtml = "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
                             "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
                             "<TITLE>Bookmarks</TITLE>\n<H1>Bookmarks</H1>\n<DL><p>\n</DL><p>\n";
const QByteArray emptyMarkdown = "# Bookmarks\n";
const QByteArray emptyCsv = "Browser,Profile,Folder,Title,URL,Added\r\n";

} // namespace roamlet::testing
