// Every title, message and count that the program puts together, in every language, read as a
// whole. The test also writes them on one page for a reader: texts.html in the build's folder.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>

#include "settings/cDefaultStrings.h"
#include "unit/app/texts/Situations.h"
#include "unit/app/texts/TextsPage.h"

namespace ordalyn::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

using Kind = Situation::Kind;

// Shown in English: it says that there is no file with the text.
constexpr std::int32_t kMissingLanguageFile = 3048;

// Where a language says the same as English. What only it would say is no translation.
const std::set<std::pair<std::string, std::string>> kAsInEnglish = {
    {"A filter", "Dutch"},
    {"A filter", "German"},
};

std::vector<std::string> Languages() {
    std::vector<std::string> languages;
    for (const auto& file : std::filesystem::directory_iterator(ORDALYN_SOURCE_DIR "/languages"))
        languages.push_back(file.path().stem().string());
    std::sort(languages.begin(), languages.end());
    languages.insert(languages.begin(), kBuiltInLanguage);
    return languages;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines(1);
    for (const char c : text) {
        if (c == '\n')
            lines.emplace_back();
        else if (c != '\r')
            lines.back() += c;
    }
    return lines;
}

bool EndsWithOneOf(const std::string& text, const std::vector<std::string>& ends) {
    return std::any_of(ends.begin(), ends.end(),
                       [&](const std::string& end) { return text.ends_with(end); });
}

// A line of a message is a sentence or ends with what the program put in; one that the next line
// goes on with leads to it.
void ExpectWholeLines(const Situation& situation, const std::string& language,
                      const std::string& text) {
    std::vector<std::string> ends = {".", "!", "?", ";", "。", "！", "？"};
    ends.insert(ends.end(), situation.inserts.begin(), situation.inserts.end());
    const std::vector<std::string> lines = LinesOf(text);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty())
            continue;
        const bool last = i + 1 == lines.size() || lines[i + 1].empty();
        if (last) {
            EXPECT_TRUE(EndsWithOneOf(lines[i], ends)) << lines[i];
        } else if (!EndsWithOneOf(lines[i], situation.inserts) && language != kBuiltInLanguage) {
            EXPECT_TRUE(EndsWithOneOf(lines[i], {":", "："})) << lines[i];
        }
    }
}

// A sign with two parts stands behind a blank that keeps it on the line; a short word loses its
// vowel before another one.
void ExpectFrenchSpelling(const std::string& text) {
    static const std::regex sign("[:?!]( |\r|\n|$)");
    for (std::sregex_iterator found(text.begin(), text.end(), sign), end; found != end; ++found)
        EXPECT_TRUE(text.substr(0, static_cast<std::size_t>(found->position())).ends_with("\u00A0"))
            << text;
    static const std::regex unelided("(^|[ \n])([dlnjmst]e|la|que) [aeiouAEIOU]");
    EXPECT_FALSE(std::regex_search(text, unelided)) << text;
}

void ExpectReadable(const Situation& situation, const std::string& language,
                    const std::string& shown) {
    const std::string text = Trimmed(shown);
    EXPECT_NE(text, "");
    for (const std::string& insert : situation.inserts)
        EXPECT_THAT(text, HasSubstr(insert));
    EXPECT_EQ(text.find_first_of("%&"), std::string::npos) << text;
    EXPECT_EQ(text.find("  "), std::string::npos) << text;
    EXPECT_FALSE(std::regex_search(text, std::regex(" [.,;:!?]"))) << text;
    if (language == "French")
        ExpectFrenchSpelling(text);
    if (situation.kind == Kind::Message)
        ExpectWholeLines(situation, language, text);
    // "operation(s)" is two texts in one.
    if (situation.kind == Kind::Count && language != kBuiltInLanguage) {
        EXPECT_EQ(text.find_first_of("()/"), std::string::npos) << text;
    }
}

// The pieces of a text that stand around its values, as they read.
std::vector<std::string> PiecesOf(const std::string& text) {
    const std::string plain = WithoutAccessKeys(text);
    std::vector<std::string> pieces;
    std::size_t from = 0;
    for (std::size_t at = 0; (at = plain.find('%', at)) != std::string::npos; from = at += 2)
        pieces.push_back(Trimmed(plain.substr(from, at - from)));
    pieces.push_back(Trimmed(plain.substr(from)));
    return pieces;
}

