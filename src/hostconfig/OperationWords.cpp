#include "hostconfig/OperationWords.h"

#include <algorithm>
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
constexpr std::string_view kOperationIDs =
    "1800,1801,1802,1803,1804,1805,1806,1807,1808,1809,1810,1811";

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

std::string EnglishKeywords() {
    return ReplaceIgnoreCase(kEnglishWords, "/", "\"");
}

// The keyword text of the lines whose keys are in the list of ids, in the order of the lines.
std::string CollectKeywords(const std::vector<std::string>& lines, std::string_view ids) {
    const std::vector<std::string> elements = Split(ids, ',');
    std::string keywords;
    for (const std::string& line : lines) {
        const std::optional<std::string_view> key = KeyOf(line);
        for (const std::string& element : elements) {
            if (key && EqualsIgnoreCase(element, *key))
                keywords.append(",").append(line);
        }
    }
    return keywords;
}

// The items of a keyword text for the list of ids, in its order.
std::vector<OperationWord> ItemsFor(std::string_view ids, std::string_view keywords) {
    const std::vector<std::string> pieces = Split(WithoutFirstCharacter(keywords), ',');
    std::vector<OperationWord> items;
    for (const std::string& element : Split(ids, ',')) {
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

// Adds the name that the line has, if it is that of an operation.
void AddName(std::string_view line, std::vector<OperationName>& names) {
    const std::vector<std::string> ids = Split(kOperationIDs, ',');
    const std::size_t open = line.find('"');
    const std::size_t close = line.rfind('"');
    const std::optional<std::string_view> key = KeyOf(line);
    const auto id = key ? std::find(ids.begin(), ids.end(), TrimBlanks(*key)) : ids.end();
    if (id == ids.end() || open == close)
        return;
    const auto kind =
        static_cast<int>(OperationKind::ProgramStart) + static_cast<int>(id - ids.begin());
    names.push_back(
        {static_cast<OperationKind>(kind), std::string(line.substr(open + 1, close - open - 1))});
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
    operations_.clear();
    const mAppCommon& common = around_.common;
    const std::string languageIni = LanguageIni();
    if (common.IsNoValue(languageIni))
        return LoadDefaultKeywords();  // the file manager speaks its built-in English
    if (common.FileExists(languageIni))
        return {};
    const std::string languageFile = FileInLanguageFolder(languageIni);
    if (!common.FileExists(languageFile))
        return LoadDefaultKeywords();
    std::vector<std::string> lines;
    if (!Attempt([&] { lines = KeywordLines(languageFile); }))
        return {};  // what was read so far does not count
    const std::string keywords = CollectKeywords(lines, loggingID_);
    if (keywords.empty())
        return LoadDefaultKeywords();
    operations_ = CollectKeywords(lines, kOperationIDs);
    return ItemsOf(keywords);
}

std::string OperationWords::LanguageIni() const {
    const mAppCommon& common = around_.common;
    return common.ExpandPath(around_.profile
                                 .ReadValue(kConfigurationSection, "LanguageIni",
                                            common.NoValueMarker(), common.CommanderIni(),
                                            cProfile::kBufferSize)
                                 .value_or(std::string()));
}

std::string OperationWords::FileInLanguageFolder(std::string_view languageIni) const {
    return around_.common.CommanderFolder() + "Language\\" + std::string(languageIni);
}

std::vector<OperationName> OperationWords::NamesOfTheLog() const {
    std::vector<OperationName> names;
    const std::string languageIni = LanguageIni();
    if (!around_.common.IsNoValue(languageIni)) {
        const std::string file = around_.common.FileExists(languageIni)
                                     ? languageIni
                                     : FileInLanguageFolder(languageIni);
        // A file that cannot be read leaves the English names.
        Attempt([&] {
            for (const std::string& line : KeywordLines(file))
                AddName(line, names);
        });
    }
    for (const std::string& line : Split(EnglishKeywords(), ','))
        AddName(line, names);
    return names;
}

// The trimmed lines of the file that have a key.
std::vector<std::string> OperationWords::KeywordLines(std::string_view languageFile) const {
    std::vector<std::string> found;
    LineReader lines(OpenLanguageFile(around_.files, around_.codePages, languageFile),
                     around_.codePages);
    while (const std::optional<std::string_view> line = lines.Next()) {
        const std::string_view trimmed = TrimBlanks(*line);
        if (KeyOf(trimmed))
            found.emplace_back(trimmed);
    }
    return found;
}

std::vector<OperationWord> OperationWords::LoadDefaultKeywords() const {
    return ItemsOf(EnglishKeywords());
}

std::vector<std::string> OperationWords::Operations() const {
    std::vector<std::string> words;
    for (OperationWord& item :
         ItemsFor(kOperationIDs, operations_.empty() ? EnglishKeywords() : operations_))
        words.push_back(std::move(item.text));
    return words;
}

std::vector<OperationWord> OperationWords::ItemsOf(std::string_view strKeywords) const {
    return ItemsFor(loggingID_, strKeywords);
}

}  // namespace ordalyn
