// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Look.h"

#include "App/Look/Contrast.h"

#include <QFontMetrics>
#include <QLabel>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// The colours that a theme is known by.
struct Theme {
    std::string name;
    QRgb window;
    QRgb base;
    QRgb text;
    QRgb highlight;
    QRgb highlightedText = 0xffffff;
};

void PrintTo(const Theme &theme, std::ostream *out)
{
    *out << theme.name;
}

const Theme breezeLight{"BreezeLight", 0xeff0f1, 0xffffff, 0x232629, 0x3daee9};
const Theme breezeDark{"BreezeDark", 0x2a2e32, 0x1b1e20, 0xfcfcfc, 0x3daee9, 0xfcfcfc};
const Theme adwaitaLight{"AdwaitaLight", 0xf6f5f4, 0xffffff, 0x2e3436, 0x3584e4};
const Theme adwaitaDark{"AdwaitaDark", 0x353535, 0x2d2d2d, 0xeeeeec, 0x15539e};
const Theme fusion{"Fusion", 0xefefef, 0xffffff, 0x000000, 0x308cc6};
const Theme whiteOnBlack{"WhiteOnBlack", 0x000000, 0x000000, 0xffffff, 0xffff00, 0x000000};
const Theme blackOnWhite{"BlackOnWhite", 0xffffff, 0xffffff, 0x000000, 0x000000};
const Theme amberOnBlack{"AmberOnBlack", 0x000000, 0x000000, 0xffb000, 0xffb000, 0x000000};
/// Nothing is told from the list by its highlight.
const Theme noHighlight{"NoHighlight", 0xf0f0f0, 0xffffff, 0x202020, 0xffffff, 0x202020};
/// Its texts are too pale to be written on anything but the pure ground.
const Theme paleText{"PaleText", 0xfafafa, 0xffffff, 0x717171, 0x000080};
/// Dark windows around light lists.
const Theme darkWindow{"DarkWindow", 0x303030, 0xffffff, 0x101010, 0x3daee9};

QPalette themePalette(const Theme &theme)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor::fromRgb(theme.window));
    palette.setColor(QPalette::WindowText, QColor::fromRgb(theme.text));
    palette.setColor(QPalette::Base, QColor::fromRgb(theme.base));
    palette.setColor(QPalette::Text, QColor::fromRgb(theme.text));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(theme.highlight));
    palette.setColor(QPalette::HighlightedText, QColor::fromRgb(theme.highlightedText));
    return palette;
}

Look lookOf(const Theme &theme, Look::Contrast contrast = Look::Contrast::Normal)
{
    return {themePalette(theme), QFont(), contrast};
}

/// Every colour of a ground, to be compared.
QList<QColor> colorsOf(const Ground &ground)
{
    return {ground.base, ground.ink, ground.quiet, ground.faint, ground.hairline};
}

QList<QColor> colorsOf(const Look &look)
{
    QList<QColor> colors{look.edge,   look.on,         look.accent,      look.accentText,
                         look.fill,   look.fillInk,    look.match,       look.matchSelected,
                         look.strip,  look.stripEmpty, look.stripToCome, look.warningMark,
                         look.problem};
    for (const Ground *ground : std::initializer_list<const Ground *>{
             &look.list, &look.list.selected, &look.list.selectedInactive, &look.sidebar,
             &look.sidebar.selected, &look.sidebar.selectedInactive, &look.field, &look.card, &look.page,
             &look.notice, &look.warning})
        colors += colorsOf(*ground);
    for (const RowGround *rows : {&look.list, &look.sidebar})
        colors += {rows->hover, rows->pressed};
    return colors;
}

