// Texts that say which id they have, and an owner for dialogs, for windows that are tested alone.
#pragma once

#include <cstdint>
#include <string>

#include "windows/common/Texts.h"

namespace ordalyn::test {

inline constexpr toolkit::FormDesign kOwnerDesign = {
    .name = "frmOwner", .tag = "", .clientSize = {9000, 6000}, .style = {}, .controls = {}};

inline std::string TextOf(std::int32_t id) {
    return "text " + std::to_string(id);
}

// Gives controls with a tag the text of that id, as the interface language does.
inline Texts TestTexts() {
    return {TextOf, [](toolkit::Form& form) {
                if (!form.Tag().empty())
                    form.SetCaption("text " + form.Tag());
                for (const auto& control : form.Controls()) {
                    if (!control->Tag().empty())
                        control->SetCaption("text " + control->Tag());
                }
            }};
}

}  // namespace ordalyn::test
