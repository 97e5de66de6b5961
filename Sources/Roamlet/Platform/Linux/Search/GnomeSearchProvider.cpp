// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Search/GnomeSearchProvider.h"

#include "Platform/Linux/Search/ApplicationCall.h"
#include "Platform/Linux/Search/SearchTypes.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace roamlet
{

using namespace Qt::StringLiterals;

QStringList GnomeSearchProvider::GetInitialResultSet(const QStringList &terms)
{
    setDelayedReply(true);
    m_questions.search(terms.join(u' '),
                       [question = message(), bus = connection()](const QList<FoundPage> &pages) {
                           QStringList ids;
                           for (const FoundPage &page : pages)
                               ids.append(page.id);
                           bus.send(question.createReply(QVariant(ids)));
                       });
    return {};
}

QStringList GnomeSearchProvider::GetSubsearchResultSet(const QStringList & /*previous*/,
                                                       const QStringList &terms)
{
    return GetInitialResultSet(terms);
}

QList<QVariantMap> GnomeSearchProvider::GetResultMetas(const QStringList &identifiers)
{
    setDelayedReply(true);
    m_questions.describe(
        identifiers, [question = message(), bus = connection()](const QList<FoundPage> &pages) {
            QList<QVariantMap> metas;
            for (const FoundPage &page : pages) {
                // No "clipboardText": the Shell would put it on the clipboard whenever it opens the page.
                QVariantMap meta{{u"id"_s, page.id},
                                 {u"name"_s, page.title},
                                 {u"description"_s, QString(page.source % u" · " % page.url)}};
                if (page.icon)
                    meta.insert(u"icon-data"_s, QVariant::fromValue(BusIcon{*page.icon}));
                else
                    meta.insert(u"gicon"_s, u"text-html"_s);
                metas.append(meta);
            }
            bus.send(question.createReply(QVariant::fromValue(metas)));
        });
    return {};
}

void GnomeSearchProvider::ActivateResult(const QString &identifier, const QStringList & /*terms*/,
                                         uint /*timestamp*/)
{
    m_questions.open(identifier, {});
}

void GnomeSearchProvider::LaunchSearch(const QStringList &terms, uint /*timestamp*/)
{
    const RunningInstance::Wish wish(RunningInstance::Wish::Search, terms.join(u' '));
    // The bus starts the program where it does not run.
    connection().send(ApplicationCall::message(ApplicationCall::serviceName, wish, {}));
}

} // namespace roamlet