class EveryThemeTest : public ::testing::TestWithParam<Theme>
{
protected:
    /// Checks all that is promised of texts and marks.
    static void check(const Look &look, double text, double mark)
    {
        const QColor &base = look.list.base;
        const QColor &side = look.sidebar.base;
        for (const Ground *ground : std::initializer_list<const Ground *>{
                 &look.list, &look.list.selected, &look.list.selectedInactive, &look.sidebar,
                 &look.sidebar.selected, &look.sidebar.selectedInactive, &look.field, &look.card, &look.page,
                 &look.notice, &look.warning}) {
            EXPECT_GE(contrastRatio(ground->ink, ground->base), text);
            EXPECT_GE(contrastRatio(ground->quiet, ground->base), text);
            EXPECT_LE(contrastRatio(ground->quiet, ground->base), contrastRatio(ground->ink, ground->base));
        }
        for (const QColor &words : {look.list.ink, look.list.quiet})
            EXPECT_GE(lowestContrast(words, {look.list.hover, look.list.pressed}), text);
        for (const QColor &words : {look.sidebar.ink, look.sidebar.quiet})
            EXPECT_GE(contrastRatio(words, look.sidebar.hover), text);
        EXPECT_GE(contrastRatio(look.sidebar.ink, look.sidebar.pressed), text);
        EXPECT_GE(lowestContrast(look.list.ink, {look.match, look.matchSelected}), text);
        EXPECT_GE(lowestContrast(look.accentText, {base, side, look.list.selected.base}), text);
        EXPECT_GE(contrastRatio(look.fillInk, look.fill), text);
        EXPECT_GE(lowestContrast(look.problem, {look.page.base, look.card.base, base}), text);

        EXPECT_GE(
            lowestContrast(look.accent, {base, side, look.list.selected.base, look.sidebar.selected.base}),
            mark);
        EXPECT_GE(lowestContrast(look.edge, {base, side, look.page.base, look.card.base}), mark);
        EXPECT_GE(contrastRatio(look.on, Qt::white), 3);
        EXPECT_GE(lowestContrast(look.on, {base, look.card.base}), 3);
        EXPECT_GT(contrastRatio(look.edge, Qt::white), 2) << "the knob of a switch that is off";
        EXPECT_GE(lowestContrast(look.warningMark, {base, side, look.warning.base}), mark);

        EXPECT_GE(contrastRatio(look.list.selected.base, base), 1.24);
        EXPECT_GE(contrastRatio(look.sidebar.selected.base, side), 1.24);
        EXPECT_GE(contrastRatio(look.match, base), 1.32);
    }
};

TEST_P(EveryThemeTest, everyTextAndMarkIsSeenWhereItIsUsed)
{
    check(lookOf(GetParam()), 4.5, 3);
}

TEST_P(EveryThemeTest, aDesktopThatAsksForMoreContrastGetsIt)
{
    check(lookOf(GetParam(), Look::Contrast::More), 7, 4.5);
}

TEST_P(EveryThemeTest, theSelectionIsAShadeUnderTheSameInk)
{
    const Look look = lookOf(GetParam());
    EXPECT_EQ(look.list.selected.ink, look.list.ink);
    EXPECT_EQ(look.list.selected.quiet, look.list.quiet) << "no text changes while its row is selected";
    EXPECT_EQ(look.sidebar.selected.ink, look.sidebar.ink);
    EXPECT_NE(look.notice.base, look.list.selected.base);
}

TEST_P(EveryThemeTest, rolesLeftFromAnotherPaletteChangeNothing)
{
    QPalette palette = themePalette(GetParam());
    const QList<QColor> colors = colorsOf(Look(palette, QFont()));
    for (const QPalette::ColorRole role :
         {QPalette::PlaceholderText, QPalette::Mid, QPalette::Dark, QPalette::Light, QPalette::AlternateBase})
        palette.setColor(role, palette.color(QPalette::Base));
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::Base, QPalette::Highlight}) {
        palette.setColor(QPalette::Inactive, role, Qt::magenta);
        palette.setColor(QPalette::Disabled, role, Qt::magenta);
    }
    EXPECT_EQ(colorsOf(Look(palette, QFont())), colors);
}

INSTANTIATE_TEST_SUITE_P(, EveryThemeTest,
                         ::testing::Values(breezeLight, breezeDark, adwaitaLight, adwaitaDark, fusion,
                                           whiteOnBlack, blackOnWhite, amberOnBlack, noHighlight),
                         [](const auto &test) { return test.param.name; });

/// The contrasts that the design was judged by.
struct Results {
    Theme theme;
    double text, textOnSelected;
    double quiet, quietOnHover, quietOnSelected;
    double sidebarQuiet, sidebarTextOnSelected;
    double textOnMatch, textOnSelectedMatch;
    double prompt, fill;
    double accent, accentOnSelectedInSidebar;
    double edge, edgeOnWindow, edgeOnCard;
    double knob, onOnCard;
    double lock, bannerText;
};

void PrintTo(const Results &results, std::ostream *out)
{
    *out << results.theme.name;
}

class DesignTest : public ::testing::TestWithParam<Results>
{
};

