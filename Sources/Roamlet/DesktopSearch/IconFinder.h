// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"
#include "Platform/DesktopQuestions.h"
#include "Readers/PageIcons.h"
#include "Readers/ReadContext.h"

#include <QHash>
#include <QString>

#include <map>
#include <optional>

namespace roamlet
{

/// Finds the icons of the sites of pages. Any thread, but one at a time.
class IconFinder
{
public:
    /// Nothing for a site that has none. The keys are key().
    using Icons = QHash<QString, std::optional<IconPixels>>;
    /// A page of each site whose icon is wanted.
    struct Wanted {
        QString url;
        Source source;
    };

    /// Each profile has icons of its own.
    static QString key(const QString &url, const Source &source);
    /// What each of these keys has.
    Icons find(const QHash<QString, Wanted> &wanted, const ReadContext &context);

private:
    /// By source id, each opened when it is first needed; nothing where it cannot be read.
    std::map<QString, std::optional<PageIcons>> m_stores;
};

} // namespace roamlet
