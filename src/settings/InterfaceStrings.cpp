#include "settings/InterfaceStrings.h"

#include "base/Text.h"
#include "hostconfig/mAppCommon.h"
#include "platform/Platform.h"
#include "settings/mAppSpecific.h"

namespace ordalyn {

namespace {

constexpr std::string_view kSection = "UserLanguage";
constexpr std::string_view kRightToLeftKey = "RightToLeftLanguage";
constexpr std::string_view kUseBuiltIn = "/e";

}  // namespace

InterfaceStrings::InterfaceStrings(const mAppSpecific& settings, const mAppCommon& common,
                                   cProfile& profile, platform::CodePages& codePages,
                                   const cDefaultStrings& defaults)
    : settings_(settings),
      common_(common),
      profile_(profile),
      codePages_(codePages),
      defaults_(defaults) {}

std::string InterfaceStrings::GetInterfaceString(std::int32_t lngID) const {
    if (settings_.UseDefaultLanguage != 0)
        return defaults_.GetDefaultString(lngID);
    std::string text = ReadLanguageFile(std::to_string(lngID), "");
    if (text.empty() || EqualsIgnoreCase(TrimBlanks(text), kUseBuiltIn))
        return defaults_.GetDefaultString(lngID);
    return text;
}

bool InterfaceStrings::LanguageFileMissing() const {
    return settings_.UseDefaultLanguage == 0 && !common_.FileExists(settings_.LanguageFile);
}

bool InterfaceStrings::RightToLeftLanguage() const {
    if (settings_.UseDefaultLanguage != 0 || LanguageFileMissing())
        return false;
    const std::string value = ReadLanguageFile(kRightToLeftKey, "0");
    return !value.empty() && ToLong(value) != 0;
}

// A translator wrote the file either in UTF-8, with a mark or without, or in the code page of the
// language. That is the one of the character set that the user has chosen for it, not the one of
// this system: on a western Windows a Cyrillic file has to be read with a Cyrillic character set.
std::string InterfaceStrings::ReadLanguageFile(std::string_view key,
                                               std::string_view fallback) const {
    return profile_
        .ReadValue(kSection, key, fallback, settings_.LanguageFile, cProfile::kBufferSize,
                   codePages_.OfCharacterSet(settings_.FontScript))
        .value_or(std::string());
}

}  // namespace ordalyn