TEST_P(DesignTest, hasTheContrastsThatItWasJudgedBy)
{
    const Results &wanted = GetParam();
    const Look look = lookOf(wanted.theme);
    // What is found in steps may end a step away.
    const double rounding = 0.1;
    const double step = 0.3;
    EXPECT_NEAR(contrastRatio(look.list.ink, look.list.base), wanted.text, rounding);
    EXPECT_NEAR(contrastRatio(look.list.ink, look.list.selected.base), wanted.textOnSelected, rounding);
    EXPECT_NEAR(contrastRatio(look.list.quiet, look.list.base), wanted.quiet, rounding);
    EXPECT_NEAR(contrastRatio(look.list.quiet, look.list.hover), wanted.quietOnHover, rounding);
    EXPECT_NEAR(contrastRatio(look.list.quiet, look.list.selected.base), wanted.quietOnSelected, rounding);
    EXPECT_NEAR(contrastRatio(look.sidebar.quiet, look.sidebar.base), wanted.sidebarQuiet, rounding);
    EXPECT_NEAR(contrastRatio(look.sidebar.ink, look.sidebar.selected.base), wanted.sidebarTextOnSelected,
                rounding);
    EXPECT_NEAR(contrastRatio(look.list.ink, look.match), wanted.textOnMatch, rounding);
    EXPECT_NEAR(contrastRatio(look.list.ink, look.matchSelected), wanted.textOnSelectedMatch, rounding);
    EXPECT_NEAR(contrastRatio(look.field.quiet, look.field.base), wanted.prompt, step);
    EXPECT_NEAR(contrastRatio(look.fillInk, look.fill), wanted.fill, rounding);
    EXPECT_NEAR(contrastRatio(look.accent, look.list.base), wanted.accent, rounding);
    EXPECT_NEAR(contrastRatio(look.accent, look.sidebar.selected.base), wanted.accentOnSelectedInSidebar,
                rounding);
    EXPECT_NEAR(contrastRatio(look.edge, look.list.base), wanted.edge, rounding);
    EXPECT_NEAR(contrastRatio(look.edge, look.page.base), wanted.edgeOnWindow, rounding);
    EXPECT_NEAR(contrastRatio(look.edge, look.card.base), wanted.edgeOnCard, rounding);
    EXPECT_NEAR(contrastRatio(look.on, Qt::white), wanted.knob, rounding);
    EXPECT_NEAR(contrastRatio(look.on, look.card.base), wanted.onOnCard, rounding);
    EXPECT_NEAR(contrastRatio(look.warningMark, look.warning.base), wanted.lock, rounding);
    EXPECT_NEAR(contrastRatio(look.warning.quiet, look.warning.base), wanted.bannerText, step);
}

INSTANTIATE_TEST_SUITE_P(
    , DesignTest,
    ::testing::Values(Results{breezeLight, 15.2, 12.1, 5.7, 5.2, 4.5, 5.3, 10.6, 11.5, 9.4, 4.8,
                              4.6,         4.4,  3.0,  3.5, 3.0, 3.5, 4.4, 4.4,  3.1,  5.1},
                      Results{breezeDark, 16.3, 12.5, 6.3, 5.5, 4.8, 5.6, 10.2, 9.8, 6.1, 5.5,
                              4.6,        6.7,  4.2,  4.2, 3.5, 3.0, 3.0, 4.0,  5.5, 6.5},
                      Results{adwaitaLight, 12.7, 10.0, 5.9, 5.4, 4.7, 5.0, 9.3, 9.1, 6.9, 4.8,
                              4.5,          4.1,  3.0,  3.3, 3.1, 3.3, 4.1, 4.1, 3.0, 4.7},
                      Results{adwaitaDark, 11.9, 9.6, 6.1, 5.2, 4.9, 5.3, 8.4, 9.0, 7.8, 4.5,
                              7.6,         4.3,  3.1, 4.0, 3.6, 3.1, 3.2, 3.4, 4.5, 5.0},
                      Results{fusion, 21.0, 16.7, 5.7, 5.1, 4.6, 5.2, 14.4, 15.2, 11.5, 4.7,
                              4.6,    4.4,  3.0,  3.5, 3.0, 3.5, 4.4, 4.4,  3.2,  7.7}),
    [](const auto &test) { return test.param.theme.name; });

TEST(LookTest, textsTooPaleForAShadeLeaveTheSelectionToTheTheme)
{
    const Look look = lookOf(paleText);
    for (const Ground *selected : {&look.list.selected, &look.sidebar.selected}) {
        EXPECT_EQ(selected->base, QColor::fromRgb(paleText.highlight));
        EXPECT_EQ(selected->ink, QColor::fromRgb(paleText.highlightedText));
        EXPECT_GE(contrastRatio(selected->quiet, selected->base), 4.5);
    }
    EXPECT_EQ(look.list.ink, QColor::fromRgb(paleText.text)) << "the theme's own text stays what it is";
    EXPECT_GE(lowestContrast(look.accent, {look.list.base, look.list.selected.base}), 3)
        << "nor is the ring lost";
    EXPECT_GE(contrastRatio(look.match, look.list.base), 1.32);
}

