#include "windows/calendar/Shades.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "toolkit/TextColors.h"

namespace ordalyn {

using toolkit::Color;
using toolkit::Contrast;

namespace {

// Red, green, blue.
std::array<int, 3> Parts(Color color) {
    return {color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF};
}

}  // namespace

Color Mixed(Color from, Color to, double share) {
    const std::array<int, 3> a = Parts(from);
    const std::array<int, 3> b = Parts(to);
    Color mixed = 0;
    for (std::size_t i = 3; i-- > 0;)
        mixed = mixed << 8 | static_cast<Color>(std::lround(a[i] + (b[i] - a[i]) * share));
    return mixed;
}

Color SeenOn(Color background, std::initializer_list<Color> wanted, double wellEnough) {
    Color best = *wanted.begin();
    for (const Color color : wanted) {
        if (Contrast(color, background) >= wellEnough)
            return color;
        if (Contrast(color, background) > Contrast(best, background))
            best = color;
    }
    return best;
}

int Busyness(std::int32_t entries, std::int32_t most) {
    if (entries <= 0)
        return 0;
    if (entries >= most)
        return kBusiest;
    const double share = std::log(entries) / std::log(most);
    return std::min(1 + static_cast<int>(share * (kBusiest - 1)), kBusiest);
}

Color ShadeOf(int busyness, Color text, Color background) {
    constexpr std::array<double, kBusiest + 1> kShares = {0.06, 0.20, 0.36, 0.53, 0.70, 0.88};
    return Mixed(background, text, kShares.at(static_cast<std::size_t>(busyness)));
}

}  // namespace ordalyn
