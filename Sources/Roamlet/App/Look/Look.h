// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QWidget;

namespace roamlet
{

/// A ground, and what is drawn on it.
struct Ground {
    QColor base;
    /// Titles and other texts, and the marks that belong to them.
    QColor ink;
    /// What only accompanies a text, as readable as any text has to be.
    QColor quiet;
    /// What is disabled, and nothing else.
    QColor faint;
    QColor hairline;
};

/// A ground with rows, each of which may be in another state. `ink` and `quiet` are readable on all of them
/// but the selection, which is a ground of its own.
struct RowGround : Ground {
    QColor hover;
    QColor pressed;
    /// A light shade of the theme's highlight, on which icons keep their colours. In a theme that leaves no
    /// room for one it is the highlight itself. Its ink is the one to write with in both cases.
    Ground selected;
    /// In a window that is not the active one.
    Ground selectedInactive;

    /// What a row in this state is drawn on.
    const Ground &of(bool isSelected, bool isInActiveWindow) const;
};

/// Lengths in logical pixels, all of them multiples of the height of a line of text.
struct Measures {
    explicit Measures(const QFont &font);

    /// Any other multiple, rounded.
    int units(double count) const;

    /// The height of a line of text.
    int unit;
    /// From the edge of a column to the line on which everything in it begins.
    int alignmentLine;
    /// From the same edge to what stands before that line, such as the arrow of a section.
    int gutter;
    int headerHeight;
    int columnHeaderHeight;
    int rowHeight;
    int sectionHeight;
    int sidebarRowHeight;
    int sidebarWidth;
    int settingsRowHeight;
    int exportChoiceHeight;
    int comboBoxHeight;
    /// Tool buttons, push buttons and fields.
    int controlHeight;
    /// What a button is as wide as, however short its words are.
    int buttonWidth;
    /// From the edge of a tool button to its symbol, and from there to its words.
    int toolButtonPadding;
    int gapInToolButton;
    int searchWidth;
    /// As far as it gives way to others, and as far as it does for the title of the page.
    int narrowSearchWidth;
    int leastSearchWidth;
    int tabHeight;
    /// Between the edge of the track and the section on it.
    int tabInset;
    int switchWidth;
    int switchHeight;
    int radioSide;
    /// Icons of sites and browsers; even, so that they have a middle.
    int iconSide;
    /// The arrow of what opens and closes.
    int chevronSide;
    /// The sign of a bar that asks for something.
    int signSide;
    int gapAfterIcon;
    int gapBetweenCells;
    int gapAroundGroups;
    /// From the edge of a row in a boxed list to what stands in it.
    int boxPadding;
    /// Above and below what would fill such a row.
    int rowPadding;
    /// Above and below what would fill a bar over the list.
    int barPadding;
    int sheetWidth;
    int sheetPadding;
    int settingsWidth;
    int settingsHeight;
    /// How far a row that is carried to another place stands out on both sides.
    int lift;
    int rowRadius;
    int fieldRadius;
    /// Boxed lists, sheets and menus.
    int boxRadius;

    static constexpr int focusRingWidth = 2;
    /// Between a button and the ring around it. In rows the ring lies inside.
    static constexpr int focusRingGap = 2;
};

/// All colours and measures of the program, made from the theme's palette and font. Only the palette's base,
/// text, window and highlight are asked for, of an active window, because some themes leave the quieter roles
/// from another palette. From these, every colour is mixed until it is seen well enough where it is used.
struct Look {
    /// What the desktop asks for.
    enum class Contrast { Normal, More };

    Look(const QPalette &palette, const QFont &font, Contrast contrast = Contrast::Normal);

    /// For what this widget draws, with the contrast that was set last.
    static Look of(const QWidget &widget);

    /// The square behind the sign of a browser, light enough for a dark theme.
    QColor mark(const QColor &square) const;

    Measures measures;
    QFont textFont;
    /// Titles of pages.
    QFont titleFont;
    /// Titles of sections.
    QFont headingFont;
    /// Subtitles, headings of columns, counts and notes.
    QFont smallFont;

    RowGround list;
    RowGround sidebar;
    /// What is typed into.
    Ground field;
    /// In place of a ground that is painted already.
    QColor noGround = Qt::transparent;
    /// The rows of a boxed list.
    Ground card;
    /// Behind boxed lists and whole windows.
    Ground page;
    /// A bar that says what the list is limited to.
    Ground notice;
    /// A bar that asks for something.
    Ground warning;

    /// Push buttons that do not know what they lie on, and what is under the pointer: a veil of ink.
    QColor veil;
    QColor veilHover;
    QColor veilPressed;
    /// The one over a row under the pointer.
    QColor rowVeil;
    /// The sections of a window, and the one that is shown.
    QColor tabTrack;
    QColor tabQuiet;
    QColor tab;
    /// Over all that has to wait for a sheet.
    QColor scrim;
    /// Below what has been lifted from its ground, where it is darkest.
    QColor shadow;
    /// Around what lies above all else.
    QColor outline;
    /// Whether that has to be seen, since no shadow is, or since the desktop asks for more contrast.
    bool isOutlined;
    /// What a control that is off consists of, or its outline.
    QColor edge;
    /// A control that is on, and what stands out on it.
    QColor on;
    QColor knob = Qt::white;
    /// The focus ring, and all else that shows where the user is.
    QColor accent;
    /// Words that do something.
    QColor accentText;
    /// The button that the Return key presses, and its words.
    QColor fill;
    QColor fillHover;
    QColor fillPressed;
    QColor fillInk;
    /// Behind what was searched for; the letters keep the ink of the list.
    QColor match;
    QColor matchSelected;
    /// An hour in the strip of a day's visits.
    QColor strip;
    QColor stripEmpty;
    QColor stripToCome;
    /// The orange of warnings, as a sign that is seen on the grounds above.
    QColor warningMark;
    /// The words of a problem on a page.
    QColor problem;

private:
    double m_markContrast;
    bool m_isDark;
};

/// How much all widgets have to stand out from now on. They are told as if their palettes had changed.
void setContrast(Look::Contrast contrast);

/// Gives a widget that Qt draws one of these colours, until the theme changes.
void setPaletteColor(QWidget &widget, QPalette::ColorRole role, const QColor &color);

} // namespace roamlet
