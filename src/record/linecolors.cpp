// SPDX-License-Identifier: MIT
#include "src/record/linecolors.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

/// The square of the distance of two colours.
int distance(const LineColor& a, const LineColor& b) {
    const int red = a.red - b.red, green = a.green - b.green, blue = a.blue - b.blue;
    return red * red + green * green + blue * blue;
}

} // namespace

std::string lineColorText(const LineColor& color) {
    const auto* nearest = std::ranges::min_element(
        kLineColors, {}, [&](const NamedColor& each) { return distance(each.color, color); });
    const std::string name = localized("Colour", nearest->name);
    if (distance(nearest->color, color) == 0)
        return name;
    return filled(localized("Colour", "%1 (%2)", "a colour like that name, and its code"),
                  {name, lineColorCode(color)});
}

std::string lineColorCode(const LineColor& color) {
    char code[24];
    std::snprintf(code, sizeof code, "#%02x%02x%02x", color.red, color.green, color.blue);
    return code;
}
