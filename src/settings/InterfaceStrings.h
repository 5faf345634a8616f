// InterfaceStrings: the text to show for a string id, from the user's language file or from the
// built-in table. Everything that the program shows by id is asked for here.
//
// A language file is an INI file whose section "UserLanguage" maps ids to texts. One that is
// changed while the program runs counts from the next lookup on, or the next look (cProfile.h).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "hostconfig/cProfile.h"
#include "settings/cDefaultStrings.h"

namespace ordalyn {

class mAppCommon;
class mAppSpecific;

namespace platform {
class CodePages;
}

class InterfaceStrings {
  public:
    InterfaceStrings(const mAppSpecific& settings, const mAppCommon& common, cProfile& profile,
                     platform::CodePages& codePages, const cDefaultStrings& defaults);

    // The built-in text when the language file is switched off, is missing, or has no text, an
    // empty one or "/e" for the id; empty when that table lacks it too. A text of the language file
    // is given as it was read, blanks at its ends included.
    std::string GetInterfaceString(std::int32_t lngID) const;

    // While it lives, a look: for many texts that belong together.
    cProfile::Look Look() const { return cProfile::Look(profile_); }

    // Whether a language file is switched on but does not exist.
    bool LanguageFileMissing() const;
    // Whether the language in use is written right to left. Throws TypeMismatch (or Overflow) when
    // the language file says it with something that is no number.
    bool RightToLeftLanguage() const;

  private:
    std::string ReadLanguageFile(std::string_view key, std::string_view fallback) const;

    const mAppSpecific& settings_;
    const mAppCommon& common_;
    cProfile& profile_;
    platform::CodePages& codePages_;
    const cDefaultStrings& defaults_;
};

}  // namespace ordalyn
