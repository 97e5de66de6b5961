// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/HeaderButton.h"

namespace roamlet
{

/// Says how the list is grouped, and opens the menu of the other ways.
class GroupByButton final : public HeaderButton
{
    Q_OBJECT

public:
    explicit GroupByButton(QWidget *parent = nullptr);

    /// The way that is chosen; empty for none.
    void setChoice(const QString &choice);
    /// Without its words, which the tip then has.
    void setCompact(bool isCompact);
    bool isCompact() const { return m_isCompact; }

    QSize sizeHint() const override;
    /// How wide it would be.
    int widthWhen(bool isCompact) const;

protected:
    void paintContent(QPainter &painter, const QRect &content) override;

private:
    void updateWords();

    QString m_choice;
    bool m_isCompact = false;
};

} // namespace roamlet
