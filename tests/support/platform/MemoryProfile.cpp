#include "support/platform/MemoryProfile.h"

#include <cstdint>

#include "base/Attempt.h"
#include "base/Text.h"

namespace ordalyn::test {

using platform::CodePages;
using platform::IniFile;

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";

bool StartsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

std::string DecodeUtf16(std::string_view bytes) {
    std::u16string text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        text += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                      static_cast<unsigned char>(bytes[i + 1]) << 8);
    return Utf16ToUtf8(text);
}

std::string EncodeUtf16(std::string_view text) {
    std::string bytes;
    for (const char16_t unit : Utf8ToUtf16(text)) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

}  // namespace

IniFile MemoryProfile::Load(std::string_view file) const {
    const std::string bytes = platform::ReadAllBytes(files_, file).value_or("");
    return IniFile(StartsWith(bytes, kUtf16Mark)
                       ? DecodeUtf16(std::string_view(bytes).substr(kUtf16Mark.size()))
                       : codePages_.ToUtf8(bytes, CodePages::kSystem));
}

template <typename Change>
void MemoryProfile::ChangeFile(std::string_view file, Change&& change) {
    IniFile content = Load(file);
    if (!change(content))
        return;
    const std::string old = platform::ReadAllBytes(files_, file).value_or("");
    const std::string bytes = StartsWith(old, kUtf16Mark)
                                  ? std::string(kUtf16Mark) + EncodeUtf16(content.Text())
                                  : codePages_.FromUtf8Lossy(content.Text(), CodePages::kSystem);
    Attempt([&] { files_.Replace(file, bytes); });
}

std::string MemoryProfile::In(std::string_view callersText) const {
    return form_ == Form::Ansi ? codePages_.ToUtf8(callersText, CodePages::kSystem)
                               : std::string(callersText);
}

std::string MemoryProfile::OutValue(const std::string& text, std::size_t size) const {
    if (form_ == Form::Ansi)
        return IniFile::CutValue(codePages_.FromUtf8Lossy(text, CodePages::kSystem), size);
    return Utf16ToUtf8(IniFile::CutValue(Utf8ToUtf16(text), size));
}

std::string MemoryProfile::OutList(const std::string& text, std::size_t size) const {
    if (form_ == Form::Ansi)
        return IniFile::CutList(codePages_.FromUtf8Lossy(text, CodePages::kSystem), size);
    return Utf16ToUtf8(IniFile::CutList(Utf8ToUtf16(text), size));
}

std::string MemoryProfile::ReadEntry(std::string_view section, std::string_view key,
                                     std::string_view otherwise, std::string_view file,
                                     std::size_t size) {
    const std::optional<std::string> value = Load(file).Entry(In(section), In(key));
    return OutValue(value ? *value : IniFile::Otherwise(In(otherwise)), size);
}

std::string MemoryProfile::ReadKeyNames(std::string_view section, std::string_view file,
                                        std::size_t size) {
    return OutList(Load(file).KeyNames(In(section)), size);
}

std::string MemoryProfile::ReadSection(std::string_view section, std::string_view file,
                                       std::size_t size) {
    return OutList(Load(file).Section(In(section)), size);
}

std::string MemoryProfile::ReadSectionNames(std::string_view file, std::size_t size) {
    return OutList(Load(file).SectionNames(), size);
}

void MemoryProfile::WriteEntry(std::string_view section, std::string_view key,
                               std::string_view value, std::string_view file) {
    ChangeFile(file, [&](IniFile& ini) { return ini.WriteEntry(In(section), In(key), In(value)); });
}

void MemoryProfile::DeleteEntry(std::string_view section, std::string_view key,
                                std::string_view file) {
    ChangeFile(file, [&](IniFile& ini) { return ini.DeleteEntry(In(section), In(key)); });
}

void MemoryProfile::DeleteSection(std::string_view section, std::string_view file) {
    ChangeFile(file, [&](IniFile& ini) { return ini.DeleteSection(In(section)); });
}

}  // namespace ordalyn::test
