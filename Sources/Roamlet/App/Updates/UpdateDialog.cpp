// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/UpdateDialog.h"

#include "App/Look/Look.h"
#include "App/Look/NoteLabel.h"
#include "App/Look/RoamletStyle.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

UpdateDialog::UpdateDialog(const QString &name, const QString &heading, Answer closed)
    : m_closed(std::move(closed)),
      m_heading(new QLabel),
      m_text(new NoteLabel),
      m_contents(new QVBoxLayout),
      m_buttons(new QHBoxLayout)
{
    setObjectName(name);
    setWindowTitle(tr("Software Update"));
    m_heading->setObjectName(u"updateHeading"_s);
    m_heading->setText(heading);
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setWordWrap(true);
    m_heading->setFont(Look::of(*this).headingFont);
    m_text->setObjectName(u"updateText"_s);
    m_text->hide();

    auto *words = new QVBoxLayout;
    words->addWidget(m_heading);
    words->addWidget(m_text);
    words->addLayout(m_contents, 1);
    words->addStretch(0);
    auto *icon = new QLabel;
    constexpr int iconSide = 48;
    icon->setPixmap(QGuiApplication::windowIcon().pixmap(iconSide));
    icon->setAlignment(Qt::AlignTop);
    auto *top = new QHBoxLayout;
    const Measures measures(font());
    top->setSpacing(measures.boxPadding);
    if (!QGuiApplication::windowIcon().isNull())
        top->addWidget(icon);
    top->addLayout(words, 1);
    auto *layout = new QVBoxLayout(this);
    const int margin = measures.sheetPadding;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(measures.boxPadding);
    layout->addLayout(top, 1);
    layout->addLayout(m_buttons);
    // Not what its words need: they come from elsewhere, too.
    constexpr int narrowest = 400;
    setMinimumWidth(narrowest);
}

void UpdateDialog::setHeading(const QString &text)
{
    m_heading->setText(text);
    growToText();
}

void UpdateDialog::setText(const QString &text)
{
    m_text->setText(text);
    m_text->setHidden(text.isEmpty());
    growToText();
}

void UpdateDialog::growToText()
{
    // A window does not follow words that go on in another line by itself.
    if (!isVisible())
        return;
    layout()->activate();
    if (const int needed = layout()->totalHeightForWidth(width()); needed > height())
        resize(width(), needed);
}

void UpdateDialog::setProgress(std::optional<double> share)
{
    if (m_bar == nullptr) {
        m_bar = new QProgressBar;
        m_bar->setObjectName(u"updateProgress"_s);
        m_bar->setAccessibleName(m_heading->text());
        m_bar->setTextVisible(false);
        m_contents->addWidget(m_bar);
    }
    // The bar counts in ints, and a file can be larger.
    constexpr int barLength = 1000;
    m_bar->setRange(0, share ? barLength : 0);
    if (share)
        m_bar->setValue(static_cast<int>(std::clamp(*share, 0.0, 1.0) * barLength));
}

void UpdateDialog::withdraw()
{
    give({});
}

void UpdateDialog::reject()
{
    give(m_closed);
}

void UpdateDialog::addButton(const QString &name, const QString &text, Role role, Answer answer)
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setAccessibleName(text);
    // Return presses the same button wherever the focus is.
    button->setAutoDefault(role == Role::Default);
    button->setDefault(role == Role::Default);
    RoamletStyle::applyTo(*button);
    m_buttons->addWidget(button);
    const QMargins around = layout()->contentsMargins();
    setMinimumWidth(
        std::max(minimumWidth(), m_buttons->totalMinimumSize().width() + around.left() + around.right()));
    connect(button, &QPushButton::clicked, this, [this, answer = std::move(answer)] { give(answer); });
    if (role == Role::Default)
        button->setFocus();
}

void UpdateDialog::addButtonSpace()
{
    m_buttons->addStretch();
}

void UpdateDialog::give(const Answer &answer)
{
    if (std::exchange(m_isAnswered, true))
        return;
    QDialog::reject();
    // The answer may open the next window in the place of this one.
    if (answer)
        answer();
}

} // namespace roamlet
