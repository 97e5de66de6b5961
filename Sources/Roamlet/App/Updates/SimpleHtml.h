// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>

namespace roamlet
{

/// What is left of HTML from elsewhere: words, headings, paragraphs, lists, emphasis and links to web pages.
/// Laying out HTML can take as long as its author likes, and tables take twice as long with each level of
/// nesting; so the result is short, without tables, styles or pictures, and nested only so deep.
QString simpleHtml(QStringView html);

} // namespace roamlet
