// OperationWords: the words for operations and their outcomes as the file manager writes them into
// its log, for a menu that offers them. They come from the language file that the file manager
// uses, so that they are those of the log.
//
// Keyword texts are in the form of that file's lines, each with a comma before it:
// ,1802="Copy",1803="Move". Ids from 1800 are operations, those from 1900 outcomes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "log/Operation.h"
#include "platform/Platform.h"

namespace ordalyn {

class cProfile;
class mAppCommon;

// An item of the menu.
struct OperationWord {
    std::string key;   // "k" and the id; empty for a separator
    std::string text;  // "-" for a separator

    bool operator==(const OperationWord&) const = default;
};

class OperationWords {
  public:
    struct Surroundings {
        const mAppCommon& common;
        cProfile& profile;
        platform::Files& files;
        platform::CodePages& codePages;
    };

    // The entry of the program's settings file that says which words are offered in which order:
    // ids of the language file, "-" for a separator.
    static constexpr std::string_view kLoggingIDKey = "LoggingID";
    static constexpr std::string_view kDefaultLoggingID =
        "1800,1801,-,1802,1803,1806,1807,-,1805,1811,1804,-,1808,1809,1810";

    explicit OperationWords(const Surroundings& around) : around_(around) {}

    // Reads LoggingID from the settings file (and writes the default there when it is absent), then
    // returns the items for it: the words of the file manager's language file, or the English ones
    // when it uses none, when the file is missing or when it has none of the words. A LanguageIni
    // that names an existing file as it stands gives no items at all, deliberately. So does a
    // language file that cannot be read; nothing is reported.
    std::vector<OperationWord> LoadOperationKeywords();
    // The items for the English words.
    std::vector<OperationWord> LoadDefaultKeywords() const;
    // The words of all operations, in the language of those that were loaded last (English before
    // that), whether LoggingID has them or not. A language file need not have all of them.
    std::vector<std::string> Operations() const;
    // The names of the operations for reading the log: in the language that the file manager uses,
    // then in English, which older lines can be in. Unlike the items they are read from a
    // LanguageIni that names an existing file, too, and whole, and nothing is written.
    std::vector<OperationName> NamesOfTheLog() const;
    // The items for a keyword text, in the order of LoggingID. A word that the text or LoggingID
    // holds more than once comes more than once, under the same key. Words are cut out by position:
    // one without quotes comes with its id and without its last character, one with a comma ends a
    // character before it.
    std::vector<OperationWord> ItemsOf(std::string_view strKeywords) const;

    // Whether an id, given as an item's key, is that of an operation, not of an outcome.
    static bool IsOperation(std::string_view key);

  private:
    std::string ReadLoggingID();
    std::string LanguageIni() const;
    std::string FileInLanguageFolder(std::string_view languageIni) const;
    std::vector<std::string> KeywordLines(std::string_view languageFile) const;

    Surroundings around_;
    std::string loggingID_{kDefaultLoggingID};
    std::string operations_;  // the keyword text of all operations; empty: the English ones
};

}  // namespace ordalyn
