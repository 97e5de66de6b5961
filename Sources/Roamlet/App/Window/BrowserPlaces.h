// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QScrollArea>

namespace roamlet
{

class Folders;

/// The browsers that we look for, each with the places where its data would be: for a user who has none that
/// we know. Where the window is too low for all of them it scrolls.
class BrowserPlaces final : public QScrollArea
{
    Q_OBJECT

public:
    explicit BrowserPlaces(const Folders &folders, QWidget *parent = nullptr);

    /// What to say above the list.
    static QString introduction();

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    void followFont();
};

} // namespace roamlet
