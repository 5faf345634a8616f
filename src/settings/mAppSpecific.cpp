#include "settings/mAppSpecific.h"

#include <algorithm>
#include <vector>

#include "base/Attempt.h"
#include "base/CheckedMath.h"
#include "base/Text.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

using toolkit::WindowState;

// "frmMain" keeps its placement under "Main".
std::string PlacementPrefix(const toolkit::Form& form) {
    return form.Name().substr(std::min<std::size_t>(3, form.Name().size()));
}

// A number of a placement. Beyond 32 bits there is no place for a window: throws Overflow.
toolkit::Twips PlacementNumber(const std::vector<std::string>& parts, std::size_t part) {
    const double number = part < parts.size() ? LeadingNumber(parts[part]) : 0.0;
    static_cast<void>(RoundToLong(number));
    return static_cast<toolkit::Twips>(number);
}

WindowState StateToStartIn(double stored) {
    switch (RoundToLong(stored)) {
        case 0:
        case 1:  // never minimised
            return WindowState::Normal;
        case 2:
            return WindowState::Maximised;
        default:
            throw InvalidPropertyValue("window state");
    }
}

}  // namespace

mAppSpecific::mAppSpecific(cProfile& profile, mAppCommon& common)
    : profile_(profile), common_(common) {
    for (const Setting& setting : AllSettings())
        Take(setting, setting.fallback != nullptr ? setting.fallback : common_.NoValueMarker());
}

std::string mAppSpecific::ReadEntry(std::string_view section, std::string_view key,
                                    std::string_view fallback) const {
    return profile_.ReadValue(section, key, fallback, common_.SettingsFile(), cProfile::kBufferSize)
        .value_or(std::string());
}

void mAppSpecific::WriteEntry(std::string_view section, std::string_view key,
                              std::string_view value) {
    profile_.WriteValue(section, key, value, common_.SettingsFile());
}

void mAppSpecific::Take(const Setting& setting, std::string_view text) {
    if (const auto* place = std::get_if<std::string SettingsValues::*>(&setting.place)) {
        this->*(*place) =
            setting.type == SettingType::Path ? common_.ExpandPath(text) : std::string(text);
        return;
    }
    const std::int32_t value = text.empty() ? 0 : ToLong(text);
    this->*std::get<std::int32_t SettingsValues::*>(setting.place) =
        std::clamp(value, setting.least, setting.most);
}

void mAppSpecific::Load(const Setting& setting) {
    Take(setting,
         ReadEntry(setting.section, setting.key,
                   setting.fallback != nullptr ? setting.fallback : common_.NoValueMarker()));
    // The path helpers lie below the settings and are told what they may do.
    common_.SetUnExpandPaths(UnExpandPaths);
}

void mAppSpecific::LoadSettings() {
    for (const Setting& setting : AllSettings())
        Load(setting);
}

void mAppSpecific::Save(const Setting& setting) {
    const std::string written = setting.Written(*this);
    WriteEntry(setting.section, setting.key,
               setting.type == SettingType::Path ? common_.UnExpandPath(written) : written);
}

void mAppSpecific::SaveSettings() {
    for (const Setting& setting : AllSettings()) {
        if (setting.writer == SettingWriter::Options)
            Save(setting);
    }
}

void mAppSpecific::SaveSetting(std::string_view key) {
    Save(SettingByKey(key));
}

void mAppSpecific::RestoreWindowPosition(toolkit::Form& form, bool restoreState,
                                         std::string_view defaultPlacement) {
    const std::string prefix = PlacementPrefix(form);
    Attempt([&] {
        const std::vector<std::string> parts =
            Split(ReadEntry(kOrdalynSection, prefix + "Position", defaultPlacement), ',');
        form.Move({PlacementNumber(parts, 0), PlacementNumber(parts, 1), PlacementNumber(parts, 2),
                   PlacementNumber(parts, 3)});
    });
    if (!restoreState)
        return;
    Attempt([&] {
        form.SetState(
            StateToStartIn(LeadingNumber(ReadEntry(kOrdalynSection, prefix + "WindowState", "0"))));
    });
}

void mAppSpecific::SaveWindowPosition(const toolkit::Form& form, bool saveState) {
    const std::string prefix = PlacementPrefix(form);
    const WindowState state = form.State();
    if (state == WindowState::Normal) {
        std::vector<std::string> parts;
        for (const toolkit::Twips value : {form.Left(), form.Top(), form.Width(), form.Height()})
            parts.push_back(std::to_string(TruncateToLong(double{value})));
        WriteEntry(kOrdalynSection, prefix + "Position", Join(parts, ","));
    }
    if (saveState)
        WriteEntry(kOrdalynSection, prefix + "WindowState",
                   std::to_string(static_cast<int>(state)));
}

FindOptions mAppSpecific::LoadFindOptions() const {
    return ParseFindOptions(ReadEntry(kOrdalynSection, "FindOptions", kFindOptionsDefault));
}

void mAppSpecific::SaveFindOptions(const FindOptions& options) {
    WriteEntry(kOrdalynSection, "FindOptions", FindOptionsText(options));
}

void mAppSpecific::ApplyFont(toolkit::Control& control, bool useSettings, double size) const {
    toolkit::Font font;
    font.name = FontName;
    font.characterSet = FontScript;
    font.size = useSettings ? static_cast<double>(FontSize) : size;
    if (useSettings) {
        font.bold = (FontStyle & kFontBold) != 0;
        font.italic = (FontStyle & kFontItalic) != 0;
        font.strikethrough = (FontStyle & kFontStrikethrough) != 0;
        font.underline = (FontStyle & kFontUnderline) != 0;
    }
    Attempt([&] { control.SetFont(font); });
}

}  // namespace ordalyn
