#include "settings/TextHistory.h"

#include <utility>

#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

std::string EntryName(std::string_view key, int number) {
    return std::string(key) + std::to_string(number);
}

}  // namespace

std::vector<std::string> TextHistory::Read(std::string_view strKey, int intMax) const {
    const cProfile::Look look(profile_);
    std::vector<std::string> items;
    for (int number = 1; number <= intMax; ++number) {
        std::string text =
            profile_
                .ReadValue(kOrdalynSection, EntryName(strKey, number), common_.NoValueMarker(),
                           common_.SettingsFile(), cProfile::kBufferSize)
                .value_or(std::string());
        if (!common_.IsNoValue(text))
            items.push_back(std::move(text));
    }
    return items;
}

void TextHistory::Write(std::string_view strKey, const std::vector<std::string>& items) {
    // With quotes, which keep the blanks at the ends.
    profile_.Together([&] {
        for (std::size_t item = 0; item < items.size(); ++item)
            profile_.WriteValue(kOrdalynSection, EntryName(strKey, static_cast<int>(item) + 1),
                                items[item], common_.SettingsFile(), true);
    });
}

void TextHistory::Delete(std::string_view strKey, int intMax) {
    profile_.Together([&] {
        for (int number = 1; number <= intMax; ++number)
            profile_.DeleteValue(kOrdalynSection, EntryName(strKey, number),
                                 common_.SettingsFile());
    });
}

}  // namespace ordalyn
