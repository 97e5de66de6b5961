// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DesktopSearch/PageID.h"

#include <QUrl>

namespace roamlet
{

using namespace Qt::StringLiterals;

QString PageID::text() const
{
    // Names of profiles hold blanks.
    return QString::fromLatin1(QUrl::toPercentEncoding(sourceID)) % u' ' % url;
}

std::optional<PageID> PageID::of(const QString &text)
{
    const qsizetype blank = text.indexOf(u' ');
    if (blank <= 0 || blank + 1 == text.size())
        return {};
    return PageID{.sourceID = QUrl::fromPercentEncoding(text.first(blank).toUtf8()),
                  .url = text.sliced(blank + 1)};
}

} // namespace roamlet
