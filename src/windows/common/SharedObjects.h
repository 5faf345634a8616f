// SharedObjects: the services that exist once for the whole run, made at the start in a fixed order
// and released at the end in another.
#pragma once

#include <memory>

#include "hostconfig/cProfile.h"
#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"
#include "platform/Platform.h"
#include "settings/InterfaceStrings.h"
#include "settings/cDefaultStrings.h"
#include "settings/cRecentFiles.h"
#include "settings/mAppSpecific.h"
#include "toolkit/Toolkit.h"
#include "windows/common/FormLanguage.h"
#include "windows/common/Texts.h"
#include "windows/dialogs/cCommonDialog.h"

namespace ordalyn {

// Whole twips for one pixel of the screen.
struct ScreenFactors {
    std::int32_t twipsPerPixelX;
    std::int32_t twipsPerPixelY;
};

class SharedObjects {
  public:
    // Makes the objects and loads the settings. A settings file with a number that is no number
    // leaves the settings behind it at their defaults; the user is not notified.
    SharedObjects(const platform::Services& services, toolkit::Toolkit& toolkit);
    ~SharedObjects() { Release(); }
    SharedObjects(const SharedObjects&) = delete;
    SharedObjects& operator=(const SharedObjects&) = delete;

    // Releases the objects in the order of shutting down. No form may be left that uses them.
    void Release();

    ordalyn::Texts FormTexts();
    TextSource Texts();
    std::string Text(std::int32_t id) const { return strings->GetInterfaceString(id); }

    const platform::Services services;
    toolkit::Toolkit& toolkit;
    const ScreenFactors screen;
    mAppCommon common;
    std::unique_ptr<cRegistry> registry;
    std::unique_ptr<cCommonDialog> commonDialog;
    std::unique_ptr<cProfile> profile;
    std::unique_ptr<mAppSpecific> settings;
    std::unique_ptr<cDefaultStrings> defaultStrings;
    std::unique_ptr<InterfaceStrings> strings;
    std::unique_ptr<FormLanguage> language;
    std::unique_ptr<cRecentFiles> recentFiles;
};

}  // namespace ordalyn
