// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DesktopSearch/DesktopAnswers.h"

#include "DesktopSearch/PageFinder.h"
#include "DesktopSearch/PageID.h"
#include "Library/LibraryReading.h"
#include "Library/ProfileChoice.h"
#include "Model/HistoryQuery.h"
#include "Platform/Clock.h"
#include "Platform/Confinement.h"
#include "Platform/Processes.h"
#include "Platform/UserDefaults.h"

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// What a browser could not be started with is not shown.
constexpr qsizetype longestAddress = 30'000;
/// A list has room for less.
constexpr qsizetype longestTitle = 500;
/// More titles are kept by nobody.
constexpr qsizetype mostTitles = 1'000;

bool hasEnoughLetters(const QString &text)
{
    const auto blanks = std::ranges::count(text, u' ');
    return text.size() - blanks >= DesktopAnswers::fewestLetters &&
           text.size() <= DesktopAnswers::longestText;
}

/// Several lines would not be shown as what they are.
QString shownTitle(const QString &title)
{
    return title.first(std::min(title.size(), longestTitle)).simplified();
}

FoundPage pageOf(const PageID &id, const QString &title, const Source &source)
{
    return {.id = id.text(),
            .title = title.isEmpty() ? id.url : title,
            .url = id.url,
            .source = source.label(),
            .icon = {}};
}

} // namespace

DesktopAnswers::DesktopAnswers(Services services)
    : m_services(std::move(services)), m_finder(std::make_shared<PageFinder>())
{
    stayAwake();
}

DesktopAnswers::~DesktopAnswers() = default;

void DesktopAnswers::prepare()
{
    if (isOn())
        ask({});
}

void DesktopAnswers::search(const QString &text, const Answer &answer)
{
    stayAwake();
    if (!hasEnoughLetters(text) || !isOn()) {
        answer({});
        return;
    }
    ask({.text = text, .ids = {}, .isForIcons = false, .answer = [this, answer](const Reply &reply) {
             QStringList ids;
             if (m_titles.size() > mostTitles)
                 m_titles.clear();
             for (const FoundPage &page : reply.pages) {
                 ids.append(page.id);
                 m_titles.insert(page.id, page.title);
             }
             answer(reply.pages);
             // The pages come first; their icons are there when they are asked for, or with the next letter.
             if (reply.lacksIcons)
                 ask({.text = {}, .ids = ids, .isForIcons = true, .answer = {}});
         }});
}

void DesktopAnswers::describe(const QStringList &ids, const Answer &answer)
{
    stayAwake();
    if (ids.isEmpty() || !isOn()) {
        answer({});
        return;
    }
    ask({.text = {}, .ids = ids, .isForIcons = true, .answer = [answer](const Reply &reply) {
             answer(reply.pages);
         }});
}

void DesktopAnswers::open(const QString &id, const QString &activationToken)
{
    stayAwake();
    const std::optional<PageID> page = PageID::of(id);
    if (!page || !isOn())
        return;
    ask({.text = {},
         .ids = {id},
         .isForIcons = false,
         .answer = [this, url = page->url, activationToken](const Reply &reply) {
             if (reply.source)
                 m_services.open(url, *reply.source, activationToken);
         }});
}

bool DesktopAnswers::isOn()
{
    UserDefaults &defaults = m_services.platform.defaults;
    defaults.renew();
    return defaults.boolean(isOnKey).value_or(true);
}

void DesktopAnswers::stayAwake()
{
    m_silence = std::make_unique<QObject>();
    m_services.platform.clock.after(patience, m_silence.get(), [this] {
        m_silence.reset();
        m_services.fallSilent();
    });
}

void DesktopAnswers::ask(Question question)
{
    m_waiting.push_back(std::move(question));
    if (!m_isAnswering)
        answerNext();
}

void DesktopAnswers::answerNext()
{
    if (m_waiting.empty())
        return;
    m_isAnswering = true;
    const Platform &platform = m_services.platform;
    const PointInTime now = platform.clock.now();
    const bool isOutdated = !m_foldersFound || now < *m_foldersFound || now - *m_foldersFound >= profilesLast;
    if (isOutdated) {
        m_context = LibraryReading::readContext(platform);
        m_foldersFound = now;
    }
    auto questions = std::make_shared<const std::vector<Question>>(std::exchange(m_waiting, {}));
    m_tasks.run(
        &m_here,
        [questions, isOutdated, finder = m_finder, titles = m_titles, context = m_context,
         choice = ProfileChoice(platform.defaults),
         mostBytes = textLimit(platform.defaults)](const std::stop_token &stop) {
            Confinement::ofReadingThread(context.folders.temporary);
            ReadContext stoppable = context;
            stoppable.stop = stop;
            if (isOutdated)
                finder->findProfiles(stoppable);
            const bool hasRead = finder->renew(choice, mostBytes, stoppable);
            Answered answers = answered(*finder, *questions, titles, stoppable);
            answers.hasRead = hasRead;
            return answers;
        },
        [this, questions](const Answered &answers) { deliver(*questions, answers); });
}

DesktopAnswers::Answered DesktopAnswers::answered(PageFinder &finder, const std::vector<Question> &questions,
                                                  const QHash<QString, QString> &titles,
                                                  const ReadContext &context)
{
    Answered answers;
    // Whoever asks a thousand times in a second asks the same.
    QHash<QString, Reply> known;
    for (const Question &question : questions) {
        Reply reply;
        if (!question.text.isEmpty()) {
            auto same = known.constFind(question.text);
            if (same == known.cend())
                same = known.insert(question.text, found(finder, question.text, context));
            reply = *same;
        }
        for (const QString &text : question.ids) {
            const std::optional<PageID> id = PageID::of(text);
            reply.source = id ? finder.source(id->sourceID) : std::nullopt;
            if (!reply.source)
                continue;
            if (question.isForIcons && !finder.isIconKnown(id->sourceID, id->url))
                finder.findIcon(id->sourceID, id->url, context);
            FoundPage page = pageOf(*id, titles.value(text), *reply.source);
            page.icon = finder.knownIcon(id->sourceID, id->url);
            reply.pages.append(page);
        }
        answers.replies.push_back(std::move(reply));
    }
    return answers;
}

DesktopAnswers::Reply DesktopAnswers::found(const PageFinder &finder, const QString &text,
                                            const ReadContext &context)
{
    const auto query = HistoryQuery::matching(text, {}, HistoryQuery::Order::Latest);
    Reply reply;
    for (const HistoryItem &item : finder.best(query.words, mostPages, context)) {
        if (item.url.size() > longestAddress)
            continue;
        const PageID id{.sourceID = item.source.id(), .url = item.url};
        FoundPage page = pageOf(id, shownTitle(item.title), item.source);
        page.icon = finder.knownIcon(id.sourceID, id.url);
        reply.lacksIcons = reply.lacksIcons || !finder.isIconKnown(id.sourceID, id.url);
        reply.pages.append(page);
    }
    return reply;
}

void DesktopAnswers::deliver(const std::vector<Question> &questions, const Answered &answers)
{
    for (size_t i = 0; i < questions.size(); ++i) {
        if (questions[i].answer)
            questions[i].answer(answers.replies[i]);
    }
    m_isAnswering = false;
    answerNext();
    if (answers.hasRead)
        Processes::giveBackMemory();
}

} // namespace roamlet
