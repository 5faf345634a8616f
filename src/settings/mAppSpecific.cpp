#include "settings/mAppSpecific.h"

#include <algorithm>

#include "base/Text.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

mAppSpecific::mAppSpecific(cProfile& profile, mAppCommon& common)
    : profile_(profile), common_(common) {
    for (const Setting& setting : AllSettings())
        Take(setting, setting.fallback != nullptr ? setting.fallback : common_.NoValueMarker());
}

std::string mAppSpecific::Read(std::string_view section, std::string_view key,
                               std::string_view fallback) const {
    return profile_.ReadValue(section, key, fallback, common_.SettingsFile(), cProfile::kBufferSize)
        .value_or(std::string());
}

void mAppSpecific::Write(std::string_view section, std::string_view key, std::string_view value) {
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
    Take(setting, Read(setting.section, setting.key,
                       setting.fallback != nullptr ? setting.fallback : common_.NoValueMarker()));
    // The path helpers lie below the settings and cannot read this one themselves.
    common_.SetUnExpandPaths(UnExpandPaths);
}

void mAppSpecific::LoadSettings() {
    const cProfile::Look look(profile_);
    for (const Setting& setting : AllSettings())
        Load(setting);
}

void mAppSpecific::Save(const Setting& setting) {
    const std::string written = setting.Written(*this);
    Write(setting.section, setting.key,
          setting.type == SettingType::Path ? common_.UnExpandPath(written) : written);
}

void mAppSpecific::SaveAllOf(SettingWriter writer) {
    profile_.Together([&] {
        for (const Setting& setting : AllSettings()) {
            if (setting.writer == writer)
                Save(setting);
        }
    });
}

void mAppSpecific::GiveUpLanguageFile() {
    UseDefaultLanguage = 1;
    SaveSetting(&SettingsValues::UseDefaultLanguage);
}

std::string mAppSpecific::ReadEntry(const OtherEntry& entry) const {
    return Read(entry.section, entry.key, entry.fallback);
}

void mAppSpecific::WriteEntry(const OtherEntry& entry, std::string_view value) {
    Write(entry.section, entry.key, value);
}

void mAppSpecific::SaveFindOptions(const FindOptions& options) {
    WriteEntry(entry::FindOptions, FindOptionsText(options));
}

}  // namespace ordalyn
