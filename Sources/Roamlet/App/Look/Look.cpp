// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Look.h"

#include "App/Look/Contrast.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QPointer>
#include <QWidget>
#include <QtMath>

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace roamlet
{

namespace
{

/// From this contrast on, two grounds are taken for two.
constexpr double leastGroundContrast = 1.06;
constexpr double selectionContrast = 1.24;
constexpr double matchContrast = 1.32;
constexpr double leastMarkContrast = 3;
/// What a text still has on a match in a theme whose texts are too pale for more.
constexpr double leastInkContrast = 3;
/// Between a ground and black, below which nothing darker is seen on it.
constexpr double leastShadowContrast = 1.2;
/// How much ink a quiet text has at least.
constexpr double quietShare = 0.58;
/// By how much a share grows while one is searched for that is seen.
constexpr double shareStep = 0.02;
constexpr int leastSidebarWidth = 190;

/// The theme's own text. Where it leaves text and ground from different palettes, what can be read.
QColor inkOn(const QColor &ground, const QPalette &palette, double contrast)
{
    const auto isWorse = [&ground](const QColor &left, const QColor &right) {
        return contrastRatio(ground, left) < contrastRatio(ground, right);
    };
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    if (contrastRatio(text, ground) >= contrast)
        return text;
    const QColor own = std::max(text, palette.color(QPalette::Active, QPalette::WindowText), isWorse);
    return contrastRatio(own, ground) >= leastInkContrast
               ? own
               : std::max(QColor(Qt::black), QColor(Qt::white), isWorse);
}

/// The ground with the smallest share of the tint, from `share` on, that stands out from the pure one. Where
/// so much of it would leave the ink too pale, it begins with less. None when the ink stays too pale.
std::optional<std::pair<QColor, double>> tinted(const QColor &ground, const QColor &tint, double share,
                                                double contrast, const QColor &ink, double inkContrast)
{
    for (const double first : {share, shareStep}) {
        const int steps = qFloor((1 - first) / shareStep);
        for (int i = 0; i <= steps; ++i) {
            const double tried = first + (i * shareStep);
            const QColor color = mixedColor(ground, tint, tried);
            if (contrastRatio(ink, color) < inkContrast)
                break;
            if (contrastRatio(color, ground) >= contrast)
                return std::pair(color, tried);
        }
    }
    return std::nullopt;
}

/// One theme's colours while the tokens are made of them.
struct Mixer {
    const QPalette &palette;
    double textContrast;

    QColor color(QPalette::ColorRole role) const { return palette.color(QPalette::Active, role); }
    QColor inkOn(const QColor &ground) const { return roamlet::inkOn(ground, palette, textContrast); }

    Ground ground(const QColor &base, const QColor &ink, Surfaces surfaces) const
    {
        return {.base = base,
                .ink = ink,
                .quiet = readableMix(base, ink, quietShare, surfaces, textContrast).value_or(ink),
                .faint = mixedColor(base, ink, 0.34),
                .hairline = mixedColor(base, ink, 0.12)};
    }

    Ground ground(const QColor &base) const { return ground(base, inkOn(base), {base}); }

    /// A ground and its ink.
    std::pair<QColor, QColor> selection(const QColor &base, const QColor &ink) const
    {
        const QColor highlight = color(QPalette::Highlight);
        // A highlight that cannot be told from the ground is none.
        for (const QColor &tint : {highlight, ink}) {
            if (const auto shade = tinted(base, tint, 0.16, selectionContrast, ink, textContrast))
                return {shade->first, ink};
        }
        const QColor highlighted = color(QPalette::HighlightedText);
        const double contrast = contrastRatio(highlighted, highlight);
        const bool isSeen = contrastRatio(highlight, base) >= selectionContrast;
        if (isSeen && (contrast >= textContrast || contrast >= contrastRatio(ink, base)))
            return {highlight, highlighted};
        return {ink, base};
    }

    RowGround rows(const QColor &base, double hoverShare, double inactiveShare) const
    {
        const QColor ink = inkOn(base);
        const auto [selected, selectedInk] = selection(base, ink);
        const QColor inactive = mixedColor(base, ink, inactiveShare);
        const QColor hover = mixedColor(base, ink, hoverShare);
        return {ground(base, ink, {base, hover}), hover, mixedColor(base, ink, 0.10),
                ground(selected, selectedInk, {selected}), ground(inactive, ink, {inactive})};
    }

    /// One quiet colour for all states of a row, so that no text changes while it is selected.
    RowGround listRows(const QColor &base) const
    {
        RowGround list = rows(base, 0.05, 0.10);
        const QColor &selected = list.selected.base;
        const QColor &inactive = list.selectedInactive.base;
        const bool isShade = list.selected.ink == list.ink;
        static_cast<Ground &>(list) =
            ground(base, list.ink, {base, list.hover, list.pressed, inactive, isShade ? selected : inactive});
        list.selectedInactive.quiet = list.quiet;
        if (isShade)
            list.selected.quiet = list.quiet;
        return list;
    }
};

/// A ground of its own over any other one.
QColor translucent(QColor color, double share)
{
    color.setAlphaF(static_cast<float>(share));
    return color;
}

/// What the desktop has asked for.
Look::Contrast wantedContrast = Look::Contrast::Normal;

QFont scaledFont(QFont font, double factor)
{
    // A font has a size in points or one in pixels, never both.
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * factor);
    else
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * factor)));
    return font;
}

