// OperationKeywords: the words for operations and their outcomes as the file manager writes them
// into its log, offered in the drop-down menu of a tool bar button. They come from the language
// file that the file manager uses, so that they are those of the log.
//
// Keyword texts are in the form of that file's lines, each with a comma before it:
// ,1802="Copy",1803="Move". Ids from 1800 are operations, those from 1900 outcomes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Platform.h"
#include "toolkit/ToolBar.h"

namespace ordalyn {

class cProfile;
class mAppCommon;

class OperationKeywords {
  public:
    struct Surroundings {
        const mAppCommon& common;
        cProfile& profile;
        platform::Files& files;
        platform::CodePages& codePages;
    };

    // Which words are offered in which order, unless the settings file says otherwise: ids of the
    // language file, "-" for a separator.
    static constexpr std::string_view kDefaultLoggingID =
        "1800,1801,-,1802,1803,1806,1807,-,1805,1811,1804,-,1808,1809,1810";

    // The words go to the end of the menu of this button.
    OperationKeywords(const Surroundings& around, toolkit::ToolBar& toolBar, int button)
        : around_(around), toolBar_(toolBar), button_(button) {}

    // Reads LoggingID, the list of words to offer, from the settings file (and writes the default
    // there when it is absent), then appends the words: those of the file manager's language file,
    // or the English ones when it uses none, when the file is missing or when it has none of the
    // words. A LanguageIni that names an existing file as it stands gives no words at all,
    // deliberately. So does a language file that cannot be read; nothing is reported.
    void LoadOperationKeywords();
    // Appends the English words.
    void LoadDefaultKeywords();
    // Appends the words of a keyword text in the order of LoggingID, each with the key "k" and its
    // id. An item that the menu refuses (a key that it holds already) is left out. Words are cut
    // out by position: one without quotes comes with its id and without its last character, one
    // with a comma ends a character before it.
    void FillOperationMenu(std::string_view strKeywords);

    // Whether an id, given as a menu item's key, is that of an operation, not of an outcome.
    static bool IsOperation(std::string_view key);

  private:
    std::string ReadLoggingID();
    std::string CollectKeywords(std::string_view languageFile) const;
    void AddWord(std::string_view element, std::string_view piece);

    Surroundings around_;
    toolkit::ToolBar& toolBar_;
    int button_;
    std::string loggingID_{kDefaultLoggingID};
};

}  // namespace ordalyn
