#include "windows/common/InputHistory.h"

#include <vector>

#include "base/Text.h"
#include "base/TextIds.h"
#include "hostconfig/mAppCommon.h"
#include "settings/InterfaceStrings.h"

namespace ordalyn {

void InputHistory::LoadHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax) {
    for (const std::string& text : history_.Read(strKey, intMax))
        cbo.AddItem(text);
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
    std::vector<std::string> items;
    items.reserve(static_cast<std::size_t>(cbo.ListCount()));
    for (int item = 0; item < cbo.ListCount(); ++item)
        items.push_back(cbo.List(item));
    history_.Write(strKey, items);
}

bool InputHistory::ClearHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax,
                                toolkit::Form& owner) {
    const toolkit::Answer answer = owner.toolkit().ShowMessage(
        &owner, strings_.GetInterfaceString(text_id::kAreYouSure), mAppCommon::kProgramTitle,
        toolkit::MessageIcon::Question, toolkit::MessageButtons::YesNo);
    if (answer != toolkit::Answer::Yes)
        return false;
    history_.Delete(strKey, intMax);
    cbo.Clear();
    cbo.SetText("");
    return true;
}

}  // namespace ordalyn
