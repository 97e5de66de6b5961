// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "DesktopSearch/IconFinder.h"
#include "Model/PointInTime.h"
#include "Model/Source.h"
#include "Platform/BackgroundTasks.h"
#include "Platform/DesktopQuestions.h"
#include "Platform/Platform.h"
#include "Readers/ReadContext.h"

#include <QHash>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace roamlet
{

class PageFinder;

/// The one place that answers every desktop. Questions are answered away from the main thread, all that wait
/// at a time, and each by what the files hold when it is answered.
class DesktopAnswers final : public DesktopQuestions
{
public:
    /// "false" where the user wants none of this.
    static inline const QString isOnKey = QStringLiteral("showInDesktopSearch");
    /// Fewer letters are in nearly every page.
    static constexpr qsizetype fewestLetters = 3;
    /// Nobody types as much.
    static constexpr qsizetype longestText = 1'000;
    /// So many pages are an answer at most.
    static constexpr size_t mostPages = 20;
    /// When nobody has asked for so long, nobody searches any more.
    static constexpr std::chrono::minutes patience{1};
    /// A browser or a profile that is new is seen after so long.
    static constexpr std::chrono::seconds profilesLast{10};

    struct Services {
        Platform platform;
        /// Opens a page in the browser and the profile of its source.
        std::function<void(const QString &url, const Source &source, const QString &activationToken)> open;
        /// Nobody has asked for a while.
        std::function<void()> fallSilent;
    };

    explicit DesktopAnswers(Services services);
    ~DesktopAnswers() override;

    /// Somebody will ask in a moment: reads what it takes to answer.
    void prepare();
    void search(const QString &text, const Answer &answer) override;
    void describe(const QStringList &ids, const Answer &answer) override;
    void open(const QString &id, const QString &activationToken) override;

private:
    /// What is to be answered away from the main thread: a text that is searched for, or ids of pages that
    /// are to be described or opened.
    struct Reply {
        QList<FoundPage> pages;
        /// That of each page.
        QList<Source> sources;
    };
    struct Question {
        QString text;
        QStringList ids;
        std::function<void(const Reply &)> answer;
    };
    struct Answered {
        /// One for each question.
        std::vector<Reply> replies;
        bool hasRead = false;
    };
    /// Whoever wants pages with their icons.
    struct IconQuestion {
        Reply reply;
        Answer answer;
    };

    static Answered answered(PageFinder &finder, const std::vector<Question> &questions,
                             const QHash<QString, QString> &titles, const ReadContext &context);

    static Reply found(const PageFinder &finder, const QString &text, const ReadContext &context);

    bool isOn();
    void stayAwake();
    void ask(Question question);
    void answerNext();
    void deliver(const std::vector<Question> &questions, const Answered &answers);
    /// Gives the pages the icons that are known, and has the others looked for. Returns whether all were
    /// known.
    bool addIcons(Reply &reply);
    void findIcons();

    Services m_services;
    /// Belongs to the running task; there is one at a time.
    std::shared_ptr<PageFinder> m_finder;
    ReadContext m_context;
    /// When the folders of all browsers were looked for.
    std::optional<PointInTime> m_foldersFound;
    std::vector<Question> m_waiting;
    bool m_isAnswering = false;
    /// The titles of pages that were found, by their ids.
    QHash<QString, QString> m_titles;
    /// Belongs to the running task as well, of which there is one at a time beside that of the questions: who
    /// types does not wait for icons.
    std::shared_ptr<IconFinder> m_iconFinder;
    IconFinder::Icons m_icons;
    QHash<QString, IconFinder::Wanted> m_wantedIcons;
    std::vector<IconQuestion> m_iconQuestions;
    bool m_isFindingIcons = false;
    /// Lives until somebody asks again.
    std::unique_ptr<QObject> m_silence;
    QObject m_here;
    BackgroundTasks m_tasks;
};

} // namespace roamlet