TEST(LookTest, aWindowFromAnotherPaletteHasTextsOfItsOwn)
{
    const Look look = lookOf(darkWindow);
    for (const Ground &ground : {look.page, Ground(look.sidebar), look.sidebar.selected}) {
        EXPECT_GE(contrastRatio(ground.ink, ground.base), 4.5);
        EXPECT_GE(contrastRatio(ground.quiet, ground.base), 4.5);
    }
    EXPECT_GE(lowestContrast(look.accent, {look.list.base, look.sidebar.base}), 3);
}

TEST(LookTest, aTextThatCannotBeReadIsReplaced)
{
    QPalette palette = themePalette(whiteOnBlack);
    palette.setColor(QPalette::Text, QColor(20, 20, 20));
    EXPECT_EQ(Look(palette, QFont()).list.ink, QColor(Qt::white));
    palette.setColor(QPalette::WindowText, QColor(20, 20, 20));
    EXPECT_EQ(Look(palette, QFont()).list.ink, QColor(Qt::white));
}

TEST(LookTest, theMarksOfBrowsersAreSeenInDarkThemesAndKeepTheirSign)
{
    const std::vector<QRgb> squares{0x1a7fe0, 0x2b8a3e, 0x0b7f8f, 0x5472a8, 0xd9480f, 0xc92a3a,
                                    0xa61e4d, 0xd9730d, 0x4263eb, 0x6b5e4b, 0x1098ad, 0x7048c8};
    for (const Theme &theme : {breezeDark, adwaitaDark, whiteOnBlack}) {
        const Look look = lookOf(theme);
        for (const QRgb square : squares) {
            const QColor mark = look.mark(QColor::fromRgb(square));
            EXPECT_GE(lowestContrast(mark, {look.list.base, look.sidebar.base, look.card.base}), 3);
            EXPECT_GE(contrastRatio(mark, Qt::white), 3.2) << theme.name << ' ' << std::hex << square;
        }
    }
    for (const QRgb square : squares)
        EXPECT_EQ(lookOf(breezeLight).mark(QColor::fromRgb(square)), QColor::fromRgb(square));
}

TEST(LookTest, measuresFollowTheHeightOfALine)
{
    QFont inPixels;
    inPixels.setPixelSize(15);
    ASSERT_LT(inPixels.pointSizeF(), 0);
    for (const QFont &font :
         {QFont(u"Noto Sans"_s, 8), QFont(u"Noto Sans"_s, 11), QFont(u"Noto Sans"_s, 24), inPixels}) {
        const int unit = QFontMetrics(font).height();
        const Measures measures(font);
        const auto isAbout = [unit](int measure, double units) {
            return std::abs(measure - (units * unit)) <= 0.5 + 1e-6;
        };
        EXPECT_EQ(measures.unit, unit);
        EXPECT_TRUE(isAbout(measures.alignmentLine, 1.35));
        EXPECT_TRUE(isAbout(measures.headerHeight, 3.3));
        EXPECT_TRUE(isAbout(measures.columnHeaderHeight, 1.5));
        EXPECT_TRUE(isAbout(measures.rowHeight, 1.55));
        EXPECT_TRUE(isAbout(measures.sectionHeight, 1.9));
        EXPECT_TRUE(isAbout(measures.sidebarRowHeight, 1.5));
        EXPECT_TRUE(isAbout(measures.settingsRowHeight, 2.67));
        EXPECT_TRUE(isAbout(measures.exportChoiceHeight, 2.9));
        EXPECT_TRUE(isAbout(measures.controlHeight, 1.75));
        EXPECT_TRUE(isAbout(measures.gapAfterIcon, 0.5));
        EXPECT_TRUE(isAbout(measures.gapBetweenCells, 1.6));
        EXPECT_TRUE(isAbout(measures.gapAroundGroups, 0.45));
        EXPECT_TRUE(isAbout(measures.rowRadius, 0.33));
        EXPECT_TRUE(isAbout(measures.fieldRadius, 0.4));
        EXPECT_TRUE(isAbout(measures.boxRadius, 0.6));
        EXPECT_EQ(measures.iconSide % 2, 0);
        EXPECT_NEAR(measures.iconSide, 0.89 * unit, 1);
        EXPECT_GE(measures.sidebarWidth, 190);
        EXPECT_GE(measures.gutter, 0);
        EXPECT_LT(measures.gutter, measures.alignmentLine);
        EXPECT_GT(measures.rowHeight, measures.iconSide);
    }
}

