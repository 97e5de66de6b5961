// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Search/SearchService.h"

#include "DesktopSearch/DesktopAnswers.h"
#include "DesktopSearch/PageID.h"
#include "Opening/Opener.h"
#include "Platform/Linux/DBusRunningInstance.h"
#include "Support/FakeWorkspace.h"
#include "Support/LibraryHome.h"
#include "Support/SessionBus.h"
#include "Support/Waiting.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingReply>

#include <gmock/gmock.h>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// The real objects on a bus of the test's own, and a desktop that asks them.
class SearchServiceTest : public LibraryHome
{
protected:
    void SetUp() override
    {
        if (!SessionBus::isAvailable())
            GTEST_SKIP() << "dbus-daemon is not installed";
        bus = std::make_unique<SessionBus>();
        ASSERT_TRUE(bus->start());
        client.emplace(connection(u"client"_s));
        addChromium();
        setChromeHistory(u"Default"_s, {u"About gardens"_s});
        setChromeHistory(u"Profile 1"_s, {u"Garden plans"_s});
        service.emplace(connection(u"service"_s), *answers, u"Show all"_s, [this] { isBusGone = true; });
        ASSERT_EQ(service->start(), SearchService::Start::Answering);
    }
    void TearDown() override
    {
        service.reset();
        answers.reset();
        client.reset();
        for (const QString &name : std::as_const(names))
            QDBusConnection::disconnectFromBus(name);
        LibraryHome::TearDown();
    }

    QDBusConnection connection(const QString &name)
    {
        names.append(name);
        return QDBusConnection::connectToBus(bus->address(), name);
    }
    static QDBusPendingCall ask(const QDBusConnection &asker, const QString &path, const QString &interface,
                                const QString &method, const QVariantList &arguments)
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(SearchService::serviceName, path, interface, method);
        message.setArguments(arguments);
        return asker.asyncCall(message);
    }
    QDBusPendingCall askGnome(const QString &method, const QVariantList &arguments)
    {
        return ask(*client, SearchService::gnomePath, u"org.gnome.Shell.SearchProvider2"_s, method,
                   arguments);
    }
    QDBusPendingCall askKRunner(const QString &method, const QVariantList &arguments = {})
    {
        return ask(*client, SearchService::kRunnerPath, u"org.kde.krunner1"_s, method, arguments);
    }
    static QDBusMessage replyTo(const QDBusPendingCall &call)
    {
        EXPECT_TRUE(waitUntil([&call] { return call.isFinished(); }));
        return call.reply();
    }
    QStringList idsFor(const QStringList &terms)
    {
        const QDBusMessage reply = replyTo(askGnome(u"GetInitialResultSet"_s, {terms}));
        EXPECT_EQ(reply.signature(), u"as");
        return reply.arguments().value(0).toStringList();
    }
    QList<KRunnerMatch> matchesFor(const QString &query)
    {
        const QDBusMessage reply = replyTo(askKRunner(u"Match"_s, {query}));
        EXPECT_EQ(reply.signature(), u"a(sssida{sv})") << reply.errorMessage().toStdString();
        return qdbus_cast<QList<KRunnerMatch>>(reply.arguments().value(0));
    }
    static QString idOf(const QString &profile, const QString &url)
    {
        return PageID{.sourceID = u"chrome/" % profile, .url = url}.text();
    }

    const QString plansURL = u"https://Garden plans.example/"_s;
    std::unique_ptr<SessionBus> bus;
    QStringList names;
    std::optional<QDBusConnection> client;
    FakeWorkspace workspace;
    Opener opener{workspace};
    QStringList tokens;
    bool isBusGone = false;
    std::optional<DesktopAnswers> answers{
        std::in_place,
        DesktopAnswers::Services{.platform = home.platform(),
                                 .open =
                                     [this](const QString &url, const Source &source, const QString &token) {
                                         tokens.append(token);
                                         opener.openLinks({{.url = url, .source = source}});
                                     },
                                 .fallSilent = [] {}}};
    std::optional<SearchService> service;
};

TEST_F(SearchServiceTest, gnomeIsGivenPagesTheirDetailsAndASubsearch)
{
    const QStringList ids = idsFor({u"garden"_s});
    EXPECT_EQ(ids, (QStringList{idOf(u"Profile 1"_s, plansURL),
                                idOf(u"Default"_s, u"https://About gardens.example/"_s)}));
    const QDBusMessage narrowed =
        replyTo(askGnome(u"GetSubsearchResultSet"_s, {ids, QStringList{u"garden"_s, u"pla"_s}}));
    EXPECT_EQ(narrowed.arguments().value(0).toStringList(), QStringList{ids.first()});

    const QDBusMessage reply = replyTo(askGnome(u"GetResultMetas"_s, {QStringList{ids.first(), u"no id"_s}}));
    EXPECT_EQ(reply.signature(), u"aa{sv}");
    const auto metas = qdbus_cast<QList<QVariantMap>>(reply.arguments().value(0));
    ASSERT_EQ(metas.size(), 1);
    EXPECT_EQ(metas.first(),
              (QVariantMap{{u"id"_s, ids.first()},
                           {u"name"_s, u"Garden plans"_s},
                           {u"description"_s, u"Chrome - Work · https://Garden plans.example/"_s},
                           {u"gicon"_s, u"text-html"_s}}));
}

