#include "hostconfig/OperationWords.h"

#include <optional>
#include <utility>

#include "base/Attempt.h"
#include "base/Text.h"
#include "hostconfig/LanguageFileText.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "log/LineReader.h"

namespace ordalyn {

namespace {

constexpr std::string_view kSeparator = "-";
constexpr std::string_view kKeyPrefix = "k";
constexpr int kFirstOutcome = 1900;

// "/" stands for a double quote.
constexpr std::string_view kEnglishWords =
    ",1800=/Program start/"
    ",1801=/Program shutdown/"
    ",1802=/Copy/"
    ",1803=/Move/"
    ",1804=/Shortcut/"
    ",1805=/NewFolder/"
    ",1806=/Delete/"
    ",1807=/DeleteFolder/"
    ",1808=/Pack/"
    ",1809=/Unpack/"
    ",1810=/Test/"
    ",1811=/CreateFile/"
    ",1900=/Error:/"
    ",1901=/Failed/"
    ",1902=/Aborted/"
    ",1903=/Skipped/"
    ",1904=/Not found/"
    ",1905=/Identical/"
    ",1906=/Read error/"
    ",1907=/Write error/"
    ",1908=/Invalid name/"
    ",1909=/Packer not found/"
    ",1910=/Temp file error/"
    ",1911=/Delete failed/"
    ",1912=/CRC error/"
    ",1913=/No files/"
    ",1914=/Too big/"
    ",1915=/Too many files/"
    ",1916=/Bad parameter(s)/"
    ",1917=/Archive bad/"
    ",1918=/Not supported/"
    ",1919=/Encrypted/"
    ",1920=/Module in use/"
    ",1921=/File exists/";

// What stands before the first "="; nothing for a text without one.
std::optional<std::string_view> KeyOf(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos)
        return std::nullopt;
    return line.substr(0, equals);
}

// What stands behind the first double quote (or the whole piece) without the last character.
// Nothing when that is less than nothing: the quote is the last character.
std::optional<std::string_view> WordOf(std::string_view piece) {
    const std::size_t quote = piece.find('"');
    const std::string_view rest = quote == std::string_view::npos ? piece : piece.substr(quote + 1);
    if (rest.empty())
        return std::nullopt;
    return WithoutLastCharacter(rest);
}

// The word of a piece whose key is the element.
std::optional<OperationWord> ItemOf(std::string_view element, std::string_view piece) {
    const std::optional<std::string_view> key = KeyOf(piece);
    if (!key || !EqualsIgnoreCase(element, *key))
        return std::nullopt;
    const std::optional<std::string_view> word = WordOf(piece);
    if (!word)
        return std::nullopt;
    return OperationWord{std::string(kKeyPrefix).append(*key), std::string(*word)};
}

}  // namespace

bool OperationWords::IsOperation(std::string_view key) {
    return LeadingNumber(WithoutFirstCharacter(key)) < kFirstOutcome;
}

std::string OperationWords::ReadLoggingID() {
    std::string list =
        around_.profile
            .ReadValue(kOrdalynSection, kLoggingIDKey, around_.common.NoValueMarker(),
                       around_.common.SettingsFile(), cProfile::kBufferSize)
            .value_or(std::string());
    if (around_.common.IsNoValue(list)) {
        list = kDefaultLoggingID;
        around_.profile.WriteValue(kOrdalynSection, kLoggingIDKey, list,
                                   around_.common.SettingsFile());
    }
    return list;
}

std::vector<OperationWord> OperationWords::LoadOperationKeywords() {
    loggingID_ = ReadLoggingID();
    const mAppCommon& common = around_.common;
    const std::string languageIni = common.ExpandPath(
        around_.profile
            .ReadValue(kConfigurationSection, "LanguageIni", common.NoValueMarker(),
                       common.CommanderIni(), cProfile::kBufferSize)
            .value_or(std::string()));
    if (common.IsNoValue(languageIni))
        return LoadDefaultKeywords();  // the file manager speaks its built-in English
    if (common.FileExists(languageIni))
        return {};
    const std::string languageFile = common.CommanderFolder() + "Language\\" + languageIni;
    if (!common.FileExists(languageFile))
        return LoadDefaultKeywords();
    std::string keywords;
    if (!Attempt([&] { keywords = CollectKeywords(languageFile); }))
        return {};  // what was read so far does not count
    return keywords.empty() ? LoadDefaultKeywords() : ItemsOf(keywords);
}

std::string OperationWords::CollectKeywords(std::string_view languageFile) const {
    const std::vector<std::string> elements = Split(loggingID_, ',');
    std::string keywords;
    LineReader lines(OpenLanguageFile(around_.files, around_.codePages, languageFile),
                     around_.codePages);
    while (const std::optional<std::string_view> line = lines.Next()) {
        const std::string_view trimmed = TrimBlanks(*line);
        const std::optional<std::string_view> key = KeyOf(trimmed);
        if (!key)
            continue;
        for (const std::string& element : elements) {
            if (EqualsIgnoreCase(element, *key))
                keywords.append(",").append(trimmed);
        }
    }
    return keywords;
}

std::vector<OperationWord> OperationWords::LoadDefaultKeywords() const {
    return ItemsOf(ReplaceIgnoreCase(kEnglishWords, "/", "\""));
}

std::vector<OperationWord> OperationWords::ItemsOf(std::string_view strKeywords) const {
    const std::vector<std::string> pieces = Split(WithoutFirstCharacter(strKeywords), ',');
    std::vector<OperationWord> items;
    for (const std::string& element : Split(loggingID_, ',')) {
        if (element == kSeparator) {
            items.push_back({"", std::string(kSeparator)});
            continue;
        }
        for (const std::string& piece : pieces) {
            if (std::optional<OperationWord> item = ItemOf(element, piece))
                items.push_back(*std::move(item));
        }
    }
    return items;
}

}  // namespace ordalyn
