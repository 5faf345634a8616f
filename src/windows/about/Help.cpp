#include "windows/about/Help.h"

#include "base/FileNames.h"
#include "base/Text.h"
#include "base/TextIds.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

// The languages that there is help in, beside English: the file's name, and the language's own.
struct Language {
    std::string_view file;
    std::string_view own;
};
constexpr Language kLanguagesOfHelp[] = {{"German", "Deutsch"}};

}  // namespace

std::string HelpFile(const HelpSurroundings& around) {
    std::string common = around.programFolder + "Readme.chm";
    if (around.useDefaultLanguage)
        return common;
    const std::string name = GetFileBaseName(GetFileName(around.languageFile));
    // A name that would lead out of the folder is none of a file in it.
    if (name.find_first_of("/:") != std::string::npos)
        return common;
    const auto helpNamed = [&](std::string_view language) {
        return around.programFolder + "Readme " + std::string(language) + ".chm";
    };
    if (std::string path = helpNamed(name); around.files.Exists(path))
        return path;
    for (const Language& language : kLanguagesOfHelp)
        if (std::string path = helpNamed(language.own);
            EqualsIgnoreCase(language.file, name) && around.files.Exists(path))
            return path;
    return common;
}

namespace {

bool IsThere(const HelpSurroundings& around, const std::string& path, toolkit::Form& ownerForm) {
    if (around.files.Exists(path))
        return true;
    around.toolkit.ShowMessage(&ownerForm, around.text(text_id::kFileNotFound),
                               mAppCommon::kProgramTitle, toolkit::MessageIcon::Critical);
    return false;
}

}  // namespace

void ShowHelp(const HelpSurroundings& around, toolkit::Form& ownerForm) {
    const std::string path = HelpFile(around);
    if (IsThere(around, path, ownerForm))
        around.shell.Open(ownerForm.Handle(), platform::ShellTarget::HelpFile(path));
}

void ShowHelpPage(const HelpSurroundings& around, toolkit::Form& ownerForm, std::string_view page) {
    const std::string path = HelpFile(around);
    if (page == toolkit::Toolkit::kHelpPageOfMessages && !around.files.Exists(path)) {
        around.toolkit.Beep();
        return;
    }
    if (IsThere(around, path, ownerForm))
        around.shell.Open(ownerForm.Handle(), platform::ShellTarget::HelpPage(path, page));
}

}  // namespace ordalyn