TEST_F(SearchServiceTest, kRunnerIsGivenPages)
{
    const QList<KRunnerMatch> matches = matchesFor(u"garden"_s);
    ASSERT_EQ(matches.size(), 2);
    EXPECT_EQ(matches.first().id, idOf(u"Profile 1"_s, plansURL));
    EXPECT_EQ(matches.first().text, u"Garden plans");
    EXPECT_EQ(matches.first().properties.value(u"urls"_s).toStringList(), QStringList{plansURL});
    EXPECT_EQ(matches.first().properties.value(u"subtext"_s).toString(),
              u"Chrome - Work · https://Garden plans.example/");
    EXPECT_GT(matches[0].relevance, matches[1].relevance);
    EXPECT_EQ(matchesFor(u"ga"_s).size(), 0);

    const QDBusMessage config = replyTo(askKRunner(u"Config"_s));
    EXPECT_EQ(config.signature(), u"a{sv}");
    EXPECT_EQ(qdbus_cast<QVariantMap>(config.arguments().value(0)).value(u"MinLetterCount"_s).toInt(), 3);
    const QDBusMessage actions = replyTo(askKRunner(u"Actions"_s));
    EXPECT_EQ(actions.signature(), u"a(sss)");
    EXPECT_EQ(qdbus_cast<QList<KRunnerAction>>(actions.arguments().value(0)).value(0).text, u"Show all");
    EXPECT_EQ(replyTo(askKRunner(u"Teardown"_s)).type(), QDBusMessage::ReplyMessage);
}

TEST_F(SearchServiceTest, iconsAreSentAsPixels)
{
    setChromeIcon(u"Profile 1"_s, plansURL, png(8, Qt::blue));
    const QString id = idsFor({u"plans"_s}).value(0);
    const QDBusMessage reply = replyTo(askGnome(u"GetResultMetas"_s, {QStringList{id}}));
    const auto metas = qdbus_cast<QList<QVariantMap>>(reply.arguments().value(0));
    ASSERT_EQ(metas.size(), 1);
    EXPECT_FALSE(metas.first().contains(u"gicon"_s));
    const auto argument = metas.first().value(u"icon-data"_s).value<QDBusArgument>();
    EXPECT_EQ(argument.currentSignature(), u"(iiibiiay)");
    const auto icon = qdbus_cast<BusIcon>(argument);
    EXPECT_EQ(icon.pixels.width, 8);
    EXPECT_EQ(icon.pixels.height, 8);
    EXPECT_EQ(icon.pixels.bytes, QByteArray("\x00\x00\xFF\xFF", 4).repeated(64));
    EXPECT_TRUE(matchesFor(u"plans"_s).value(0).properties.contains(u"icon-data"_s));
}

TEST_F(SearchServiceTest, aChosenPageOpensWithTheTokenThatCameBefore)
{
    const QString id = idsFor({u"plans"_s}).value(0);
    replyTo(askGnome(u"ActivateResult"_s, {id, QStringList{u"plans"_s}, 7U}));
    replyTo(askKRunner(u"SetActivationToken"_s, {u"token"_s}));
    replyTo(askKRunner(u"Run"_s, {id, QString()}));
    replyTo(askKRunner(u"Run"_s, {id, QString()}));
    EXPECT_TRUE(waitUntil([this] { return workspace.requests.size() == 3; }));
    EXPECT_EQ(workspace.requests.last(), (QStringList{u"profile"_s, u"chrome"_s, u"Profile 1"_s, plansURL}));
    // It is good for one start.
    EXPECT_EQ(tokens, (QStringList{QString(), u"token"_s, QString()}));
}

TEST_F(SearchServiceTest, theWholeSearchGoesOnInTheMainWindow)
{
    QList<RunningInstance::Wish> wishes;
    DBusRunningInstance program(connection(u"program"_s));
    ASSERT_EQ(program.claim(RunningInstance::Wish::ComeForward,
                            [&wishes](const RunningInstance::Wish &wish) { wishes.append(wish); }),
              RunningInstance::Claim::First);
    replyTo(askGnome(u"LaunchSearch"_s, {QStringList{u"garden"_s, u"plans"_s}, 7U}));
    EXPECT_TRUE(waitUntil([&wishes] { return wishes.size() == 1; }));
    matchesFor(u"garden"_s);
    replyTo(askKRunner(u"SetActivationToken"_s, {u"token"_s}));
    replyTo(askKRunner(u"Run"_s, {QString(), u"show-all"_s}));
    EXPECT_TRUE(waitUntil([&wishes] { return wishes.size() == 2; }));
    using Wish = RunningInstance::Wish;
    EXPECT_EQ(wishes, (QList{Wish(Wish::Search, u"garden plans"_s), Wish(Wish::Search, u"garden"_s)}));
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "token");
    qunsetenv("XDG_ACTIVATION_TOKEN");
    EXPECT_EQ(workspace.requests, QList<QStringList>());
}