// The texts that no situation shows, so that a new one cannot be forgotten.
std::vector<std::string> NotShown(Speaker& speaker, const std::string& allShown) {
    std::vector<std::string> missing;
    for (const std::string_view entry : cDefaultStrings::BuiltInTable()) {
        const std::int32_t id = std::stoi(std::string(entry));
        const std::string text = speaker.Text(id);
        for (const std::string& piece : PiecesOf(text)) {
            if (id != kMissingLanguageFile && allShown.find(piece) == std::string::npos)
                missing.push_back(std::to_string(id) + "=" + text);
        }
    }
    return missing;
}

// The texts of which the help says what they mean in a message; none in a language without help.
std::set<std::int32_t> ExplainedMessages(const std::string& language) {
    std::ifstream file(ORDALYN_SOURCE_DIR "/help/" + language + "/messages.html");
    const std::string page{std::istreambuf_iterator<char>(file), {}};
    std::set<std::int32_t> ids;
    static const std::regex marked(R"re(data-id="(\d+)")re");
    for (std::sregex_iterator found(page.begin(), page.end(), marked), end; found != end; ++found)
        ids.insert(std::stoi(found->str(1)));
    return ids;
}

// The text of the program that the line of a message begins with; 0 when it is only what the
// program put in.
std::int32_t TextOfLine(Speaker& speaker, const std::string& line) {
    std::int32_t longest = 0;
    std::size_t length = 0;
    for (const std::string_view entry : cDefaultStrings::BuiltInTable()) {
        const std::int32_t id = std::stoi(std::string(entry));
        const std::string text = speaker.Text(id);
        const std::string first = Trimmed(text.substr(0, text.find('%')));
        if (first.size() <= length || !line.starts_with(first))
            continue;
        const std::vector<std::string> pieces = PiecesOf(text);
        if (std::all_of(pieces.begin(), pieces.end(), [&](const std::string& piece) {
                return line.find(piece) != std::string::npos;
            })) {
            longest = id;
            length = first.size();
        }
    }
    return longest;
}

void ExpectExplained(Speaker& speaker, const std::set<std::int32_t>& explained,
                     const std::string& shown) {
    for (const std::string& line : LinesOf(shown)) {
        const std::int32_t id = TextOfLine(speaker, line);
        EXPECT_TRUE(id == 0 || explained.contains(id))
            << "messages.html says nothing of " << id << ": " << line;
    }
}

TEST(Texts, ReadAsAWholeInEveryLanguage) {
    std::vector<TextsSection> sections;
    for (const Situation& situation : Situations())
        sections.push_back({situation.name, {}});
    const std::vector<std::string> languages = Languages();
    ASSERT_GT(languages.size(), 2U);
    for (const std::string& language : languages) {
        Speaker speaker(language);
        speaker.Start();
        std::string allShown;
        const std::set<std::int32_t> explained = ExplainedMessages(language);
        EXPECT_EQ(explained.contains(kMissingLanguageFile),
                  language == kBuiltInLanguage || language == "German");
        for (std::size_t i = 0; i < sections.size(); ++i) {
            const Situation& situation = Situations()[i];
            SCOPED_TRACE(std::string(situation.name) + ", " + language);
            speaker.tools.messages.clear();
            const std::string shown = situation.shown(speaker);
            ExpectReadable(situation, language, shown);
            if (situation.kind == Kind::Message && !explained.empty())
                ExpectExplained(speaker, explained, shown);
            sections[i].texts.emplace_back(language, shown);
            allShown += shown + "\n";
            EXPECT_EQ(language != kBuiltInLanguage && shown == sections[i].texts[0].second,
                      kAsInEnglish.contains({situation.name, language}))
                << shown;
        }
        EXPECT_THAT(NotShown(speaker, allShown), IsEmpty()) << language;
    }
    std::ofstream(ORDALYN_TEXTS_PAGE, std::ios::binary) << TextsPage(sections, "Hebrew");
}

}  // namespace
}  // namespace ordalyn::test
