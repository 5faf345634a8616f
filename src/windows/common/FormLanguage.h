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

    // Both steps below: the form is shown in the language of the settings, or in the built-in one
    // when the language file is missing.
    void ApplyLanguage(toolkit::Form& form);

    // When the language file is missing, says so in a message box and switches to the built-in
    // language for good. Without an owner the box belongs to the active window. Messages are
    // handled while it is open.
    void CheckLanguageFile(toolkit::Toolkit& toolkit, toolkit::Form* owner);
    // Gives the form, its controls and its menu items their texts, reading order and the character
    // set of the chosen font. A step that fails (a tag that is no number) is left out; the others
    // are still made. Controls without an id keep their captions, separators are left alone, tool
    // bar buttons get tool tips. Shows no message and changes no setting.
    void ShowTexts(toolkit::Form& form) const;

  private:
    void ApplyToControl(toolkit::Control& control, bool rightToLeft) const;
    void ApplyToMenuItem(toolkit::MenuItem& item) const;
    void SetCharacterSet(toolkit::Control& control) const;
    std::string TextOf(std::string_view tag) const;

    mAppSpecific& settings_;
    const InterfaceStrings& strings_;
};

}  // namespace ordalyn