TEST_F(SearchServiceTest, twoDesktopsAskAtOnce)
{
    const QDBusConnection other = connection(u"other client"_s);
    std::vector<QDBusPendingCall> ofGnome;
    std::vector<QDBusPendingCall> ofKDE;
    for (int i = 0; i < 20; ++i) {
        ofGnome.push_back(askGnome(u"GetInitialResultSet"_s, {QStringList{u"plans"_s}}));
        ofKDE.push_back(
            ask(other, SearchService::kRunnerPath, u"org.kde.krunner1"_s, u"Match"_s, {u"garden"_s}));
    }
    for (const QDBusPendingCall &call : ofGnome)
        EXPECT_EQ(replyTo(call).arguments().value(0).toStringList().size(), 1);
    for (const QDBusPendingCall &call : ofKDE)
        EXPECT_EQ(qdbus_cast<QList<KRunnerMatch>>(replyTo(call).arguments().value(0)).size(), 2);
}

TEST_F(SearchServiceTest, aThousandQuestionsAreAnswered)
{
    std::vector<QDBusPendingCall> calls;
    for (int i = 0; i < 1000; ++i)
        calls.push_back(
            askGnome(u"GetInitialResultSet"_s, {QStringList{u"garden"_s, QString::number(i % 7)}}));
    for (const QDBusPendingCall &call : calls)
        ASSERT_EQ(replyTo(call).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(idsFor({u"garden"_s}).size(), 2);
}

TEST_F(SearchServiceTest, whatNoDesktopAsksIsAnsweredAsWell)
{
    EXPECT_EQ(idsFor({u"x"_s.repeated(100'000)}), QStringList());
    EXPECT_EQ(idsFor({}), QStringList());
    EXPECT_EQ(matchesFor(u"x"_s.repeated(100'000)).size(), 0);
    for (const QString &id : {u""_s, u"no id"_s, u"chrome%2FDefault -x"_s, u"x"_s.repeated(100'000)}) {
        EXPECT_EQ(replyTo(askGnome(u"ActivateResult"_s, {id, QStringList(), 0U})).type(),
                  QDBusMessage::ReplyMessage);
        EXPECT_EQ(replyTo(askKRunner(u"Run"_s, {id, u"no action"_s})).type(), QDBusMessage::ReplyMessage);
    }
    // With other arguments than the interface has, there is no such method.
    EXPECT_EQ(replyTo(askGnome(u"GetInitialResultSet"_s, {7})).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(idsFor({u"garden"_s}).size(), 2);
    EXPECT_EQ(workspace.requests, QList<QStringList>());
}

TEST_F(SearchServiceTest, aSecondOneLeavesTheQuestionsToTheFirst)
{
    SearchService second(connection(u"second"_s), *answers, {}, [] {});
    EXPECT_EQ(second.start(), SearchService::Start::Taken);
    EXPECT_EQ(idsFor({u"garden"_s}).size(), 2);
}

TEST_F(SearchServiceTest, whatWasSentBeforeTheNameWasFreeIsAnswered)
{
    const QDBusPendingCall question = askGnome(u"GetInitialResultSet"_s, {QStringList{u"garden"_s}});
    EXPECT_TRUE(waitUntil([&] { return question.isFinished(); }));
    const QString owner = question.reply().service();
    service->release();
    QDBusMessage late = QDBusMessage::createMethodCall(
        owner, SearchService::gnomePath, u"org.gnome.Shell.SearchProvider2"_s, u"GetInitialResultSet"_s);
    late << QStringList{u"garden"_s};
    EXPECT_EQ(replyTo(client->asyncCall(late)).arguments().value(0).toStringList().size(), 2);
    SearchService next(connection(u"next"_s), *answers, {}, [] {});
    EXPECT_EQ(next.start(), SearchService::Start::Answering);
}

TEST_F(SearchServiceTest, aBusThatGoesAwayIsNoticed)
{
    // A question is on its way meanwhile.
    const QDBusPendingCall question = askGnome(u"GetInitialResultSet"_s, {QStringList{u"garden"_s}});
    bus.reset();
    EXPECT_TRUE(waitUntil([this] { return isBusGone; }));
    EXPECT_TRUE(waitUntil([&question] { return question.isFinished(); }));
}

TEST_F(SearchServiceTest, withoutABusThereIsNobodyToAnswer)
{
    SearchService lonely(QDBusConnection(u"no such connection"_s), *answers, {}, [] {});
    EXPECT_EQ(lonely.start(), SearchService::Start::NoBus);
}

} // namespace
} // namespace roamlet::testing
