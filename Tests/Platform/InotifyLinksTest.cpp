// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/InotifyFileEventsTest.h"

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// Watched folders that are reached through links, which come, go and lead elsewhere.
class InotifyLinksTest : public InotifyFileEventsTest
{
protected:
    /// Makes a link lead to another place in one step, as snapd does at each update.
    void redirect(const QString &name, const QString &target) const
    {
        link(target, u"next"_s);
        rename(u"next"_s, name);
    }
};

TEST_F(InotifyLinksTest, linksToFoldersAreFollowed)
{
    write(u"data/Default/History"_s);
    write(u"profile/History"_s);
    link(u"data"_s, u"root"_s);
    link(u"profile"_s, u"data/Linked"_s);
    watch({u"root"_s});
    write(u"root/Default/History"_s, "y");
    write(u"root/Linked/History"_s, "y");
    EXPECT_EQ(changes(), (Paths{"root/Default/History", "root/Linked/History"}))
        << "under the names that were asked for";
}

TEST_F(InotifyLinksTest, linksToFoldersThatAppearLaterArePickedUp)
{
    write(u"data/Default/History"_s);
    write(u"profile/History"_s);
    watch({u"root"_s});
    link(u"data"_s, u"root"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
    link(u"profile"_s, u"root/Linked"_s);
    EXPECT_EQ(changes(), Paths{"root/Linked/History"});
    write(u"root/Linked/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Linked/History"});
}

TEST_F(InotifyLinksTest, aLinkOnTheWayIsFollowedToWhereItLeadsNow)
{
    for (const QString &version : {u"100"_s, u"101"_s, u"102"_s})
        write(u"snap/%1/config/root/Default/History"_s.arg(version));
    link(u"snap/100"_s, u"snap/current"_s);
    watch({u"snap/current/config/root"_s});
    const Paths history{"snap/current/config/root/Default/History"};
    for (const QString &version : {u"101"_s, u"102"_s, u"100"_s}) {
        SCOPED_TRACE(version.toStdString());
        redirect(u"snap/current"_s, u"snap/"_s % version);
        EXPECT_EQ(changes(), history) << "what lies there is new";
        write(u"snap/%1/config/root/Default/History"_s.arg(version), "y");
        EXPECT_EQ(changes(), history);
        for (const QString &other : {u"100"_s, u"101"_s, u"102"_s}) {
            if (other != version)
                write(u"snap/%1/config/root/Default/History"_s.arg(other), "z");
        }
        EXPECT_EQ(changes(), Paths()) << "the link does not lead there";
    }
}

TEST_F(InotifyLinksTest, everyFolderOfAPathMayBeALinkThatIsRedirected)
{
    for (const QString &name :
         {u"home"_s, u"home/config"_s, u"home/config/root"_s, u"home/config/root/Default"_s}) {
        SCOPED_TRACE(name.toStdString());
        const QString rest = u"home/config/root/Default/History"_s.sliced(name.size());
        write(u"old" % rest);
        write(u"new" % rest);
        if (name.contains(u'/'))
            make(name.first(name.lastIndexOf(u'/')));
        link(u"old"_s, name);
        watch({u"home/config/root"_s});
        redirect(name, u"new"_s);
        EXPECT_EQ(changes(), Paths{"home/config/root/Default/History"});
        write(u"old" % rest, "y");
        EXPECT_EQ(changes(), Paths());
        write(u"new" % rest, "y");
        EXPECT_EQ(changes(), Paths{"home/config/root/Default/History"});
        stream.reset();
        removeFile(name);
        for (const QString &folder : {u"old"_s, u"new"_s, u"home"_s})
            removeFolder(folder);
    }
}

TEST_F(InotifyLinksTest, aLinkThatIsGoneIsNoLongerFollowed)
{
    write(u"data/root/Default/History"_s);
    write(u"profile/History"_s);
    make(u"other root"_s);
    link(u"data"_s, u"way"_s);
    link(u"data/root"_s, u"root"_s);
    link(u"profile"_s, u"other root/Linked"_s);
    watch({u"way/root"_s, u"root"_s, u"other root"_s});
    removeFile(u"way"_s);
    rename(u"root"_s, u"away"_s);
    removeFile(u"other root/Linked"_s);
    EXPECT_EQ(changes(), Paths());
    write(u"data/root/Default/History"_s, "y");
    write(u"data/root/Profile 1/History"_s);
    write(u"profile/History"_s, "y");
    EXPECT_EQ(changes(), Paths());

    link(u"data"_s, u"way"_s);
    rename(u"away"_s, u"root"_s);
    EXPECT_EQ(changes(), (Paths{"root/Default/History", "root/Profile 1/History", "way/root/Default/History",
                                "way/root/Profile 1/History"}))
        << "it may come back";
    write(u"data/root/Default/History"_s, "z");
    EXPECT_EQ(changes(), (Paths{"root/Default/History", "way/root/Default/History"}));
}

TEST_F(InotifyLinksTest, aLinkMayLeadNowhereForAWhile)
{
    write(u"snap/100/root/Default/History"_s);
    link(u"snap/100"_s, u"snap/current"_s);
    watch({u"snap/current/root"_s});
    redirect(u"snap/current"_s, u"snap/101"_s);
    write(u"snap/100/root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths());
    write(u"snap/101/root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"snap/current/root/Default/History"});
    write(u"snap/101/root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"snap/current/root/Default/History"});
}

TEST_F(InotifyLinksTest, aFolderMayTakeThePlaceOfALinkAndBack)
{
    write(u"data/Default/History"_s);
    link(u"data"_s, u"root"_s);
    watch({u"root"_s});
    removeFile(u"root"_s);
    write(u"root/Default/Bookmarks"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/Bookmarks"});
    write(u"data/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths());
    rename(u"root"_s, u"away"_s);
    link(u"data"_s, u"root"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
    write(u"away/Default/Bookmarks"_s, "y");
    write(u"data/Default/History"_s, "z");
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyLinksTest, theOtherNameOfAFolderSurvivesItsLink)
{
    write(u"old/root/Default/History"_s);
    write(u"new/root/Default/History"_s);
    link(u"old"_s, u"current"_s);
    watch({u"old/root"_s, u"current/root"_s});
    redirect(u"current"_s, u"new"_s);
    EXPECT_EQ(changes(), Paths{"current/root/Default/History"});
    write(u"old/root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"old/root/Default/History"});
    write(u"new/root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"current/root/Default/History"});
}

} // namespace roamlet::testing
