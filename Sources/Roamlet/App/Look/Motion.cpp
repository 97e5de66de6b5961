// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Motion.h"

#include <QStyle>
#include <QWidget>

namespace roamlet
{

namespace
{

bool isMotionAllowed = true;

} // namespace

void setMotionAllowed(bool isAllowed)
{
    isMotionAllowed = isAllowed;
}

bool isMotionWanted(const QWidget &widget)
{
    return isMotionAllowed &&
           widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

int motionTime(const QWidget &widget, int milliseconds)
{
    return isMotionWanted(widget) ? milliseconds : 0;
}

} // namespace roamlet
