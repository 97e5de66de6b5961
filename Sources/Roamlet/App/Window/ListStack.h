// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStackedWidget>

namespace roamlet
{

/// Lists, of which one is seen or covered. A list that is covered goes on working, as one that is hidden
/// would not.
class ListStack final : public QStackedWidget
{
    Q_OBJECT

public:
    explicit ListStack(QWidget *parent = nullptr);

    /// Puts a child of this over the shown list, but for so much at its top. Nothing with a null pointer.
    void setCover(QWidget *cover, int top = 0);
    QWidget *cover() const { return m_cover; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeCover();

    QWidget *m_cover = nullptr;
    int m_top = 0;
};

} // namespace roamlet
