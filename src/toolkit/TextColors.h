// Which colours a text is shown in.
#pragma once

#include "toolkit/Basics.h"

namespace ordalyn::toolkit {

struct TextColors {
    Color text;
    Color background;
    bool operator==(const TextColors&) const = default;
};

// Who has chosen high contrast must be able to read every text. A text and a background that were
// both chosen stay; otherwise both are the system's, and belong together: a chosen colour may be
// hard to see on one of the system's, and so may two of the system's that are for different things.
constexpr TextColors ReadableColors(const TextColors& wanted, bool highContrast) {
    const bool ownText = wanted.text >= 0;
    const bool ownBackground = wanted.background >= 0;
    if (!highContrast || (ownText && ownBackground))
        return wanted;
    if (wanted.background == kButtonFace)
        return {kButtonText, kButtonFace};
    return {kWindowText, kWindowBackground};
}

// How much two colours 0x00BBGGRR differ in brightness, from 1 to 21, as the guidelines for
// accessible content measure it.
double Contrast(Color a, Color b);

// A dark red, made as much lighter as it takes to be read on that background, a colour 0x00BBGGRR.
Color RedOn(Color background);

// The background of what is selected where the focus is elsewhere: between the two colours
// (0x00BBGGRR), as far from the background as the text can still be read.
Color ShadeOfSelection(const TextColors& colors);

}  // namespace ordalyn::toolkit
