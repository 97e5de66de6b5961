// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Browser.h"
#include "Platform/Workspace.h"

#include <QHash>
#include <QList>
#include <QStringList>

namespace roamlet::testing
{

/// Writes down what was asked of it, and opens nothing.
class FakeWorkspace final : public Workspace
{
public:
    QList<Source::Kind> installedBrowsers() const override
    {
        QList<Source::Kind> installed;
        for (const Browser &browser : Browser::all()) {
            if (icons.contains(browser.rawValue))
                installed.append(browser.kind);
        }
        return installed;
    }
    std::optional<QImage> icon(Source::Kind browser, int side, qreal devicePixelRatio) const override
    {
        ++iconRequests;
        if (!icons.contains(Source::rawValue(browser)))
            return {};
        const int pixels = qRound(side * devicePixelRatio);
        QImage image(pixels, pixels, QImage::Format_ARGB32);
        image.fill(icons.value(Source::rawValue(browser)));
        image.setDevicePixelRatio(devicePixelRatio);
        return image;
    }
    bool open(const QStringList &urls, Source::Kind browser) override
    {
        requests.append(QStringList{QStringLiteral("open"), Source::rawValue(browser)} + urls);
        return browser != missing;
    }
    void openSystemURL(const QString &url) override
    {
        requests.append(QStringList{QStringLiteral("system"), url});
    }
    bool openInProfile(const QStringList &urls, const Source &source) override
    {
        requests.append(QStringList{QStringLiteral("profile"), placeOf(source), profileOf(source)} + urls);
        return source.kind != missing;
    }
    bool canShowPages(Source::Kind browser) const override { return browser != missing; }
    void showPage(const QString &page, const Source &source) override
    {
        requests.append(QStringList{QStringLiteral("page"), placeOf(source), profileOf(source), page});
    }

    /// The browsers that are installed, by raw value, and the colours of their icons.
    QHash<QString, Qt::GlobalColor> icons;
    /// The browser that this system cannot have.
    std::optional<Source::Kind> missing;
    /// What was asked, in order: the operation, who it is for, what for.
    QList<QStringList> requests;
    mutable int iconRequests = 0;

private:
    static QString placeOf(const Source &source)
    {
        const QString key = source.installation.isEmpty() ? QString() : QString(u'@' + source.installation);
        return Source::rawValue(source.kind) + key;
    }
    static QString profileOf(const Source &source)
    {
        return source.profile.value_or(QStringLiteral("(no profile)"));
    }
};

} // namespace roamlet::testing
