#include "windows/common/FormLanguage.h"

#include "base/Attempt.h"
#include "base/CheckedMath.h"
#include "base/Text.h"
#include "hostconfig/mAppCommon.h"
#include "settings/InterfaceStrings.h"
#include "settings/mAppSpecific.h"

namespace ordalyn {

namespace {

using toolkit::Kind;

// Always in English: the file that would translate it is the one that is missing.
constexpr std::string_view kMissingLanguageFile = "Cannot find language file!";

bool HasReadingOrder(Kind kind) {
    switch (kind) {
        case Kind::Label:
        case Kind::CheckBox:
        case Kind::OptionButton:
        case Kind::CommandButton:
        case Kind::Frame:
            return true;
        default:
            return false;
    }
}

}  // namespace

void FormLanguage::CopyMenuCaptionsToTags(const toolkit::Form& form) {
    for (toolkit::MenuItem* item : form.AllMenuItems()) {
        if (!item->IsSeparator())
            item->SetTag(item->Caption());
    }
}

void FormLanguage::ApplyLanguage(toolkit::Form& form) {
    // A form that is being loaded is not on the screen yet and cannot own the box.
    CheckLanguageFile(form.toolkit(), form.Visible() ? &form : nullptr);
    ShowTexts(form);
}

void FormLanguage::CheckLanguageFile(toolkit::Toolkit& toolkit, toolkit::Form* owner) {
    if (!strings_.LanguageFileMissing())
        return;
    toolkit.ShowMessage(owner, kMissingLanguageFile, mAppCommon::kProgramTitle,
                        toolkit::MessageIcon::Critical);
    settings_.GiveUpLanguageFile();
}

void FormLanguage::ShowTexts(toolkit::Form& form) const {
    const auto look = strings_.Look();
    bool rightToLeft = false;
    Attempt([&] { rightToLeft = strings_.RightToLeftLanguage(); });
    Attempt([&] { form.SetRightToLeft(rightToLeft); });
    Attempt([&] { SetCharacterSet(form); });
    Attempt([&] { form.SetCaption(TextOf(form.Tag())); });
    for (const auto& control : form.Controls())
        ApplyToControl(*control, rightToLeft);
    for (toolkit::MenuItem* item : form.AllMenuItems())
        Attempt([&] { ApplyToMenuItem(*item); });
}

void FormLanguage::ApplyToControl(toolkit::Control& control, bool rightToLeft) const {
    Attempt([&] { SetCharacterSet(control); });
    const Kind kind = control.ControlKind();
    if (HasReadingOrder(kind)) {
        Attempt([&] { control.SetRightToLeft(rightToLeft); });
        Attempt([&] {
            control.SetTextAlignment(rightToLeft ? toolkit::Alignment::Right
                                                 : toolkit::Alignment::Left);
        });
    }
    if (!control.NameTag().empty()) {
        Attempt([&] {
            control.SetAccessibleName(toolkit::CaptionWithoutKey(TextOf(control.NameTag())));
        });
    }
    if (kind == Kind::ToolBar) {
        auto& toolBar = static_cast<toolkit::ToolBar&>(control);
        for (int number = 1; number <= toolBar.ButtonCount(); ++number)
            Attempt(
                [&] { toolBar.SetButtonToolTip(number, TextOf(toolBar.ButtonAt(number).tag)); });
    } else if (kind == Kind::TabStrip) {
        auto& tabStrip = static_cast<toolkit::TabStrip&>(control);
        for (int number = 1; number <= tabStrip.TabCount(); ++number)
            Attempt([&] { tabStrip.SetTabCaption(number, TextOf(tabStrip.TabAt(number).tag)); });
    } else if (HasReadingOrder(kind)) {
        // The kinds with a reading order are those with a caption. Here the tag only has to begin
        // with a number: what follows it is left to the form's own use.
        Attempt([&] {
            const double id = LeadingNumber(control.Tag());
            if (id > 0)
                control.SetCaption(strings_.GetInterfaceString(RoundToLong(id)));
        });
    }
}

void FormLanguage::ApplyToMenuItem(toolkit::MenuItem& item) const {
    if (!item.IsSeparator())
        item.SetCaption(TextOf(item.Tag()));
}

void FormLanguage::SetCharacterSet(toolkit::Control& control) const {
    toolkit::Font font = control.Font();
    font.characterSet = settings_.FontScript;
    control.SetFont(font);
}

// The text whose id is the whole tag; throws when that is no number.
std::string FormLanguage::TextOf(std::string_view tag) const {
    return strings_.GetInterfaceString(ToLong(tag));
}

}  // namespace ordalyn
