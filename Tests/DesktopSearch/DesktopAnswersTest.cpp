// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DesktopSearch/DesktopAnswers.h"

#include "DesktopSearch/PageID.h"
#include "Library/ProfileChoice.h"
#include "Library/SearchTexts.h"
#include "Opening/Opener.h"
#include "SampleHome/FirefoxFiles.h"
#include "Support/FakeWorkspace.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QDir>
#include <QFile>

#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <optional>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class DesktopAnswersTest : public LibraryHome
{
protected:
    void SetUp() override { addChromium(); }
    void TearDown() override
    {
        answers.reset();
        EXPECT_EQ(home.leftovers(), QStringList());
        LibraryHome::TearDown();
    }

    QList<FoundPage> pages(const std::function<void(const DesktopQuestions::Answer &)> &ask)
    {
        std::optional<QList<FoundPage>> result;
        ask([&result](const QList<FoundPage> &found) { result = found; });
        EXPECT_TRUE(waitUntil([&result] { return result.has_value(); }));
        return result.value_or(QList<FoundPage>());
    }
    QList<FoundPage> search(const QString &text)
    {
        return pages([&](const auto &answer) { answers->search(text, answer); });
    }
    QList<FoundPage> describe(const QStringList &ids)
    {
        return pages([&](const auto &answer) { answers->describe(ids, answer); });
    }
    QStringList titlesFor(const QString &text)
    {
        QStringList result;
        for (const FoundPage &page : search(text))
            result.append(page.title);
        return result;
    }
    /// Whatever was asked before has been answered by then.
    void finish() { describe({u"no-id"_s, PageID{.sourceID = u"chrome/Default"_s, .url = u"x"_s}.text()}); }
    Source chrome(const QString &profile)
    {
        return {.kind = Source::Kind::Chrome, .profile = profile, .name = {}, .safariBookmarks = {}};
    }

    FakeWorkspace workspace;
    Opener opener{workspace};
    QStringList tokens;
    int silences = 0;
    std::unique_ptr<DesktopAnswers> answers = std::make_unique<DesktopAnswers>(
        DesktopAnswers::Services{.platform = home.platform(),
                                 .open =
                                     [this](const QString &url, const Source &source, const QString &token) {
                                         tokens.append(token);
                                         opener.openLinks({{.url = url, .source = source}});
                                     },
                                 .fallSilent = [this] { ++silences; }});
};

TEST_F(DesktopAnswersTest, pagesOfAllProfilesAreFoundTheBestFirst)
{
    setChromeHistory(u"Default"_s, {u"About gardens"_s, u"Kindergarden"_s});
    setChromeHistory(u"Profile 1"_s, {u"Garden plans"_s});
    EXPECT_EQ(titlesFor(u"garden"_s),
              (QStringList{u"Garden plans"_s, u"About gardens"_s, u"Kindergarden"_s}));
    EXPECT_EQ(titlesFor(u"garden plans"_s), QStringList{u"Garden plans"_s});
    EXPECT_EQ(titlesFor(u"nowhere"_s), QStringList());
}

TEST_F(DesktopAnswersTest, aPageSaysWhatItIsAndWhereItIsFrom)
{
    const QList<FoundPage> found = search(u"fox"_s);
    EXPECT_EQ(found, QList<FoundPage>());
    addFirefox();
    home.clock.advance(DesktopAnswers::profilesLast);
    const QList<FoundPage> later = search(u"fox"_s);
    ASSERT_EQ(later.size(), 1);
    EXPECT_EQ(later.first(),
              (FoundPage{
                  .id = PageID{.sourceID = u"firefox/abc.default"_s, .url = u"https://fox.example/"_s}.text(),
                  .title = u"Fox"_s,
                  .url = u"https://fox.example/"_s,
                  .source = u"Firefox - default"_s,
                  .icon = {}}));
}

TEST_F(DesktopAnswersTest, fewerThanThreeLettersGiveNothing)
{
    setChromeHistory(u"Default"_s, {u"a b c"_s});
    EXPECT_EQ(titlesFor(u""_s), QStringList());
    EXPECT_EQ(titlesFor(u"a b"_s), QStringList());
    EXPECT_EQ(titlesFor(u"  a  b "_s), QStringList());
    EXPECT_EQ(titlesFor(u"a b c"_s), QStringList{u"a b c"_s});
}