QFont boldFont(QFont font)
{
    font.setBold(true);
    return font;
}

} // namespace

const Ground &RowGround::of(bool isSelected, bool isInActiveWindow) const
{
    if (!isSelected)
        return *this;
    return isInActiveWindow ? selected : selectedInactive;
}

Measures::Measures(const QFont &font)
    : unit(std::max(1, QFontMetrics(font).height())),
      alignmentLine(units(1.35)),
      gutter(units(1.35 - 0.98)),
      headerHeight(units(3.3)),
      columnHeaderHeight(units(1.5)),
      rowHeight(units(1.55)),
      sectionHeight(units(1.9)),
      sidebarRowHeight(units(1.5)),
      sidebarWidth(std::max(leastSidebarWidth, units(12.6))),
      settingsRowHeight(units(2.67)),
      exportChoiceHeight(units(2.9)),
      comboBoxHeight(units(2.2)),
      controlHeight(units(1.75)),
      buttonWidth(units(5)),
      toolButtonPadding(units(0.43)),
      gapInToolButton(units(0.4)),
      searchWidth(units(12.5)),
      narrowSearchWidth(units(9)),
      leastSearchWidth(units(5)),
      tabHeight(units(1.6)),
      tabInset(units(0.18)),
      switchWidth(units(2.1)),
      switchHeight(units(1.2)),
      radioSide(units(0.95)),
      iconSide(2 * std::max(1, units(0.89 / 2))),
      chevronSide(units(0.8)),
      signSide(units(1.2)),
      gapAfterIcon(units(0.5)),
      gapBetweenCells(units(1.6)),
      gapAroundGroups(units(0.45)),
      boxPadding(units(0.8)),
      rowPadding(units(0.33)),
      barPadding(units(0.3)),
      sheetWidth(units(31)),
      sheetPadding(units(1.3)),
      settingsWidth(units(27.8)),
      settingsHeight(units(24.4)),
      lift(units(0.22)),
      rowRadius(units(0.33)),
      fieldRadius(units(0.4)),
      boxRadius(units(0.6))
{
}

int Measures::units(double count) const
{
    return qRound(count * unit);
}

