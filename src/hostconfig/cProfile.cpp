#include "hostconfig/cProfile.h"

#include <algorithm>
#include <utility>

#include "base/CheckedMath.h"
#include "base/Errors.h"
#include "base/Text.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

constexpr std::string_view kAlternateKey = "AlternateUserIni";
constexpr std::string_view kRedirectKey = "RedirectSection";
// Values of RedirectSection that are no file names.
constexpr std::string_view kStay = "0";
constexpr std::string_view kToAlternate = "1";

std::string InQuotes(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

// A bare name stands for a file in the folder of the file that redirects.
std::string RedirectTarget(const std::string& redirect, std::string_view file) {
    if (redirect.find('\\') != std::string::npos)
        return redirect;
    return mAppCommon::FolderPart(file) + redirect;
}

}  // namespace

cProfile::cProfile(const platform::Services& services, const mAppCommon& common)
    : text_(services), common_(common) {
    std::string exempt = ReadRawValue(kCommonSection, kExemptSectionsKey, common_.NoValueMarker(),
                                      common_.SettingsFile(), kBufferSize)
                             .value_or("");
    if (common_.IsNoValue(exempt)) {
        exempt = kDefaultExemptSections;
        WriteRawValue(kCommonSection, kExemptSectionsKey, exempt, common_.SettingsFile(), false);
        text_.GiveUpWaiting(common_.SettingsFile());
    }
    exemptSections_ = Split(exempt, ';');
}

std::optional<std::string> cProfile::ReadValue(std::string_view strSectionName,
                                               std::string_view strKeyName,
                                               std::string_view strDefaultValue,
                                               std::string_view strFileName,
                                               std::size_t lngMaxBufferSize,
                                               std::optional<unsigned> languageCodePage) {
    const Look look(*this);
    const std::string file = ResolveRedirectedFile(strSectionName, strKeyName, strFileName);
    return ReadRawValue(strSectionName, strKeyName, strDefaultValue, file, lngMaxBufferSize,
                        languageCodePage);
}

void cProfile::WriteValue(std::string_view strSectionName, std::string_view strKeyName,
                          std::string_view strValue, std::string_view strFileName,
                          bool blnAddQuotation) {
    if (common_.IsNoValue(strValue))
        return;
    const Look look(*this);
    const std::string file = ResolveRedirectedFile(strSectionName, strKeyName, strFileName);
    text_.WriteEntry(strSectionName, strKeyName,
                     blnAddQuotation ? InQuotes(strValue) : std::string(TrimBlanks(strValue)),
                     file);
}

void cProfile::DeleteValue(std::string_view strSectionName, std::string_view strKeyName,
                           std::string_view strFileName) {
    const Look look(*this);
    text_.DeleteEntry(strSectionName, strKeyName,
                      ResolveRedirectedFile(strSectionName, strKeyName, strFileName));
}

void cProfile::DeleteSection(std::string_view strSectionName, std::string_view strFileName) {
    const Look look(*this);
    text_.DeleteSection(strSectionName, ResolveRedirectedFile(strSectionName, "", strFileName));
}

void cProfile::ReadFileSectionsName(std::string_view strFileName, std::size_t lngMaxBufferSize) {
    sectionNames_ = SplitList(text_.ReadSectionNames(strFileName, lngMaxBufferSize));
}

void cProfile::ReadSectionKeysNameAndValue(std::string_view strSectionName,
                                           std::string_view strFileName,
                                           std::size_t lngMaxBufferSize) {
    const Look look(*this);
    const std::string file = ResolveRedirectedFile(strSectionName, "", strFileName);
    keysAndValues_ = SplitList(text_.ReadSection(strSectionName, file, lngMaxBufferSize));
}

void cProfile::ReadSectionKeysNameOnly(std::string_view strSectionName,
                                       std::string_view strFileName, std::size_t lngMaxBufferSize) {
    const Look look(*this);
    const std::string file = ResolveRedirectedFile(strSectionName, "", strFileName);
    keyNames_ = SplitList(text_.ReadKeyNames(strSectionName, file, lngMaxBufferSize));
}

const std::string& cProfile::FileSectionsNameList(std::int32_t lngIndex) const {
    return ElementOf(sectionNames_, lngIndex);
}

const std::string& cProfile::SectionKeysNameAndValueList(std::int32_t lngIndex) const {
    return ElementOf(keysAndValues_, lngIndex);
}

const std::string& cProfile::SectionKeysNameOnlyList(std::int32_t lngIndex) const {
    return ElementOf(keyNames_, lngIndex);
}

void cProfile::SortKeysNameOnlyList() {
    const auto end = keyNames_.elements.begin() + (keyNames_.lastIndex + 1);
    std::stable_sort(
        keyNames_.elements.begin(), end,
        [](const std::string& a, const std::string& b) { return CompareIgnoreCase(a, b) > 0; });
}

cProfile::List cProfile::SplitList(std::string_view text) {
    List list;
    list.elements = Split(text, '\0');
    const auto filled = std::count_if(list.elements.begin(), list.elements.end(),
                                      [](const std::string& element) { return !element.empty(); });
    list.lastIndex = NarrowChecked(std::int64_t{filled} - 1);
    return list;
}

const std::string& cProfile::ElementOf(const List& list, std::int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= list.elements.size())
        throw SubscriptOutOfRange();
    return list.elements[static_cast<std::size_t>(index)];
}

std::string cProfile::ResolveRedirectedFile(std::string_view section, std::string_view key,
                                            std::string_view file) {
    if (EqualsIgnoreCase(key, kAlternateKey) || EqualsIgnoreCase(key, kRedirectKey))
        return std::string(file);
    const std::string alternate = RedirectionEntry(kConfigurationSection, kAlternateKey, file);
    const std::string redirect = RedirectionEntry(section, kRedirectKey, file);
    const bool hasAlternate = !common_.IsNoValue(alternate);
    if (common_.IsNoValue(redirect)) {
        // The alternate file's name is taken as it stands, unlike a RedirectSection: a bare name is
        // one in the current folder.
        return hasAlternate && !IsExempt(section) ? alternate : std::string(file);
    }
    // A section that carries RedirectSection decides for itself, exempt or not.
    if (redirect == kStay)
        return std::string(file);
    if (redirect == kToAlternate)
        return hasAlternate ? alternate : std::string(file);
    return RedirectTarget(redirect, file);
}

std::string cProfile::RedirectionEntry(std::string_view section, std::string_view key,
                                       std::string_view file) {
    return common_.ExpandPath(
        ReadRawValue(section, key, common_.NoValueMarker(), file, kBufferSize).value_or(""));
}

bool cProfile::IsExempt(std::string_view section) const {
    return std::any_of(
        exemptSections_.begin(), exemptSections_.end(),
        [&](const std::string& exempt) { return EqualsIgnoreCase(exempt, section); });
}

std::optional<std::string> cProfile::ReadRawValue(std::string_view section, std::string_view key,
                                                  std::string_view otherwise, std::string_view file,
                                                  std::size_t size,
                                                  std::optional<unsigned> languageCodePage) {
    std::string value = text_.ReadEntry(section, key, otherwise, file, size, languageCodePage);
    if (value.empty())
        return std::nullopt;
    return value;
}

void cProfile::WriteRawValue(std::string_view section, std::string_view key, std::string_view value,
                             std::string_view file, bool addQuotation) {
    const std::string_view trimmed = TrimBlanks(value);
    if (common_.IsNoValue(trimmed))
        return;
    text_.WriteEntry(section, key, addQuotation ? InQuotes(trimmed) : std::string(trimmed), file);
}

}  // namespace ordalyn
