// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <gmock/gmock.h>
#include <map>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// A text with its translation, which has several forms where it names a number.
struct Message {
    QString source;
    QStringList forms;
    bool isNumbered = false;
    bool isFinished = true;
};

/// By context and text.
using Messages = std::map<QString, Message>;

Messages messagesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    Messages result;
    QString context;
    Message message;
    QString comment;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement() && xml.name() == u"message") {
            result[context % u'/' % message.source % u'/' % comment] = message;
            continue;
        }
        if (!xml.isStartElement())
            continue;
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            message = {};
            message.isNumbered = xml.attributes().value("numerus"_L1) == u"yes";
            comment.clear();
        } else if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.isFinished = !xml.attributes().hasAttribute("type"_L1);
            if (!message.isNumbered)
                message.forms.append(xml.readElementText());
        } else if (xml.name() == u"numerusform") {
            message.forms.append(xml.readElementText());
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path);
    return result;
}

/// How many forms a language has for numbers, as Qt counts them.
qsizetype numberForms(const QString &language)
{
    static const QHash<QString, qsizetype> others{
        {u"ar"_s, 6}, {u"ja"_s, 1}, {u"pl"_s, 3}, {u"ru"_s, 3}, {u"zh_CN"_s, 1}};
    return others.value(language, 2);
}

/// What has to be the same in each language: what is filled in, mark-up, and how it begins and ends.
QStringList fixedParts(const QString &text)
{
    static const QRegularExpression parts(u"%L?[0-9n]|</?[a-z0-9]+>"_s);
    QStringList result;
    for (auto found = parts.globalMatch(text); found.hasNext();)
        result.append(found.next().captured());
    std::ranges::sort(result);
    result.append(u"%1 letter to press"_s.arg(text.count(u'&') - text.count(u"& "_s)));
    result.append(text.endsWith(u'…') ? u"goes on"_s : u"ends"_s);
    result.append(text.startsWith(u' ') ? u"follows"_s : u"begins"_s);
    return result;
}

QString fileOf(const QString &language)
{
    return u"" ROAMLET_TRANSLATIONS "/roamlet_%1.ts"_s.arg(language);
}

QString translated(const QStringList &userLanguages, const char *context, const char *text, int number = -1)
{
    const Translations translations(userLanguages);
    return QCoreApplication::translate(context, text, nullptr, number);
}

} // namespace

TEST(TranslationsTest, tenLanguagesAreComplete)
{
    const QStringList languages = Translations::available();
    EXPECT_EQ(languages, (QStringList{u"ar"_s, u"de"_s, u"es"_s, u"fr"_s, u"it"_s, u"ja"_s, u"pl"_s,
                                      u"pt_BR"_s, u"ru"_s, u"zh_CN"_s}));
    const Messages first = messagesOf(fileOf(languages.first()));
    EXPECT_GT(first.size(), 200U);
    for (const QString &language : languages) {
        SCOPED_TRACE(language.toStdString());
        const Messages messages = messagesOf(fileOf(language));
        EXPECT_EQ(messages.size(), first.size());
        for (const auto &[key, message] : messages) {
            SCOPED_TRACE(key.toStdString());
            EXPECT_TRUE(first.contains(key)) << "is not in every language";
            EXPECT_TRUE(message.isFinished);
            EXPECT_EQ(message.forms.size(), message.isNumbered ? numberForms(language) : 1);
            for (const QString &form : message.forms) {
                EXPECT_FALSE(form.trimmed().isEmpty());
                if (message.source == u"QT_LAYOUT_DIRECTION")
                    continue;
                EXPECT_EQ(fixedParts(form), fixedParts(message.source)) << qPrintable(form);
            }
        }
    }
}

TEST(TranslationsTest, theFirstLanguageOfTheUserThatThereIsIsTaken)
{
    const QStringList available = Translations::available();
    const auto chosen = [&](const QStringList &userLanguages) {
        return Translations::chosen(userLanguages, available);
    };
    EXPECT_EQ(chosen({u"de-DE"_s}), u"de");
    EXPECT_EQ(chosen({u"de-AT"_s, u"en-US"_s}), u"de");
    EXPECT_EQ(chosen({u"nl-NL"_s, u"fr-BE"_s}), u"fr");
    EXPECT_EQ(chosen({u"pt-BR"_s}), u"pt_BR");
    EXPECT_EQ(chosen({u"pt"_s}), u"pt_BR");
    EXPECT_EQ(chosen({u"zh-Hans-CN"_s}), u"zh_CN");
    EXPECT_EQ(chosen({u"zh-SG"_s}), u"zh_CN");
    EXPECT_EQ(chosen({u"ar-EG"_s}), u"ar");
}

TEST(TranslationsTest, whereNoneIsThereItIsEnglish)
{
    const QStringList available = Translations::available();
    const auto chosen = [&](const QStringList &userLanguages) {
        return Translations::chosen(userLanguages, available);
    };
    EXPECT_EQ(chosen({}), QString());
    EXPECT_EQ(chosen({u"C"_s}), QString());
    EXPECT_EQ(chosen({u"nl-NL"_s}), QString());
    EXPECT_EQ(chosen({u"en-GB"_s, u"de-DE"_s}), QString()) << "English is wanted first";
    EXPECT_EQ(chosen({u"pt-PT"_s}), QString());
    EXPECT_EQ(chosen({u"zh-TW"_s}), QString());
    EXPECT_EQ(translated({u"nl-NL"_s}, "roamlet::DayGroups", "Today"), u"Today");
}

TEST(TranslationsTest, wordsAndNumbersAreTheLanguages)
{
    EXPECT_EQ(translated({u"de-DE"_s}, "roamlet::DayGroups", "Yesterday"), u"Gestern");
    EXPECT_EQ(QCoreApplication::translate("roamlet::DayGroups", "Yesterday"), u"Yesterday")
        << "only as long as the translations live";
    const auto items = [](const QString &language, int number) {
        return translated({language}, "roamlet::TableModel", "%1 items", number).arg(number);
    };
    EXPECT_EQ(items(u"pl"_s, 22), u"22 pozycje");
    EXPECT_EQ(items(u"pl"_s, 12), u"12 pozycji");
    EXPECT_EQ(items(u"ru"_s, 21), u"21 элемент");
    EXPECT_EQ(items(u"ru"_s, 11), u"11 элементов");
    EXPECT_EQ(items(u"ar"_s, 2), u"2 عنصران");
    EXPECT_EQ(items(u"ar"_s, 11), u"11 عنصرًا");
    EXPECT_EQ(items(u"fr"_s, 0), u"0 élément");
}

TEST(TranslationsTest, theLanguageDecidesFromWhereItIsRead)
{
    const auto direction = [](const QString &language) {
        const Translations translations({language});
        QCoreApplication::processEvents();
        return QGuiApplication::layoutDirection();
    };
    EXPECT_EQ(direction(u"ar"_s), Qt::RightToLeft);
    EXPECT_EQ(direction(u"pl"_s), Qt::LeftToRight);
}

} // namespace roamlet::testing
