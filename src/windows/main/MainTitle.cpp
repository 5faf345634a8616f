#include "windows/main/MainTitle.h"

#include "hostconfig/mAppCommon.h"
#include "windows/about/Version.h"

namespace ordalyn {

void MainTitle::SetTitle(std::string_view text) {
    text_ = text;
    mainWindow_.SetCaptionWithPath(
        std::string(mAppCommon::kProgramTitle) + " " + GetVersionText(" RC 1 - "), text_);
}

}  // namespace ordalyn
