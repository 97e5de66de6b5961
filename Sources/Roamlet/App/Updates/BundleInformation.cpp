// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/BundleInformation.h"

#include "Readers/Files/PropertyList.h"

#include <QFile>

/// The resources of a static library are there only once somebody asks for them, from outside of any
/// namespace.
// NOLINTNEXTLINE(misc-use-anonymous-namespace)
static void useResources()
{
    Q_INIT_RESOURCE(Information);
}

namespace roamlet
{

using namespace Qt::StringLiterals;

BundleInformation BundleInformation::parse(const QByteArray &propertyList)
{
    const auto parsed = PropertyList::parse(propertyList);
    if (!parsed)
        return {};
    const auto text = [&parsed](const char *key) {
        return parsed->root().member(key).string().value_or(QString());
    };
    return {.name = text("CFBundleName"),
            .version = text("CFBundleVersion"),
            .feedURL = text("SUFeedURL"),
            .publicKey = text("SUPublicEDKey")};
}

BundleInformation BundleInformation::ofThisProgram()
{
    useResources();
    QFile file(u":/Info.plist"_s);
    return file.open(QIODevice::ReadOnly) ? parse(file.readAll()) : BundleInformation();
}

} // namespace roamlet
