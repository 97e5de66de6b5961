// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/RoamletStyle.h"

#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"

#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>

namespace roamlet
{

namespace
{

/// The button's own rectangle within its widget, which has room for the focus ring around it. Layouts do not
/// count that room.
constexpr int roomForRing = Measures::focusRingWidth + Measures::focusRingGap;

QRect buttonRect(const QRect &widget)
{
    return widget.adjusted(roomForRing, roomForRing, -roomForRing, -roomForRing);
}

bool isDefaultButton(const QStyleOptionButton &button)
{
    return button.features.testFlag(QStyleOptionButton::DefaultButton);
}

QColor groundOf(const QStyleOptionButton &button, const Look &look)
{
    const bool isEnabled = button.state.testFlag(QStyle::State_Enabled);
    const bool isPressed =
        isEnabled && (button.state.testFlag(QStyle::State_Sunken) || button.state.testFlag(QStyle::State_On));
    const bool isHovered = isEnabled && button.state.testFlag(QStyle::State_MouseOver);
    const bool isFilled = isEnabled && isDefaultButton(button);
    if (isPressed)
        return isFilled ? look.fillPressed : look.veilPressed;
    if (isHovered)
        return isFilled ? look.fillHover : look.veilHover;
    return isFilled ? look.fill : look.veil;
}

QColor inkOf(const QStyleOptionButton &button, const Look &look)
{
    if (!button.state.testFlag(QStyle::State_Enabled))
        return look.page.faint;
    return isDefaultButton(button) ? look.fillInk : look.page.ink;
}

void drawPushButton(const QStyleOptionButton &button, QPainter &painter, const QWidget &widget)
{
    const Look look = Look::of(widget);
    const QRect rect = buttonRect(button.rect);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(groundOf(button, look));
    painter.drawRoundedRect(rect, look.measures.rowRadius, look.measures.rowRadius);

    painter.setFont(isDefaultButton(button) ? look.headingFont : widget.font());
    const QFontMetrics metrics = painter.fontMetrics();
    const int gap = button.icon.isNull() ? 0 : look.measures.gapAfterIcon;
    const int icon = button.icon.isNull() ? 0 : button.iconSize.width();
    const int text = metrics.size(Qt::TextShowMnemonic, button.text).width();
    const int width = qMin(rect.width(), icon + gap + text);
    const QRect contents(rect.left() + (rect.width() - width) / 2, rect.top(), width, rect.height());
    const QIcon::Mode mode = button.state.testFlag(QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled;
    if (icon > 0) {
        const QRect place(contents.left(), contents.top(), icon, contents.height());
        button.icon.paint(&painter, QStyle::visualRect(button.direction, contents, place), Qt::AlignCenter,
                          mode);
    }
    const QStyle &style = *widget.style();
    const int mnemonic = style.styleHint(QStyle::SH_UnderlineShortcut, &button, &widget) != 0
                             ? Qt::TextShowMnemonic
                             : Qt::TextHideMnemonic;
    painter.setPen(inkOf(button, look));
    readInOwnDirection(painter, button.text);
    painter.drawText(QStyle::visualRect(button.direction, contents, contents.adjusted(icon + gap, 0, 0, 0)),
                     Qt::AlignCenter | Qt::TextSingleLine | mnemonic, button.text);
    painter.restore();

    if (showsFocus(widget))
        drawFocusRing(painter, button.rect, look.measures.rowRadius + roomForRing - 1, look);
}

} // namespace

RoamletStyle &RoamletStyle::shared()
{
    // Every window shares it, and it goes with the process.
    static auto *const style = new RoamletStyle;
    return *style;
}

void RoamletStyle::outline(QMenu &menu)
{
    connect(&menu, &QMenu::aboutToShow, &menu, [&menu] {
        QStyle *const wanted = Look::of(menu).isOutlined ? &shared() : nullptr;
        if ((menu.style() == &shared()) != (wanted != nullptr))
            menu.setStyle(wanted);
    });
}

void RoamletStyle::applyTo(QWidget &root)
{
    QWidgetList ours;
    for (QPushButton *button : root.findChildren<QPushButton *>())
        ours.append(button);
    if (qobject_cast<QPushButton *>(&root) != nullptr || qobject_cast<QLineEdit *>(&root) != nullptr)
        ours.append(&root);
    for (QWidget *widget : ours) {
        if (widget->style() != &shared())
            widget->setStyle(&shared());
    }
}

void RoamletStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    widget->setAttribute(Qt::WA_Hover);
}

int RoamletStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    // The icons in a field are as large as all others.
    if (metric == PM_LineEditIconSize && widget != nullptr)
        return Measures(widget->font()).iconSide;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

void RoamletStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    // Some styles draw the frame by itself, others with the ground.
    if ((element != PE_PanelMenu && element != PE_FrameMenu) || widget == nullptr)
        return;
    for (const Qt::Edge edge : {Qt::TopEdge, Qt::BottomEdge, Qt::LeftEdge, Qt::RightEdge})
        paintHairline(*painter, option->rect, edge, Look::of(*widget).outline);
}

void RoamletStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_PushButton && button != nullptr && widget != nullptr)
        drawPushButton(*button, *painter, *widget);
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

QSize RoamletStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                     const QWidget *widget) const
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (type != CT_PushButton || button == nullptr || widget == nullptr)
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    const Look look = Look::of(*widget);
    // As bold as it gets: a button does not grow when it becomes the default one.
    const int text = QFontMetrics(look.headingFont).size(Qt::TextShowMnemonic, button->text).width();
    const int icon = button->icon.isNull() ? 0 : button->iconSize.width() + look.measures.gapAfterIcon;
    const QSize own(icon + text + 2 * look.measures.boxPadding, look.measures.controlHeight);
    return own + QSize(2 * roomForRing, 2 * roomForRing);
}

QRect RoamletStyle::subElementRect(SubElement element, const QStyleOption *option,
                                   const QWidget *widget) const
{
    if (element == SE_PushButtonLayoutItem || element == SE_PushButtonBevel ||
        element == SE_PushButtonContents || element == SE_PushButtonFocusRect)
        return buttonRect(option->rect);
    return QProxyStyle::subElementRect(element, option, widget);
}

} // namespace roamlet
