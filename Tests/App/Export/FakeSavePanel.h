// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/SavePanel.h"

#include <QList>

#include <utility>

namespace roamlet::testing
{

/// A user who always saves to the same place, or never.
class FakeSavePanel final : public SavePanel
{
public:
    void ask(QWidget * /*parent*/, const Request &request, Answer answer) override
    {
        requests.append(request);
        if (beforeAnswer)
            beforeAnswer();
        answer(chosenPath);
    }

    /// Without one, the user cancels.
    std::optional<QString> chosenPath;
    /// What happens while the panel is open.
    std::function<void()> beforeAnswer;
    QList<Request> requests;
};

} // namespace roamlet::testing
