// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/SourceIcons.h"

#include "Model/Browser.h"
#include "Opening/Opener.h"
#include "Support/FakeWorkspace.h"
#include "Support/LibraryHome.h"

#include <QWidget>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class SourceIconsTest : public LibraryHome
{
protected:
    Source source(const QString &id) const
    {
        for (const Source &each : library.snapshot().browserProfiles) {
            if (each.id() == id)
                return each;
        }
        ADD_FAILURE() << "there is no " << qPrintable(id);
        return {};
    }
    QImage drawn(const QString &id)
    {
        return icons.of(source(id)).pixmap(QSize(32, 32), 1).toImage().convertToFormat(QImage::Format_ARGB32);
    }
    QColor middle(const QString &id) { return drawn(id).pixelColor(16, 16); }
    /// Invisible for a profile without one.
    QColor dot(const QString &id)
    {
        const QImage image = drawn(id);
        return image.pixelColor(19, 26).alpha() == 0 ? image.pixelColor(26, 26) : QColor(Qt::transparent);
    }

    const QString personal = u"chrome/Default"_s;
    const QString work = u"chrome/Profile 1"_s;
    const QString office = u"edge/Default"_s;
    const QColor none = Qt::transparent;
    const QColor first{0xf0, 0x8c, 0x00};
    const QColor second{0xd6, 0x33, 0x6c};
    const QColor third{0x12, 0xb8, 0x86};

    Library library{home.platform()};
    FakeWorkspace workspace;
    Opener opener{workspace};
    QWidget widget;
    SourceIcons icons{library, opener, widget};
};

TEST_F(SourceIconsTest, profilesOfOneBrowserHaveDots)
{
    addChromium();
    loadNow(library);
    EXPECT_EQ(dot(personal), first);
    EXPECT_EQ(dot(work), second);
    EXPECT_EQ(dot(office), none) << "it is Edge's only one";
}

TEST_F(SourceIconsTest, profilesOfAllInstallationsCount)
{
    addChromium();
    addChromeBeta();
    loadNow(library);
    EXPECT_EQ(dot(work), second);
    EXPECT_EQ(dot(u"chrome@beta/Default"_s), third);
}

TEST_F(SourceIconsTest, whereOnlyOneProfileIsShownThereIsNoDot)
{
    addChromium();
    loadNow(library);
    library.setEnabled(false, source(personal));
    loadNow(library);
    EXPECT_EQ(dot(work), none);
}

TEST_F(SourceIconsTest, aProfileKeepsItsColorWhenOthersAreMovedOrTurnedOff)
{
    addChromium();
    addChromeBeta();
    loadNow(library);
    library.moveProfiles({0}, 3);
    library.setEnabled(false, source(personal));
    loadNow(library);
    EXPECT_EQ(dot(work), second);
    EXPECT_EQ(dot(u"chrome@beta/Default"_s), third);
}

TEST_F(SourceIconsTest, anInstalledBrowsersOwnIconWinsAndHasTheDotToo)
{
    workspace.icons = {{u"chrome"_s, Qt::red}};
    addChromium();
    loadNow(library);
    EXPECT_EQ(middle(personal), QColor(Qt::red));
    EXPECT_EQ(middle(work), QColor(Qt::red));
    EXPECT_EQ(dot(work), second);
    EXPECT_NE(middle(office), QColor(Qt::red));
}

TEST_F(SourceIconsTest, anIconIsMadeOnceAndABrowserIsAskedForOnce)
{
    addChromium();
    loadNow(library);
    const qint64 made = icons.of(source(personal)).cacheKey();
    EXPECT_EQ(icons.of(source(personal)).cacheKey(), made);
    EXPECT_NE(icons.of(source(work)).cacheKey(), made);
    EXPECT_EQ(workspace.iconRequests, 1);
}

TEST_F(SourceIconsTest, aNewSnapshotFindsWhatWasInstalledMeanwhile)
{
    addChromium();
    loadNow(library);
    EXPECT_NE(middle(office), QColor(Qt::blue));
    workspace.icons = {{u"edge"_s, Qt::blue}};
    loadNow(library);
    EXPECT_EQ(middle(office), QColor(Qt::blue));
}

} // namespace
} // namespace roamlet::testing
