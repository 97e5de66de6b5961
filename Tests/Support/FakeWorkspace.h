// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

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
    bool hasApplication(const QString &bundleID) const override { return icons.contains(bundleID); }
    std::optional<QImage> icon(const QString &bundleID, int side, qreal devicePixelRatio) const override
    {
        ++iconRequests;
        if (!icons.contains(bundleID))
            return {};
        const int pixels = qRound(side * devicePixelRatio);
        QImage image(pixels, pixels, QImage::Format_ARGB32);
        image.fill(icons.value(bundleID));
        image.setDevicePixelRatio(devicePixelRatio);
        return image;
    }
    void open(const QStringList &urls, const QString &bundleID) override
    {
        requests.append(QStringList{QStringLiteral("open"), bundleID} + urls);
    }
    void openSystemURL(const QString &url) override
    {
        requests.append(QStringList{QStringLiteral("system"), url});
    }
    void start(const QString &program, const QStringList &arguments) override
    {
        requests.append(QStringList{QStringLiteral("start"), program} + arguments);
    }
    bool openInProfile(const QStringList &urls, const QString &bundleID, const QString &profile) override
    {
        if (reachesProfiles)
            requests.append(QStringList{QStringLiteral("profile"), bundleID, profile} + urls);
        return reachesProfiles;
    }
    bool showPage(const QString &page, const QString &bundleID,
                  const std::optional<QString> &profile) override
    {
        if (reachesProfiles) {
            const QString name = profile.value_or(QStringLiteral("(no profile)"));
            requests.append(QStringList{QStringLiteral("page"), bundleID, name, page});
        }
        return reachesProfiles;
    }

    /// Whether the system has its own way to open something in a profile; otherwise commands have to do.
    bool reachesProfiles = true;
    /// The applications that are installed, by bundle identifier, and the colours of their icons.
    QHash<QString, Qt::GlobalColor> icons;
    /// What was asked, in order: the operation, who it is for, what for.
    QList<QStringList> requests;
    mutable int iconRequests = 0;
};

} // namespace roamlet::testing