Look::Look(const QPalette &palette, const QFont &font, Contrast contrast)
    : measures(font),
      textFont(font),
      titleFont(boldFont(scaledFont(font, 1.26))),
      headingFont(boldFont(font)),
      smallFont(scaledFont(font, 0.92)),
      m_markContrast(contrast == Contrast::More ? 4.5 : leastMarkContrast)
{
    const Mixer mixer{.palette = palette, .textContrast = contrast == Contrast::More ? 7.0 : 4.5};
    const double textContrast = mixer.textContrast;
    const QColor window = mixer.color(QPalette::Window);
    const QColor highlighted = mixer.color(QPalette::HighlightedText);
    const auto shade = [](const QColor &color, Surfaces surfaces, double wanted, const QColor &otherwise) {
        return readableShade(color, surfaces, wanted).value_or(otherwise);
    };

    list = mixer.listRows(mixer.color(QPalette::Base));
    const QColor &base = list.base;
    const QColor &ink = list.ink;
    m_isDark = relativeLuminance(base) < relativeLuminance(ink);
    const QColor side =
        contrastRatio(window, base) >= leastGroundContrast ? window : mixedColor(base, ink, 0.045);
    sidebar = mixer.rows(side, 0.06, 0.11);
    page = mixer.ground(window);
    card = mixer.ground(m_isDark ? mixedColor(window, page.ink, 0.045) : base);
    // What lies on the list is no paper of its own: its quiet texts are mixed from the list's.
    const auto onList = [&](const QColor &own, double share = quietShare) {
        Ground ground = mixer.ground(own);
        ground.quiet = readableMix(base, ground.ink, share, {own}, textContrast).value_or(ground.ink);
        return ground;
    };
    field = onList(mixedColor(base, ink, 0.055));
    veil = translucent(page.ink, 0.09);
    veilHover = translucent(page.ink, 0.14);
    veilPressed = translucent(page.ink, 0.19);
    rowVeil = translucent(page.ink, 0.04);
    tabTrack = mixedColor(window, page.ink, 0.07);
    tabQuiet = readableMix(window, page.ink, quietShare,
                           {window, tabTrack, mixedColor(tabTrack, page.ink, 0.09)}, textContrast)
                   .value_or(page.ink);
    tab = m_isDark ? mixedColor(window, page.ink, 0.16) : card.base;
    scrim = translucent(Qt::black, 0.36);
    shadow = translucent(Qt::black, 0.22);

    // A highlight in the colour of the list would be seen nowhere.
    const QColor own = mixer.color(QPalette::Highlight);
    const QColor highlight = own == base ? ink : own;
    edge = readableMix(base, ink, 0.30, {base, window, side, card.base}, m_markContrast).value_or(ink);
    isOutlined = contrast == Contrast::More || contrastRatio(window, Qt::black) < leastShadowContrast;
    outline = isOutlined ? edge : card.hairline;
    // Between dark windows and light lists there may be no room for both selections, too.
    const QColor nearly = shade(highlight, {base, side}, m_markContrast, ink);
    accent =
        shade(highlight, {base, side, list.selected.base, sidebar.selected.base}, m_markContrast, nearly);
    accentText = shade(highlight, {base, side, list.selected.base}, textContrast, ink);
    const std::optional<QColor> filled = readableShade(highlight, {highlighted}, textContrast);
    fill = filled.value_or(ink);
    fillInk = filled ? highlighted : base;
    // Away from the words on it, which stay as readable as they were.
    const QColor away = relativeLuminance(fillInk) > relativeLuminance(fill) ? Qt::black : Qt::white;
    fillHover = mixedColor(fill, away, 0.10);
    fillPressed = mixedColor(fill, away, 0.20);
    on = shade(accent, {knob}, m_markContrast, accent);
    // On a dark ground no colour may be that far from the knob and still be seen itself.
    if (lowestContrast(on, {base, card.base}) < leastMarkContrast)
        on = shade(accent, {knob}, leastMarkContrast, accent);

    constexpr int stepsToSelected = 11;
    double share = 0.28;
    match = base;
    for (const double inkContrast : {textContrast, leastInkContrast}) {
        if (const auto found = tinted(base, highlight, share, matchContrast, ink, inkContrast)) {
            std::tie(match, share) = *found;
            break;
        }
    }
    matchSelected = match;
    for (int steps = stepsToSelected; steps > 0; --steps) {
        const QColor stronger = mixedColor(base, highlight, share + (steps * shareStep));
        if (contrastRatio(ink, stronger) >= textContrast) {
            matchSelected = stronger;
            break;
        }
    }

    strip = mixedColor(base, accent, 0.55);
    stripEmpty = mixedColor(base, ink, 0.28);
    stripToCome = list.hairline;

    const QColor warm = QColor::fromHslF(33.0F / 360, 0.95F, 0.52F).toRgb();
    const QColor warningBase = mixedColor(base, warm, m_isDark ? 0.16 : 0.13);
    warning = onList(warningBase, 0.70);
    warningMark = shade(warm, {warningBase, base, side}, m_markContrast, ink);
    // Half as much of the highlight as in a selected row, which it must not be taken for.
    const QColor noticeBase = list.selected.ink == ink ? mixedColor(base, list.selected.base, 0.5)
                                                       : mixedColor(base, highlight, 0.08);
    notice = onList(noticeBase);
    constexpr QRgb red = 0xffb3261e;
    problem = shade(QColor::fromRgb(red), {window, base, card.base}, textContrast, page.ink);
}

Look Look::of(const QWidget &widget)
{
    struct Made {
        qint64 palette;
        QFont font;
        Contrast contrast;
        Look look;
    };
    static std::optional<Made> last;
    const QPalette &palette = widget.palette();
    if (!last || last->palette != palette.cacheKey() || last->font != widget.font() ||
        last->contrast != wantedContrast) {
        last.emplace(Made{.palette = palette.cacheKey(),
                          .font = widget.font(),
                          .contrast = wantedContrast,
                          .look = Look(palette, widget.font(), wantedContrast)});
    }
    return last->look;
}

QColor Look::mark(const QColor &square) const
{
    if (!m_isDark)
        return square;
    return readableShade(square, {list.base, sidebar.base, card.base}, m_markContrast).value_or(square);
}

void setContrast(Look::Contrast contrast)
{
    if (std::exchange(wantedContrast, contrast) == contrast)
        return;
    const QWidgetList all = QApplication::allWidgets();
    const QList<QPointer<QWidget>> widgets(all.begin(), all.end());
    for (const QPointer<QWidget> &widget : widgets) {
        // One may end others when it hears of it.
        if (!widget)
            continue;
        QEvent event(QEvent::PaletteChange);
        QCoreApplication::sendEvent(widget, &event);
        if (widget)
            widget->update();
    }
}

void setPaletteColor(QWidget &widget, QPalette::ColorRole role, const QColor &color)
{
    QPalette palette = widget.palette();
    // Each change is told to the widget, which may be the one that asks.
    if (palette.color(QPalette::Active, role) == color && palette.color(QPalette::Inactive, role) == color)
        return;
    palette.setColor(QPalette::Active, role, color);
    palette.setColor(QPalette::Inactive, role, color);
    widget.setPalette(palette);
}

} // namespace roamlet
