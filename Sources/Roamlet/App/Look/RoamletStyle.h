// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

class QMenu;

namespace roamlet
{

/// What the push buttons of our own windows look like. Tips, pop-ups, scroll bars and the dialogs of the
/// desktop keep the desktop's style, and so do menus, as long as their edges can be seen.
class RoamletStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    /// Gives it to the push buttons in `root`, which may be one itself, or a field. Those that come later
    /// have to be given it, too.
    static void applyTo(QWidget &root);

    /// Lets the menu have an outline where the theme's own would be as dark as what the menu lies over.
    static void outline(QMenu &menu);

    void polish(QWidget *widget) override;
    using QProxyStyle::polish;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override;

private:
    static RoamletStyle &shared();
};

} // namespace roamlet