TEST_F(DesktopAnswersTest, noMoreThanAListHasRoomForAreGiven)
{
    setChromePages(u"Default"_s, 100, u"https://many.example/"_s);
    EXPECT_EQ(search(u"many"_s).size(), static_cast<qsizetype>(DesktopAnswers::mostPages));
}

TEST_F(DesktopAnswersTest, whatIsSwitchedOffMeanwhileIsNotFound)
{
    setChromeHistory(u"Default"_s, {u"word here"_s});
    setChromeHistory(u"Profile 1"_s, {u"word there"_s});
    ASSERT_EQ(search(u"word"_s).size(), 2);
    const QString id = search(u"here"_s).first().id;
    ProfileChoice(home.defaults).setEnabled(false, chrome(u"Default"_s));
    EXPECT_EQ(titlesFor(u"word"_s), QStringList{u"word there"_s});
    EXPECT_EQ(describe({id}), QList<FoundPage>());
    answers->open(id, {});
    finish();
    EXPECT_EQ(workspace.requests, QList<QStringList>());
}

TEST_F(DesktopAnswersTest, nothingIsAnsweredWhenTheUserWantsNoneOfIt)
{
    setChromeHistory(u"Default"_s, {u"word"_s});
    const QString id = search(u"word"_s).first().id;
    home.defaults.setBoolean(DesktopAnswers::isOnKey, false);
    recordReads();
    EXPECT_EQ(search(u"word"_s), QList<FoundPage>());
    EXPECT_EQ(describe({id}), QList<FoundPage>());
    answers->open(id, {});
    answers->prepare();
    EXPECT_EQ(takeReads(), QStringList());
    EXPECT_EQ(workspace.requests, QList<QStringList>());
    home.defaults.setBoolean(DesktopAnswers::isOnKey, true);
    EXPECT_EQ(titlesFor(u"word"_s), QStringList{u"word"_s});
}

TEST_F(DesktopAnswersTest, aDatabaseThatChangesIsReadAgainAndAnotherIsNot)
{
    setChromeHistory(u"Default"_s, {u"word one"_s});
    recordReads();
    EXPECT_EQ(titlesFor(u"word"_s), QStringList{u"word one"_s});
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"chrome/Profile 1"_s, u"edge/Default"_s}));
    EXPECT_EQ(titlesFor(u"word"_s), QStringList{u"word one"_s});
    EXPECT_EQ(takeReads(), QStringList());
    setChromeHistory(u"Default"_s, {u"word two"_s});
    EXPECT_EQ(titlesFor(u"word"_s), QStringList{u"word two"_s});
    EXPECT_EQ(takeReads(), QStringList{u"chrome/Default"_s});
}

TEST_F(DesktopAnswersTest, whereThereIsNoMemoryTheDatabasesAnswer)
{
    setChromeHistory(u"Default"_s, {u"Kindergarden"_s, u"Garden"_s});
    home.defaults.setString(textLimitKey, u"0"_s);
    EXPECT_EQ(titlesFor(u"garden"_s), (QStringList{u"Garden"_s, u"Kindergarden"_s}));
}

TEST_F(DesktopAnswersTest, whatCannotBeReadIsLeftOutAndTriedAgain)
{
    setChromeHistory(u"Default"_s, {u"word one"_s});
    setChromeHistory(u"Profile 1"_s, {u"word two"_s});
    fail(chromeFile(u"Default/History"_s), std::errc::permission_denied);
    EXPECT_EQ(titlesFor(u"word"_s), QStringList{u"word two"_s});
    home.files.failure = nullptr;
    EXPECT_EQ(titlesFor(u"word"_s), QStringList{u"word two"_s});
    home.clock.advance(DesktopAnswers::profilesLast);
    EXPECT_EQ(titlesFor(u"word"_s).size(), 2);
}

TEST_F(DesktopAnswersTest, aPageOpensInItsBrowserAndProfile)
{
    setChromeHistory(u"Profile 1"_s, {u"word"_s});
    const FoundPage page = search(u"word"_s).first();
    answers->open(page.id, u"token"_s);
    EXPECT_TRUE(waitUntil([this] { return !workspace.requests.isEmpty(); }));
    EXPECT_EQ(workspace.requests,
              (QList<QStringList>{{u"profile"_s, u"chrome"_s, u"Profile 1"_s, page.url}}));
    EXPECT_EQ(tokens, QStringList{u"token"_s});
}

