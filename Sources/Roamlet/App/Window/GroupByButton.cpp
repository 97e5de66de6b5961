// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/GroupByButton.h"

#include "App/Look/Chevron.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Look/Symbol.h"

#include <QPainter>
#include <QStyle>

namespace roamlet
{

using namespace Qt::StringLiterals;

GroupByButton::GroupByButton(QWidget *parent) : HeaderButton(u"rectangle.3.group"_s, tr("Group By"), parent)
{
    setObjectName(u"groupByButton"_s);
    updateWords();
}

void GroupByButton::setChoice(const QString &choice)
{
    m_choice = choice;
    updateWords();
}

void GroupByButton::setCompact(bool isCompact)
{
    m_isCompact = isCompact;
    updateWords();
}

void GroupByButton::updateWords()
{
    setAccessibleDescription(m_choice);
    // Beside its words it would only say them twice.
    const QString words = m_choice.isEmpty() ? text() : QString(text() % u' ' % m_choice);
    setToolTip(m_isCompact ? words : QString());
    updateGeometry();
    update();
}

int GroupByButton::widthWhen(bool isCompact) const
{
    const Measures measures(font());
    const int gap = measures.gapInToolButton;
    const int signs = measures.iconSide + gap + measures.chevronSide + (2 * padding());
    if (isCompact)
        return signs;
    const int words = fontMetrics().horizontalAdvance(text());
    const int choice = m_choice.isEmpty() ? 0 : gap + fontMetrics().horizontalAdvance(m_choice);
    return signs + gap + words + choice;
}

QSize GroupByButton::sizeHint() const
{
    return {widthWhen(m_isCompact), HeaderButton::sizeHint().height()};
}

void GroupByButton::paintContent(QPainter &painter, const QRect &content)
{
    HeaderButton::paintContent(painter, content);
    const Look look = Look::of(*this);
    const int gap = look.measures.gapInToolButton;
    const QColor quiet = isEnabled() ? look.list.quiet : look.list.faint;
    if (!m_isCompact) {
        int start = content.left() + look.measures.iconSide + gap;
        const auto write = [&](const QString &words, const QColor &color) {
            const QRect place(start, content.top(), fontMetrics().horizontalAdvance(words), content.height());
            painter.setPen(color);
            painter.drawText(QStyle::visualRect(layoutDirection(), content, place),
                             Qt::AlignCenter | Qt::TextSingleLine, words);
            start += place.width() + gap;
        };
        write(text(), quiet);
        write(m_choice, ink());
    }
    const int side = look.measures.chevronSide;
    const QRect place = squareIn(content, content.right() + 1 - side, side);
    drawChevron(painter, QStyle::visualRect(layoutDirection(), content, place), Qt::DownArrow, quiet);
}

} // namespace roamlet
