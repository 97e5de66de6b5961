// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/Source.h"

#include <QList>
#include <QString>

#include <array>
#include <expected>
#include <optional>

/// Turns bookmarks into a file that other programs read. Pure functions but for write(); any thread.
namespace roamlet::BookmarkExport
{

enum class Format { Html, Markdown, Csv };

/// Every format, in the order in which they are offered.
inline constexpr std::array formats{Format::Html, Format::Markdown, Format::Csv};

/// "html", "markdown" or "csv".
QString rawValue(Format format);
/// The format with this raw value, or nothing.
std::optional<Format> format(QStringView rawValue);
/// The name of the format's MIME type.
QString type(Format format);
/// The usual ending of the format's files, without a dot.
QString fileNameExtension(Format format);
/// The whole file text. HTML and Markdown show the tree, CSV the flat list.
QString render(Format format, const QList<BookmarkNode> &tree, const QList<Bookmark> &flat);
/// Whether the file would be little but the blanks before folders that lie in folders: each level adds some
/// to every line below it, and a foreign file decides how many levels there are.
bool isTooDeep(Format format, const QList<BookmarkNode> &tree);
/// The file name to suggest, without an extension; for all sources when none is given.
QString fileName(const std::optional<Source> &source);
/// Writes a text as UTF-8, all of it or nothing: what stood at `path` stays until the new file is complete.
/// The system's words for what went wrong otherwise.
std::expected<void, QString> write(const QString &text, const QString &path);

} // namespace roamlet::BookmarkExport
