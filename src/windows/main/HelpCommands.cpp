#include "windows/main/HelpCommands.h"

namespace ordalyn {

HelpCommands::HelpCommands(SharedObjects& shared, toolkit::Form& mainWindow)
    : shared_(shared), mainWindow_(mainWindow) {
    shared_.toolkit.SetHelpHandler(
        [this](toolkit::Form& form, std::string_view page) { ShowHelpPage(Around(), form, page); });
}

HelpCommands::~HelpCommands() {
    shared_.toolkit.SetHelpHandler(nullptr);
}

void HelpCommands::ShowTopics() {
    ShowHelp(Around(), mainWindow_);
}

HelpSurroundings HelpCommands::Around() {
    return {shared_.toolkit,
            shared_.services.files,
            shared_.services.shell,
            shared_.common.ProgramFolder(),
            shared_.settings->UseDefaultLanguage != 0,
            shared_.settings->LanguageFile,
            shared_.Texts()};
}

}  // namespace ordalyn
