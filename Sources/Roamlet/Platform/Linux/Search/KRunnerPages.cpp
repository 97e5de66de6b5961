// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Search/KRunnerPages.h"

#include "Platform/Linux/Search/ApplicationCall.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString showAllAction = u"show-all"_s;
constexpr int fewestLetters = 3;

QList<KRunnerMatch> matchesOf(const QList<FoundPage> &pages)
{
    // Below programs and settings of the same name: "possible" in its own words.
    constexpr int category = 30;
    constexpr double best = 0.7;
    constexpr double step = 0.01;
    QList<KRunnerMatch> matches;
    for (const FoundPage &page : pages) {
        QVariantMap properties{{u"urls"_s, QStringList(page.url)},
                               {u"subtext"_s, QString(page.source % u" · " % page.url)},
                               {u"actions"_s, QStringList(showAllAction)}};
        if (page.icon)
            properties.insert(u"icon-data"_s, QVariant::fromValue(BusIcon{*page.icon}));
        matches.append({.id = page.id,
                        .text = page.title,
                        .icon = u"text-html"_s,
                        .category = category,
                        .relevance = best - step * static_cast<double>(matches.size()),
                        .properties = properties});
    }
    return matches;
}

} // namespace

KRunnerPages::KRunnerPages(DesktopQuestions &questions, QString showAll)
    : m_questions(questions), m_showAll(std::move(showAll))
{
    registerSearchTypes();
}

QList<KRunnerMatch> KRunnerPages::Match(const QString &query)
{
    setDelayedReply(true);
    m_lastQuery = query;
    m_questions.search(query, [question = message(), bus = connection()](const QList<FoundPage> &pages) {
        bus.send(question.createReply(QVariant::fromValue(matchesOf(pages))));
    });
    return {};
}

QList<KRunnerAction> KRunnerPages::Actions()
{
    return {{.id = showAllAction, .text = m_showAll, .icon = ApplicationCall::serviceName}};
}

void KRunnerPages::Run(const QString &matchId, const QString &actionId)
{
    const QString token = std::exchange(m_token, {});
    if (actionId.isEmpty()) {
        m_questions.open(matchId, token);
    } else if (actionId == showAllAction) {
        const RunningInstance::Wish wish(RunningInstance::Wish::Search, m_lastQuery);
        connection().send(ApplicationCall::message(ApplicationCall::serviceName, wish, token));
    }
}

QVariantMap KRunnerPages::Config()
{
    return {{u"MinLetterCount"_s, fewestLetters}};
}

void KRunnerPages::SetActivationToken(const QString &token)
{
    m_token = token;
}

} // namespace roamlet
