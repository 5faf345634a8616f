// Help opens the help file, at its start or at a page of it.
#pragma once

#include <string>
#include <string_view>

#include "base/TextSource.h"
#include "platform/Platform.h"
#include "toolkit/Form.h"

namespace ordalyn {

struct HelpSurroundings {
    toolkit::Toolkit& toolkit;
    platform::Files& files;
    platform::Shell& shell;
    std::string programFolder;  // with a trailing backslash
    bool useDefaultLanguage;
    std::string languageFile;
    TextSource text;
};

// The path of the help file for the interface language: "Readme <language file's name>.chm" in the
// program folder when there is one, else the one that is named as the language calls itself
// ("Readme Deutsch.chm" for German), else "Readme.chm" there.
std::string HelpFile(const HelpSurroundings& around);
// Opens it, owned by the form. A missing file is reported; a shell that fails is not.
void ShowHelp(const HelpSurroundings& around, toolkit::Form& ownerForm);
// The same at one of its pages. In a message box nobody is told that the file is missing: it would
// take another message box.
void ShowHelpPage(const HelpSurroundings& around, toolkit::Form& ownerForm, std::string_view page);

}  // namespace ordalyn
