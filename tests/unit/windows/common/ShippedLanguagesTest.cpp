// The language files that ship, read the way the program reads them.
#include <fstream>
#include <iterator>
#include <string>

#include "support/windows/FormFixture.h"

namespace ordalyn::test {
namespace {

class ShippedLanguagesTest : public FormFixture {
  protected:
    void Use(const std::string& shipped) {
        std::ifstream file(ORDALYN_SOURCE_DIR "/languages/" + shipped + ".lng", std::ios::binary);
        ASSERT_TRUE(file.is_open()) << shipped;
        UseLanguageFile(std::string(std::istreambuf_iterator<char>(file), {}));
    }
};

TEST_F(ShippedLanguagesTest, ATrailingBlankSurvives) {
    Use("German");
    EXPECT_EQ(strings.GetInterfaceString(4032), "Filter: ");
    Use("Japanese");
    EXPECT_EQ(strings.GetInterfaceString(4032), "フィルター: ");
}

TEST_F(ShippedLanguagesTest, TheTextsAreRightWhateverTheSystemsCodePageAndTheCharacterSet) {
    for (const unsigned codePage : {1251U, 1252U}) {
        for (const std::int32_t script : {1, 0, 204}) {
            system.codePages.systemCodePage = codePage;
            Use("Russian");
            settings.FontScript = script;
            EXPECT_EQ(strings.GetInterfaceString(101), "&Файл") << codePage << ' ' << script;
            EXPECT_EQ(strings.GetInterfaceString(4050),
                      "Не удаётся найти файл журнала Total Commander.");
        }
    }
}

TEST_F(ShippedLanguagesTest, QuotesInsideATextStay) {
    Use("Hebrew");
    EXPECT_EQ(strings.GetInterfaceString(1507), "דוא\"ל:");
}

TEST_F(ShippedLanguagesTest, OnlyHebrewIsWrittenFromTheRight) {
    Use("Hebrew");
    EXPECT_TRUE(strings.RightToLeftLanguage());
    for (const char* shipped : {"German", "Greek", "Portuguese (Brazil)"}) {
        Use(shipped);
        EXPECT_FALSE(strings.RightToLeftLanguage()) << shipped;
    }
}

}  // namespace
}  // namespace ordalyn::test
