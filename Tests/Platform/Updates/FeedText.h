// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace roamlet::testing
{

/// A feed around these items.
inline QByteArray feedText(const QByteArray &items)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
           "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">\n"
           "<channel><title>Roamlet</title>" +
           items + "</channel></rss>\n";
}

/// An item with this version and whatever else it shall hold.
inline QByteArray itemText(const QByteArray &version, const QByteArray &content)
{
    return "<item><title>Roamlet " + version + "</title><sparkle:version>" + version + "</sparkle:version>" +
           content + "</item>\n";
}

} // namespace roamlet::testing
