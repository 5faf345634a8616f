#include "windows/common/InputHistory.h"

#include <utility>

#include "base/Text.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "settings/InterfaceStrings.h"
#include "settings/SettingsTable.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kAreYouSureText = 3009;

}  // namespace

std::string InputHistory::EntryName(std::string_view key, int number) {
    return std::string(key) + std::to_string(number);
}

std::vector<std::string> InputHistory::Texts(std::string_view strKey, int intMax) const {
    std::vector<std::string> texts;
    for (int number = 1; number <= intMax; ++number) {
        std::string text =
            profile_
                .ReadValue(kOrdalynSection, EntryName(strKey, number), common_.NoValueMarker(),
                           common_.SettingsFile(), cProfile::kBufferSize)
                .value_or(std::string());
        if (!common_.IsNoValue(text))
            texts.push_back(std::move(text));
    }
    return texts;
}

void InputHistory::LoadHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax) {
    cbo.AddItems(Texts(strKey, intMax));
    cbo.SetText("");
}

void InputHistory::AddToHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax) {
    const std::string text = cbo.Text();
    if (text.empty())
        return;
    for (int item = 0; item < cbo.ListCount(); ++item) {
        if (EqualsIgnoreCase(cbo.List(item), text))
            return;
    }
    if (cbo.ListCount() >= intMax)
        cbo.RemoveItem(cbo.ListCount() - 1);
    cbo.InsertItem(0, text);
    // With quotes, which keep the blanks at the ends.
    for (int item = 0; item < cbo.ListCount(); ++item)
        profile_.WriteValue(kOrdalynSection, EntryName(strKey, item + 1), cbo.List(item),
                            common_.SettingsFile(), true);
}

bool InputHistory::ClearHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax,
                                toolkit::Form& owner) {
    const toolkit::Answer answer = owner.toolkit().ShowMessage(
        &owner, strings_.GetInterfaceString(kAreYouSureText), mAppCommon::kProgramTitle,
        toolkit::MessageIcon::Question, toolkit::MessageButtons::YesNo);
    if (answer != toolkit::Answer::Yes)
        return false;
    for (int number = 1; number <= intMax; ++number)
        profile_.DeleteValue(kOrdalynSection, EntryName(strKey, number), common_.SettingsFile());
    cbo.Clear();
    cbo.SetText("");
    return true;
}

}  // namespace ordalyn