TEST_F(DesktopAnswersTest, anIdOutlivesTheOneWhoGaveIt)
{
    answers->open(PageID{.sourceID = u"chrome/Default"_s, .url = u"https://a.example/"_s}.text(), {});
    EXPECT_TRUE(waitUntil([this] { return !workspace.requests.isEmpty(); }));
    EXPECT_EQ(workspace.requests,
              (QList<QStringList>{{u"profile"_s, u"chrome"_s, u"Default"_s, u"https://a.example/"_s}}));
    const QList<FoundPage> described =
        describe({PageID{.sourceID = u"chrome/Default"_s, .url = u"https://a.example/"_s}.text()});
    ASSERT_EQ(described.size(), 1);
    EXPECT_EQ(described.first().title, u"https://a.example/");
}

TEST_F(DesktopAnswersTest, whatIsNoIdIsNothing)
{
    const QStringList texts{u""_s,
                            u"org.roamlet"_s,
                            u"chrome/Default"_s,
                            u"nobody https://a.example/"_s,
                            u"%FF%00 https://a.example/"_s,
                            u"x"_s.repeated(100'000),
                            u" "_s.repeated(1000)};
    EXPECT_EQ(describe(texts), QList<FoundPage>());
    for (const QString &text : texts)
        answers->open(text, {});
    // A known profile, and a text that its browser would take for an option.
    answers->open(PageID{.sourceID = u"chrome/Default"_s, .url = u"--option"_s}.text(), {});
    finish();
    EXPECT_EQ(workspace.requests, QList<QStringList>());
}

TEST_F(DesktopAnswersTest, aBrowserThatWasRemovedOpensNothing)
{
    setChromeHistory(u"Default"_s, {u"word"_s});
    const QString id = search(u"word"_s).first().id;
    change([this] { ASSERT_TRUE(QDir(chromeFile(u"."_s)).removeRecursively()); });
    EXPECT_EQ(titlesFor(u"word"_s), QStringList());
    home.clock.advance(DesktopAnswers::profilesLast);
    answers->open(id, {});
    finish();
    EXPECT_EQ(workspace.requests, QList<QStringList>());
}

TEST_F(DesktopAnswersTest, aThousandQuestionsAtOnceAreAllAnswered)
{
    setChromeHistory(u"Default"_s, {u"word"_s, u"number 017"_s});
    recordReads();
    int answered = 0;
    int found = 0;
    for (int i = 0; i < 1000; ++i)
        answers->search(i % 2 == 0 ? u"word"_s : u"number %1"_s.arg(i, 3, 10, QChar(u'0')),
                        [&](const QList<FoundPage> &pages) {
                            ++answered;
                            found += static_cast<int>(pages.size());
                        });
    EXPECT_TRUE(waitUntil([&answered] { return answered == 1000; }));
    EXPECT_EQ(found, 501);
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"chrome/Profile 1"_s, u"edge/Default"_s}));
}