TEST(LookTest, titlesAreLargerAndNotesSmallerInWhateverUnitTheFontCounts)
{
    QFont inPixels;
    inPixels.setPixelSize(20);
    const Look pixels(QPalette(), inPixels);
    EXPECT_EQ(pixels.titleFont.pixelSize(), 25);
    EXPECT_EQ(pixels.smallFont.pixelSize(), 18);
    EXPECT_EQ(pixels.headingFont.pixelSize(), 20);
    QFont inPoints;
    inPoints.setPointSizeF(10);
    const Look points(QPalette(), inPoints);
    EXPECT_NEAR(points.titleFont.pointSizeF(), 12.6, 0.01);
    EXPECT_NEAR(points.smallFont.pointSizeF(), 9.2, 0.01);
    EXPECT_TRUE(points.titleFont.bold());
    EXPECT_TRUE(points.headingFont.bold());
    EXPECT_FALSE(points.smallFont.bold());
}

TEST(LookTest, isMadeAnewWhenAWidgetHasAnotherThemeOrFont)
{
    QWidget widget;
    widget.setPalette(themePalette(breezeLight));
    EXPECT_EQ(colorsOf(Look::of(widget)), colorsOf(lookOf(breezeLight)));
    widget.setPalette(themePalette(breezeDark));
    EXPECT_EQ(colorsOf(Look::of(widget)), colorsOf(lookOf(breezeDark)));
    QFont large = widget.font();
    large.setPixelSize(40);
    widget.setFont(large);
    EXPECT_EQ(Look::of(widget).measures.unit, QFontMetrics(large).height());
}

/// What it was told, and how it looked then.
class ToldWidget final : public QWidget
{
public:
    QList<QColor> quietInks;

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::PaletteChange)
            quietInks.append(Look::of(*this).list.quiet);
    }
};

TEST(LookTest, allWidgetsStandOutMoreOnceTheDesktopAsksForIt)
{
    ToldWidget widget;
    widget.setPalette(themePalette(breezeLight));
    ToldWidget child;
    child.setParent(&widget);
    widget.quietInks.clear();
    child.quietInks.clear();
    const Look more = lookOf(breezeLight, Look::Contrast::More);
    setContrast(Look::Contrast::More);
    EXPECT_EQ(colorsOf(Look::of(widget)), colorsOf(more));
    EXPECT_NE(colorsOf(more), colorsOf(lookOf(breezeLight)));
    EXPECT_EQ(widget.quietInks, QList<QColor>{more.list.quiet});
    EXPECT_EQ(child.quietInks, QList<QColor>{more.list.quiet});
    setContrast(Look::Contrast::More);
    EXPECT_EQ(widget.quietInks.size(), 1) << "it knew that";
    setContrast(Look::Contrast::Normal);
    EXPECT_EQ(colorsOf(Look::of(widget)), colorsOf(lookOf(breezeLight)));
}

TEST(LookTest, aWidgetMayEndOthersWhenItHearsOfTheContrast)
{
    /// Stays alone.
    class Rival final : public QWidget
    {
    public:
        explicit Rival(QList<Rival *> &all) : m_all(all) { all.append(this); }

    protected:
        void changeEvent(QEvent *event) override
        {
            QWidget::changeEvent(event);
            if (event->type() != QEvent::PaletteChange)
                return;
            m_all.removeOne(this);
            qDeleteAll(m_all);
            m_all = {this};
        }

    private:
        QList<Rival *> &m_all;
    };
    QList<Rival *> rivals;
    for (int i = 0; i < 20; ++i)
        std::make_unique<Rival>(rivals).release();
    setContrast(Look::Contrast::More);
    EXPECT_EQ(rivals.size(), 1);
    setContrast(Look::Contrast::Normal);
    ASSERT_EQ(rivals.size(), 1);
    delete rivals.first();
}

TEST(LookTest, aColourGivenToAWidgetHoldsInEveryWindow)
{
    QLabel label;
    setPaletteColor(label, QPalette::WindowText, Qt::red);
    EXPECT_EQ(label.palette().color(QPalette::Active, QPalette::WindowText), QColor(Qt::red));
    EXPECT_EQ(label.palette().color(QPalette::Inactive, QPalette::WindowText), QColor(Qt::red));
}

} // namespace
} // namespace roamlet::testing
