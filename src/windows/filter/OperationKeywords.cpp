#include "windows/filter/OperationKeywords.h"

#include <optional>
#include <vector>

#include "base/Attempt.h"
#include "base/Text.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "log/LineReader.h"
#include "settings/SettingsTable.h"

namespace ordalyn {

namespace {

constexpr std::string_view kLoggingIDKey = "LoggingID";
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
// Throws when that is less than nothing: the quote is the last character.
std::string_view WordOf(std::string_view piece) {
    const std::size_t quote = piece.find('"');
    const std::string_view rest = quote == std::string_view::npos ? piece : piece.substr(quote + 1);
    if (rest.empty())
        throw MalformedText("A word without its closing quote");
    return WithoutLastCharacter(rest);
}

}  // namespace

bool OperationKeywords::IsOperation(std::string_view key) {
    return LeadingNumber(WithoutFirstCharacter(key)) < kFirstOutcome;
}

std::string OperationKeywords::ReadLoggingID() {
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

void OperationKeywords::LoadOperationKeywords() {
    loggingID_ = ReadLoggingID();
    const mAppCommon& common = around_.common;
    const std::string languageIni = common.ExpandPath(
        around_.profile
            .ReadValue(kConfigurationSection, "LanguageIni", common.NoValueMarker(),
                       common.CommanderIni(), cProfile::kBufferSize)
            .value_or(std::string()));
    if (common.IsNoValue(languageIni)) {
        LoadDefaultKeywords();  // the file manager speaks its built-in English
        return;
    }
    if (common.FileExists(languageIni))
        return;
    const std::string languageFile = common.CommanderFolder() + "Language\\" + languageIni;
    if (!common.FileExists(languageFile)) {
        LoadDefaultKeywords();
        return;
    }
    std::string keywords;
    if (!Attempt([&] { keywords = CollectKeywords(languageFile); }))
        return;  // what was read so far does not count
    if (keywords.empty())
        LoadDefaultKeywords();
    else
        FillOperationMenu(keywords);
}

std::string OperationKeywords::CollectKeywords(std::string_view languageFile) const {
    const std::vector<std::string> elements = Split(loggingID_, ',');
    std::string keywords;
    LineReader lines(around_.files.OpenForReading(languageFile), around_.codePages);
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

void OperationKeywords::LoadDefaultKeywords() {
    FillOperationMenu(ReplaceIgnoreCase(kEnglishWords, "/", "\""));
}

void OperationKeywords::FillOperationMenu(std::string_view strKeywords) {
    const std::vector<std::string> pieces = Split(WithoutFirstCharacter(strKeywords), ',');
    for (const std::string& element : Split(loggingID_, ',')) {
        if (element == kSeparator) {
            Attempt([&] { toolBar_.AddMenuEntry(button_, "", kSeparator); });
            continue;
        }
        for (const std::string& piece : pieces)
            Attempt([&] { AddWord(element, piece); });
    }
}

void OperationKeywords::AddWord(std::string_view element, std::string_view piece) {
    const std::optional<std::string_view> key = KeyOf(piece);
    if (!key || !EqualsIgnoreCase(element, *key))
        return;
    toolBar_.AddMenuEntry(button_, std::string(kKeyPrefix).append(*key), WordOf(piece));
}

}  // namespace ordalyn