TEST_F(DesktopAnswersTest, aQuestionOfAHundredThousandLettersFindsNothing)
{
    recordReads();
    EXPECT_EQ(titlesFor(u"x"_s.repeated(100'000)), QStringList());
    EXPECT_EQ(titlesFor(u"word "_s.repeated(20'000)), QStringList());
    // Nobody has even looked.
    EXPECT_EQ(takeReads(), QStringList());
    EXPECT_EQ(titlesFor(u"zq "_s.repeated(333)), QStringList());
    EXPECT_EQ(titlesFor(QString(u"abc"_s + QChar(QChar::Null))), QStringList());
}

TEST_F(DesktopAnswersTest, iconsComeWithTheNextAnswer)
{
    change([this] {
        sample::writeHistory(chromeFile(u"Default/History"_s),
                             {sample::HistoryRow{.url = u"https://icon.example/page"_s,
                                                 .title = u"word"_s,
                                                 .lastVisitTime = sample::chromiumTime(newest)}});
    });
    setChromeIcon(u"Default"_s, u"https://icon.example/"_s, png(16, Qt::red));
    const FoundPage first = search(u"word"_s).first();
    const FoundPage described = describe({first.id}).first();
    ASSERT_TRUE(described.icon);
    EXPECT_EQ(described.icon->width, 16);
    EXPECT_EQ(described.icon->bytes.first(4), QByteArray("\xFF\x00\x00\xFF", 4));
    EXPECT_EQ(described.title, first.title);
    EXPECT_EQ(search(u"word"_s).first().icon, described.icon);
}

TEST_F(DesktopAnswersTest, whoTypesDoesNotWaitForIconsAndWhoWantsDetailsDoes)
{
    setChromeHistory(u"Default"_s, {u"word"_s});
    setChromeIcon(u"Default"_s, u"https://word.example/"_s, png(16, Qt::red));
    Gate gate;
    home.files.afterCopy = [&gate](const QString &source) {
        if (source.endsWith(u"/Favicons"))
            gate.pass();
    };
    const QString id = search(u"word"_s).first().id;
    gate.awaitReader();
    std::optional<QList<FoundPage>> described;
    answers->describe({id}, [&described](const QList<FoundPage> &pages) { described = pages; });
    EXPECT_EQ(titlesFor(u"word"_s), QStringList{u"word"_s});
    EXPECT_FALSE(described);
    gate.open();
    EXPECT_TRUE(waitUntil([&described] { return described.has_value(); }));
    EXPECT_TRUE(described->first().icon);
}

TEST_F(DesktopAnswersTest, iconsThatCannotBeReadAreNone)
{
    setChromeHistory(u"Default"_s, {u"word"_s});
    change([this] {
        QFile file(chromeFile(u"Default/Favicons"_s));
        ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write("no database") > 0);
    });
    const QString id = search(u"word"_s).first().id;
    EXPECT_FALSE(describe({id}).first().icon);
}

TEST_F(DesktopAnswersTest, titlesAreOneLineAndNoLongerThanAnyListIsWide)
{
    setChromeHistory(u"Default"_s, {QString(u"word\n\ttwo "_s + u"x"_s.repeated(5000))});
    const QString title = search(u"word"_s).first().title;
    EXPECT_TRUE(title.startsWith(u"word two xxx"_s)) << title.left(30).toStdString();
    EXPECT_LE(title.size(), 500);
}

TEST_F(DesktopAnswersTest, marksThatTurnATextAroundAreNotShown)
{
    setChromeHistory(u"Default"_s, {u"quokka \u202Etxt.exe\u202C\u2067\u0007 שלום"_s});
    EXPECT_EQ(titlesFor(u"quokka"_s), QStringList{u"quokka txt.exe שלום"_s});
    // The id keeps the address as it is, and only what is shown of it is another one.
    const QString url = u"https://a.example/\u202Egpj"_s;
    const QList<FoundPage> page = describe({PageID{.sourceID = u"chrome/Default"_s, .url = url}.text()});
    ASSERT_EQ(page.size(), 1);
    EXPECT_EQ(page.first().url, u"https://a.example/ gpj");
    EXPECT_EQ(PageID::of(page.first().id)->url, url);
}

TEST_F(DesktopAnswersTest, aWordIsLookedForOnceAndOfManyOnlyTheFirst)
{
    setChromeHistory(u"Default"_s, {u"one two three four five six seven eight nine ten eleven twelve"_s});
    EXPECT_EQ(search(u"two "_s.repeated(200)).size(), 1);
    EXPECT_EQ(search(u"one two three four five six seven eight nine ten eleven twelve nowhere"_s).size(), 1);
    EXPECT_EQ(search(u"one two three nowhere"_s).size(), 0);
}

TEST_F(DesktopAnswersTest, noMorePagesAreDescribedThanAnAnswerHas)
{
    QStringList ids;
    for (int i = 0; i < 1000; ++i)
        ids.append(PageID{.sourceID = u"chrome/Default"_s, .url = u"https://%1.example/"_s.arg(i)}.text());
    EXPECT_EQ(describe(ids).size(), static_cast<qsizetype>(DesktopAnswers::mostPages));
}

TEST_F(DesktopAnswersTest, afterAMinuteOfSilenceItIsOver)
{
    home.clock.advance(59s);
    search(u"word"_s);
    home.clock.advance(59s);
    EXPECT_EQ(silences, 0);
    home.clock.advance(1s);
    EXPECT_EQ(silences, 1);
    // Nothing waits for its time any more.
    EXPECT_EQ(home.clock.waiting(), 0U);
}

TEST_F(DesktopAnswersTest, itEndsInTheMiddleOfAnAnswer)
{
    Gate gate;
    recordReads(&gate);
    bool isAnswered = false;
    answers->search(u"word"_s, [&isAnswered](const QList<FoundPage> & /*pages*/) { isAnswered = true; });
    gate.awaitReader();
    gate.open();
    answers.reset();
    EXPECT_FALSE(isAnswered);
}

} // namespace
} // namespace roamlet::testing
