// TextSearcher: whether texts contain a given one, letter case ignored for every script. Made once
// for a text that is looked for and then asked about many.
//
// A text contains another when the folded characters of the one stand in a row among those of the
// other (base/Text.h says what folds to what). That can change the number of bytes: the Kelvin sign
// is a "k".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "search/BytePair.h"

namespace ordalyn {

class TextSearcher {
  public:
    explicit TextSearcher(std::string_view needle);

    // The empty text is in every text.
    bool FoundIn(std::string_view text) const {
        switch (way_) {
            case Way::Always:
                return true;
            case Way::Ascii:
                return FindAsAscii(text, 0).has_value();
            case Way::AsciiWithStrangers:
                return FindAsAscii(text, 0).has_value() ||
                       (MayHoldStranger(text) && FoundByWalking(text));
            case Way::Characters:
                return FindByCharacters(text, 0).has_value();
            case Way::Walking:
                break;
        }
        return FoundByWalking(text);
    }

    // Where a text holds the needle.
    struct Place {
        std::size_t start;
        std::size_t end;
    };
    // Whether FindIn sees every place of a text, which can be many texts side by side.
    bool FindsAllIn(std::string_view text) const {
        return way_ == Way::Ascii || way_ == Way::Characters ||
               (way_ == Way::AsciiWithStrangers && !MayHoldStranger(text));
    }
    // The first place from a byte on. What lies before that byte is looked at, too: it can be in
    // the middle of a character. Nothing for the empty needle.
    std::optional<Place> FindIn(std::string_view text, std::size_t from) const;

  private:
    // From fast to slow. A way is chosen by the needle alone.
    enum class Way {
        Always,
        Ascii,               // only ASCII characters fold to those of the needle
        Characters,          // known bytes of the needle are looked for, its characters compared
        AsciiWithStrangers,  // an ASCII needle of few letters, to one of which others fold, too
        Walking              // every place of the text is compared
    };

    // The bytes of a character, to be compared at once: those of the text under the mask.
    struct Encoded {
        std::uint32_t bytes = 0;
        std::uint32_t mask = 0;
        std::size_t length = 0;
    };
    static constexpr std::size_t kForms = 3;  // both cases; the sigma has two small letters
    static Encoded Encode(char32_t character);

    void PrepareAscii();
    bool PrepareCharacters(bool pairOnly);
    std::optional<Place> FindAsAscii(std::string_view text, std::size_t from) const;
    std::optional<Place> FindByCharacters(std::string_view text, std::size_t from) const;
    bool FoundByWalking(std::string_view text) const;
    static bool MayHoldStranger(std::string_view text);
    bool FitsAsAscii(const char* start) const;
    std::size_t LengthAt(std::string_view text, std::size_t at, std::size_t character) const;
    std::optional<std::size_t> EndFrom(std::string_view text, std::size_t at,
                                       std::size_t character) const;
    std::optional<std::size_t> StartBefore(std::string_view text, std::size_t end,
                                           std::size_t characters) const;

    std::vector<char32_t> needle_;  // folded; an invalid byte is a character beyond Unicode
    std::string ascii_;             // the same, for an ASCII needle
    // For the way of characters: each of them in the forms that texts nearly always have.
    std::vector<std::array<Encoded, kForms>> forms_;
    Way way_ = Way::Always;
    BytePair anchor_;
    // Where the anchor's first byte stands: in the whole needle (ASCII), or in this character.
    std::size_t anchorOffset_ = 0;
    std::size_t anchorCharacter_ = 0;
};

}  // namespace ordalyn
