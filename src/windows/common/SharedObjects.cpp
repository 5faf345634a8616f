#include "windows/common/SharedObjects.h"

#include "base/Attempt.h"
#include "base/CheckedMath.h"
#include "hostconfig/TotalCommanderLocator.h"

namespace ordalyn {

SharedObjects::SharedObjects(const platform::Services& allServices, toolkit::Toolkit& theToolkit)
    : services(allServices),
      toolkit(theToolkit),
      screen{RoundToLong(theToolkit.TwipsPerPixelX()), RoundToLong(theToolkit.TwipsPerPixelY())},
      common(allServices) {
    registry = std::make_unique<cRegistry>(services, common);
    commonDialog = std::make_unique<cCommonDialog>(
        services, common, *registry,
        [this](std::int32_t id) { return strings->GetInterfaceString(id); });
    profile = std::make_unique<cProfile>(services, common);
    settings = std::make_unique<mAppSpecific>(*profile, common);
    defaultStrings = std::make_unique<cDefaultStrings>();
    strings = std::make_unique<InterfaceStrings>(*settings, common, *profile, services.codePages,
                                                 *defaultStrings);
    language = std::make_unique<FormLanguage>(*settings, *strings);
    recentFiles = std::make_unique<cRecentFiles>(*profile, common);
    Attempt([this] { ProvideRememberedCommanderFolder(common, *profile); });
    Attempt([this] { settings->LoadSettings(); });
}

void SharedObjects::Release() {
    recentFiles.reset();
    commonDialog.reset();
    registry.reset();
    language.reset();
    strings.reset();
    settings.reset();
    profile.reset();
    defaultStrings.reset();
}

TextSource SharedObjects::Texts() {
    return [this](std::int32_t id) { return Text(id); };
}

ordalyn::Texts SharedObjects::FormTexts() {
    return {Texts(), [this](toolkit::Form& form) { language->ApplyLanguage(form); }};
}

}  // namespace ordalyn
