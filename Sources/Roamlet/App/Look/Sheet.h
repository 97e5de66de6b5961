// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

namespace roamlet
{

/// A question within a window, which comes down from under its frame and lies over everything else until it
/// is answered. No window of its own: a window system that lets no program place its windows cannot tear it
/// off. Mouse and keyboard stay in it, Return presses its default button, Escape rejects it. It is deleted
/// when it closes.
class Sheet : public QWidget
{
    Q_OBJECT

public:
    /// `window` is what it lies over.
    explicit Sheet(QWidget *window);
    ~Sheet() override;

    void open();
    virtual void accept();
    virtual void reject();

    /// What comes down.
    QWidget &card() const { return *m_card; }

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void place();
    /// How large the card wants to be in a window of this width.
    QSize cardSize(int room) const;
    void keepFocus(QWidget *focused);
    double progress() const;

    QWidget *m_card;
    QVariantAnimation m_coming;
    /// What had the keyboard before.
    QPointer<QWidget> m_before;
};

} // namespace roamlet
