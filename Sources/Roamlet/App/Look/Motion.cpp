// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Motion.h"

#include <QStyle>
#include <QWidget>

#include <optional>
#include <utility>

namespace roamlet
{

namespace
{

struct MotionSetting {
    std::function<bool()> ask;
    std::optional<bool> answer;
};

MotionSetting &motionSetting()
{
    static MotionSetting setting;
    return setting;
}

bool isMotionAllowed()
{
    MotionSetting &setting = motionSetting();
    if (!setting.answer)
        setting.answer = !setting.ask || setting.ask();
    return *setting.answer;
}

} // namespace

void setMotionSetting(std::function<bool()> isMotionAllowed)
{
    motionSetting() = {.ask = std::move(isMotionAllowed), .answer = {}};
}

bool isMotionWanted(const QWidget &widget)
{
    return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0 &&
           isMotionAllowed();
}

int motionTime(const QWidget &widget, int milliseconds)
{
    return isMotionWanted(widget) ? milliseconds : 0;
}

} // namespace roamlet
