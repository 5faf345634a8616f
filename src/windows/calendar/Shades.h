// Shades: colours between the two that the user has chosen.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "toolkit/Basics.h"

namespace ordalyn {

// The colour that lies so far (0 to 1) on the way from one to the other. No colours of the
// system's.
toolkit::Color Mixed(toolkit::Color from, toolkit::Color to, double share);
// The first of the colours that is seen well on the background; if none is, the one seen best.
toolkit::Color SeenOn(toolkit::Color background, std::initializer_list<toolkit::Color> wanted,
                      double wellEnough);

// How busy a day was, from 0 (no entry) to kBusiest, which the day with the most entries has. Each
// step is as many times more as the others: one very busy day does not make all others look alike.
inline constexpr int kBusiest = 5;
int Busyness(std::int32_t entries, std::int32_t most);
// The square of such a day.
toolkit::Color ShadeOf(int busyness, toolkit::Color text, toolkit::Color background);

}  // namespace ordalyn
