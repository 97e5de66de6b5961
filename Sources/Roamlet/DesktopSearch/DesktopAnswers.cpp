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
/// So many words tell any page from all others, and each of them is looked for in every row.
constexpr qsizetype mostWords = 12;
/// How much is kept for whoever asks again.
constexpr qsizetype mostTitles = 1'000;
constexpr qsizetype mostIcons = 200;

bool hasEnoughLetters(const QString &text)
{
    const auto blanks = std::ranges::count(text, u' ');
    return text.size() - blanks >= DesktopAnswers::fewestLetters &&
           text.size() <= DesktopAnswers::longestText;
}

/// On one line, and without what would be obeyed and not shown: marks that turn a text around can make an
/// address look like another one.
QString shown(const QString &text, qsizetype longest)
{
    QString result = text.first(std::min(text.size(), longest));
    for (QChar &c : result) {
        const QChar::Direction direction = c.direction();
        const bool isTurning =
            direction >= QChar::DirLRE && direction <= QChar::DirPDF && c.category() == QChar::Other_Format;
        const bool isIsolating = direction >= QChar::DirLRI && direction <= QChar::DirPDI;
        if (c.category() == QChar::Other_Control || isTurning || isIsolating)
            c = u' ';
    }
    return result.simplified();
}

FoundPage pageOf(const PageID &id, const QString &title, const Source &source)
{
    return {.id = id.text(),
            .title = title.isEmpty() ? shown(id.url, longestTitle) : title,
            .url = shown(id.url, longestAddress),
            .source = source.label(),
            .icon = {}};
}

} // namespace

DesktopAnswers::DesktopAnswers(Services services)
    : m_services(std::move(services)),
      m_finder(std::make_shared<PageFinder>()),
      m_iconFinder(std::make_shared<IconFinder>())
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
    ask({.text = text, .ids = {}, .answer = [this, answer](const Reply &found) {
             if (m_titles.size() > mostTitles)
                 m_titles.clear();
             for (const FoundPage &page : found.pages)
                 m_titles.insert(page.id, page.title);
             // The pages come first; their icons are there when they are asked for, or with the next letter.
             Reply reply = found;
             addIcons(reply);
             answer(reply.pages);
         }});
}

void DesktopAnswers::describe(const QStringList &ids, const Answer &answer)
{
    stayAwake();
    if (ids.isEmpty() || !isOn()) {
        answer({});
        return;
    }
    // No answer to a search has more.
    constexpr auto most = static_cast<qsizetype>(mostPages);
    ask({.text = {},
         .ids = ids.first(std::min(ids.size(), most)),
         .answer = [this, answer](const Reply &described) {
             Reply reply = described;
             if (addIcons(reply))
                 answer(reply.pages);
             else
                 m_iconQuestions.push_back({.reply = std::move(reply), .answer = answer});
         }});
}

void DesktopAnswers::open(const QString &id, const QString &activationToken)
{
    stayAwake();
    if (!isOn())
        return;
    ask({.text = {}, .ids = {id}, .answer = [this, id, activationToken](const Reply &reply) {
             const std::optional<PageID> page = PageID::of(id);
             if (page && !reply.sources.isEmpty())
                 m_services.open(page->url, reply.sources.first(), activationToken);
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
            if (const auto source = id ? finder.source(id->sourceID) : std::nullopt) {
                reply.pages.append(pageOf(*id, titles.value(text), *source));
                reply.sources.append(*source);
            }
        }
        answers.replies.push_back(std::move(reply));
    }
    return answers;
}

DesktopAnswers::Reply DesktopAnswers::found(const PageFinder &finder, const QString &text,
                                            const ReadContext &context)
{
    const auto query = HistoryQuery::matching(text, {}, HistoryQuery::Order::Latest);
    QStringList words = query.words;
    words.removeDuplicates();
    words.resize(std::min(words.size(), mostWords));
    Reply reply;
    for (const HistoryItem &item : finder.best(words, mostPages, context)) {
        if (item.url.size() > longestAddress)
            continue;
        const PageID id{.sourceID = item.source.id(), .url = item.url};
        reply.pages.append(pageOf(id, shown(item.title, longestTitle), item.source));
        reply.sources.append(item.source);
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

bool DesktopAnswers::addIcons(Reply &reply)
{
    bool areKnown = true;
    for (qsizetype i = 0; i < reply.pages.size(); ++i) {
        FoundPage &page = reply.pages[i];
        const QString key = IconFinder::key(page.url, reply.sources[i]);
        const auto known = m_icons.constFind(key);
        if (known != m_icons.cend()) {
            page.icon = *known;
        } else {
            areKnown = false;
            m_wantedIcons.insert(key, {.url = page.url, .source = reply.sources[i]});
        }
    }
    findIcons();
    return areKnown;
}

void DesktopAnswers::findIcons()
{
    if (m_isFindingIcons || m_wantedIcons.isEmpty())
        return;
    m_isFindingIcons = true;
    m_tasks.run(
        &m_here,
        [finder = m_iconFinder, wanted = std::exchange(m_wantedIcons, {}),
         context = m_context](const std::stop_token &stop) {
            Confinement::ofReadingThread(context.folders.temporary);
            ReadContext stoppable = context;
            stoppable.stop = stop;
            return finder->find(wanted, stoppable);
        },
        [this](const IconFinder::Icons &found) {
            m_isFindingIcons = false;
            // Whoever waits has been told of some by then.
            if (m_icons.size() > mostIcons && m_iconQuestions.empty())
                m_icons.clear();
            m_icons.insert(found);
            // Those whose icons are not among these wait for the next ones.
            for (IconQuestion &question : std::exchange(m_iconQuestions, {})) {
                if (addIcons(question.reply))
                    question.answer(question.reply.pages);
                else
                    m_iconQuestions.push_back(std::move(question));
            }
        });
}

} // namespace roamlet
