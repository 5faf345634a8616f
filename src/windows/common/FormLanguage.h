// FormLanguage: gives forms their texts. A form's design holds string ids: controls, tabs and tool
// bar buttons carry theirs in the tag, menu items as their caption.
#pragma once

#include <string_view>

#include "toolkit/Form.h"

namespace ordalyn {

class InterfaceStrings;
class mAppSpecific;

class FormLanguage {
  public:
    FormLanguage(mAppSpecific& settings, const InterfaceStrings& strings)
        : settings_(settings), strings_(strings) {}

    // Moves the ids of all menu items except separators from their captions, where the design has
    // them, to their tags, so that they survive the first translation. Once for a form, before its
    // first ApplyLanguage.
    static void CopyMenuCaptionsToTags(const toolkit::Form& form);

    // Gives the form, its controls and its menu items their texts, reading order and the character
    // set of the chosen font. A step that fails (a tag that is no number) is left out; the others
    // are still made. Controls without an id keep their captions, separators are left alone, tool
    // bar buttons get tool tips.
    //
    // When the language file is missing, this says so in a message box and switches to the built-in
    // language for good. Messages are handled while the box is open.
    void ApplyLanguage(toolkit::Form& form);

  private:
    bool PrepareLanguage(toolkit::Form& form);
    void ApplyToControl(toolkit::Control& control, bool rightToLeft) const;
    void ApplyToMenuItem(toolkit::MenuItem& item) const;
    void SetCharacterSet(toolkit::Control& control) const;
    std::string TextOf(std::string_view tag) const;

    mAppSpecific& settings_;
    const InterfaceStrings& strings_;
};

}  // namespace ordalyn
