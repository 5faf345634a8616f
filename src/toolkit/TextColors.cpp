#include "toolkit/TextColors.h"

#include <algorithm>
#include <cmath>

namespace ordalyn::toolkit {

namespace {

constexpr double kReadable = 4.5;
constexpr int kRed = 160;
constexpr int kFull = 255;

// 0: red, 1: green, 2: blue.
int Part(Color color, int which) {
    return (color >> (8 * which)) & 0xFF;
}

double Brightness(Color color) {
    const auto linear = [&](int which) {
        const double part = Part(color, which) / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(0) + 0.7152 * linear(1) + 0.0722 * linear(2);
}

int Between(int from, int to, int step, int steps) {
    return from + (to - from) * step / steps;
}

// Between the red and white, or black on backgrounds that are neither light nor dark.
Color Shade(int step, int steps, bool lighter) {
    const auto between = [&](int from) { return Between(from, lighter ? kFull : 0, step, steps); };
    return between(kRed) | between(0) << 8 | between(0) << 16;
}

}  // namespace

double Contrast(Color a, Color b) {
    const double x = Brightness(a), y = Brightness(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

// White or black has this contrast to every background, so that one of them ends the search.
Color RedOn(Color background) {
    constexpr int kSteps = 64;
    for (int step = 0; step <= kSteps; ++step)
        for (const bool lighter : {true, false})
            if (const Color shade = Shade(step, kSteps, lighter);
                Contrast(shade, background) >= kReadable)
                return shade;
    return Shade(0, kSteps, true);
}

Color ShadeOfSelection(const TextColors& colors) {
    constexpr int kSteps = 64;
    for (int step = kSteps / 4; step > 0; --step) {
        Color shade = 0;
        for (int which = 0; which < 3; ++which)
            shade |= Between(Part(colors.background, which), Part(colors.text, which), step, kSteps)
                     << (8 * which);
        if (Contrast(colors.text, shade) >= kReadable)
            return shade;
    }
    return colors.background;
}

}  // namespace ordalyn::toolkit
