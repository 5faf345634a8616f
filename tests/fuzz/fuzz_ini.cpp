// Any bytes as an INI file, then a change to it: what was written is read, the rest stays.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Require.h"
#include "platform/IniFile.h"

using ordalyn::fuzz::Require;
using ordalyn::platform::IniFile;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    IniFile file(text);
    Require(file.Text() == text, "an unchanged file is as it was");
    const auto before = file.Entry("Configuration", "LogFile");
    file.KeyNames("Configuration");
    file.Section("");
    file.SectionNames();

    file.WriteEntry("Configuration", "Another", "value");
    Require(file.Entry("Configuration", "Another") == "value", "what is written can be read");
    Require(file.Entry("Configuration", "LogFile") == before, "other entries stay");
    // A NUL ends a name or a value, and what is then at its end may be blanks: they go at the next
    // reading, which can give one section the name of another.
    if (text.find('\0') == std::string_view::npos) {
        const IniFile again(file.Text());
        Require(again.Entry("Configuration", "Another") == "value", "also from the text");
        Require(again.Entry("Configuration", "LogFile") == before, "others also from the text");
    }

    Require(file.DeleteEntry("Configuration", "Another"), "what is there can be deleted");
    file.DeleteSection("Configuration");
    return 0;
}
