// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/SimpleHtml.h"

#include <QLatin1StringView>
#include <QStringList>

#include <algorithm>
#include <array>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

// More than anybody reads, and little enough to be laid out at once.
constexpr qsizetype longestText = 20'000;
constexpr qsizetype mostElements = 1'000;
constexpr qsizetype deepestNesting = 20;

/// What is kept as it is, except for its attributes.
constexpr auto plainElements = std::to_array<QLatin1StringView>(
    {"p"_L1, "div"_L1, "blockquote"_L1, "pre"_L1, "h1"_L1, "h2"_L1, "h3"_L1, "h4"_L1, "h5"_L1, "h6"_L1,
     "ul"_L1, "ol"_L1, "li"_L1, "a"_L1, "b"_L1, "strong"_L1, "i"_L1, "em"_L1, "code"_L1});
/// What begins a line of its own, whatever it means beyond that.
constexpr auto lines = std::to_array<QLatin1StringView>({"br"_L1, "hr"_L1, "tr"_L1, "dt"_L1, "dd"_L1});
/// What is left out with everything that it holds.
constexpr auto hidden =
    std::to_array<QLatin1StringView>({"title"_L1, "style"_L1, "script"_L1, "template"_L1});

template<std::size_t count>
bool contains(const std::array<QLatin1StringView, count> &names, QStringView name)
{
    return std::ranges::any_of(names, [name](QLatin1StringView each) { return each == name; });
}

bool isSpace(QChar each)
{
    return each.isSpace();
}

bool isLetterOrNumber(QChar each)
{
    return each.isLetterOrNumber();
}

/// The address of a link to a web page, as it can stand in quotes; otherwise empty.
QString webAddress(QStringView attributes)
{
    const qsizetype name = attributes.indexOf("href="_L1, 0, Qt::CaseInsensitive);
    if (name < 0)
        return {};
    QStringView value = attributes.sliced(name + 5);
    if (value.startsWith(u'"') || value.startsWith(u'\'')) {
        const QChar quote = value.front();
        value = value.sliced(1);
        value = value.first(std::ranges::find(value, quote) - value.begin());
    } else {
        value = value.first(std::ranges::find_if(value, &isSpace) - value.begin());
    }
    value = value.trimmed();
    const bool isWeb = value.startsWith("https://"_L1, Qt::CaseInsensitive) ||
                       value.startsWith("http://"_L1, Qt::CaseInsensitive);
    return isWeb ? value.toString().replace(u'"', "&quot;"_L1) : QString();
}

class Walk
{
public:
    explicit Walk(QStringView html) : m_rest(html) {}

    QString result()
    {
        while (!m_rest.isEmpty() && m_length < longestText) {
            if (m_rest.front() == u'<')
                readMarkup();
            else
                readText();
        }
        while (!m_open.isEmpty())
            closeLast();
        return m_result;
    }

private:
    /// What comes before `end`, which may be missing; what follows it is left to read.
    QStringView upTo(QStringView end)
    {
        const qsizetype position = m_rest.indexOf(end, 0, Qt::CaseInsensitive);
        const QStringView result = position < 0 ? m_rest : m_rest.first(position);
        m_rest = position < 0 ? QStringView() : m_rest.sliced(position + end.size());
        return result;
    }

    void appendText(QStringView text)
    {
        m_result.append(text);
        m_length += text.size();
    }

    void readText()
    {
        const qsizetype end = m_rest.indexOf(u'<');
        const QStringView text =
            m_rest.first(std::min(end < 0 ? m_rest.size() : end, longestText - m_length));
        appendText(text);
        m_rest = m_rest.sliced(text.size());
    }

    void readMarkup()
    {
        m_rest = m_rest.sliced(1);
        if (m_rest.startsWith("!--"_L1)) {
            upTo(u"-->");
            return;
        }
        if (m_rest.isEmpty() || !(m_rest.front().isLetter() || u"/!?"_s.contains(m_rest.front()))) {
            appendText(u"&lt;");
            return;
        }
        const QStringView tag = upTo(u">");
        const bool isEnd = tag.startsWith(u'/');
        const QStringView named = tag.sliced(isEnd ? 1 : 0);
        const qsizetype length = std::ranges::find_if_not(named, &isLetterOrNumber) - named.begin();
        const QString name = named.first(length).toString().toLower();
        if (isEnd) {
            close(name);
        } else if (contains(hidden, name)) {
            upTo(QString(u"</" % name));
            upTo(u">");
        } else {
            open(name, named.sliced(length));
        }
    }

    void open(const QString &name, QStringView attributes)
    {
        if (m_elements == mostElements)
            return;
        if (contains(lines, name)) {
            ++m_elements;
            m_result.append("<br>"_L1);
        } else if (contains(plainElements, name) && m_open.size() < deepestNesting) {
            ++m_elements;
            m_open.append(name);
            const QString address = name == "a"_L1 ? webAddress(attributes) : QString();
            if (address.isEmpty())
                m_result.append(u'<' % name % u'>');
            else
                m_result.append(u"<a href=\"" % address % u"\">");
        } else {
            // Cells of a table, for example.
            appendText(u" ");
        }
    }

    void close(const QString &name)
    {
        // What was not opened is not closed, and nothing stays open in it.
        if (!m_open.contains(name))
            return;
        while (m_open.last() != name)
            closeLast();
        closeLast();
    }

    void closeLast() { m_result.append(u"</" % m_open.takeLast() % u'>'); }

    QStringView m_rest;
    QString m_result;
    QStringList m_open;
    /// Of the text, and how many elements there are.
    qsizetype m_length = 0;
    qsizetype m_elements = 0;
};

} // namespace

QString simpleHtml(QStringView html)
{
    return Walk(html).result();
}

} // namespace roamlet
