// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

namespace roamlet::testing
{

/// The style of a desktop whose user wants nothing to move.
class StillStyle final : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        return hint == SH_Widget_Animation_Duration ? 0
                                                    : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

} // namespace roamlet::testing
