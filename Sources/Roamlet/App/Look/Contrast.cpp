// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Contrast.h"

#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace roamlet
{

namespace
{

/// As light as this a ground leaves the same contrast to black and to white.
constexpr double middleLuminance = 0.179;

/// The light of each of the 256 values that a channel may have: a colour is searched for in many small steps.
const std::array<double, 256> &lightOfChannel()
{
    static const std::array<double, 256> table = [] {
        std::array<double, 256> light{};
        for (size_t value = 0; value < light.size(); ++value) {
            const double channel = double(value) / 255;
            light[value] = channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
        }
        return light;
    }();
    return table;
}

} // namespace

QColor mixedColor(const QColor &ground, const QColor &tint, double share)
{
    const auto channel = [share](int from, int to) { return qRound(from + ((to - from) * share)); };
    return {channel(ground.red(), tint.red()), channel(ground.green(), tint.green()),
            channel(ground.blue(), tint.blue())};
}

double relativeLuminance(const QColor &color)
{
    const auto light = [](int channel) { return lightOfChannel()[static_cast<size_t>(channel)]; };
    const QRgb rgb = color.rgb();
    return (0.2126 * light(qRed(rgb))) + (0.7152 * light(qGreen(rgb))) + (0.0722 * light(qBlue(rgb)));
}

double contrastRatio(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

double lowestContrast(const QColor &color, Surfaces surfaces)
{
    double lowest = 21;
    for (const QColor &surface : surfaces)
        lowest = std::min(lowest, contrastRatio(color, surface));
    return lowest;
}

std::optional<QColor> readableMix(const QColor &ground, const QColor &ink, double share, Surfaces surfaces,
                                  double contrast)
{
    constexpr double step = 0.02;
    const int steps = qCeil((1 - share) / step);
    for (int i = 0; i <= steps; ++i) {
        const QColor color = mixedColor(ground, ink, std::min(1.0, share + (i * step)));
        if (lowestContrast(color, surfaces) >= contrast)
            return color;
    }
    return std::nullopt;
}

std::optional<QColor> readableShade(const QColor &color, Surfaces surfaces, double contrast)
{
    if (lowestContrast(color, surfaces) >= contrast)
        return color;
    constexpr float step = 0.005F;
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    color.getHslF(&hue, &saturation, &lightness);
    const bool isOnLight = surfaces.size() > 0 && relativeLuminance(*surfaces.begin()) > middleLuminance;
    // Away from the first ground. Where a light and a dark one meet, the way may be the other one.
    for (const float direction : {isOnLight ? -step : step, isOnLight ? step : -step}) {
        for (float next = lightness + direction; next > -step && next < 1 + step; next += direction) {
            // With no more digits than a screen has.
            const QColor shade =
                QColor::fromRgb(QColor::fromHslF(hue, saturation, std::clamp(next, 0.0F, 1.0F)).rgb());
            if (lowestContrast(shade, surfaces) >= contrast)
                return shade;
        }
    }
    return std::nullopt;
}

} // namespace roamlet
