// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/SampleHome.h"

#include "SampleHome/HomeParts.h"
#include "SampleHome/Installations.h"
#include "SampleHome/PlainFiles.h"

#include <algorithm>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

/// Chrome and Edge with the further browsers, each once.
QList<BrowserSample> browsersOf(const Options &options)
{
    QList<BrowserSample> browsers{{u"chrome"_s, options.chromeProfiles}, {u"edge"_s, options.edgeProfiles}};
    for (const BrowserSample &further : options.furtherBrowsers) {
        const auto known = std::find_if(browsers.begin(), browsers.end(), [&](const BrowserSample &browser) {
            return browser.name == further.name;
        });
        if (known == browsers.end())
            browsers.append(further);
        else
            *known = further;
    }
    return browsers;
}

} // namespace

Contents build(const QString &homeFolder, const Options &options)
{
    HomeParts home{.folder = homeFolder, .options = options};
    makeFolder(homeFolder);
    for (const BrowserSample &sample : browsersOf(options)) {
        const Installation &browser = installation(sample.name);
        if (sample.profiles > 0 && browser.arrangement == Arrangement::Firefox)
            writeFirefox(home, browser, sample.profiles);
        else if (sample.profiles > 0)
            writeChromium(home, browser, sample.profiles);
    }
    if (options.layout == Layout::Mac && options.safariProfiles >= 0)
        writeSafari(home);
    return home.contents;
}

} // namespace roamlet::sample
