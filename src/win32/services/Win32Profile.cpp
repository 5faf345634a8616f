#include "win32/services/Win32Profile.h"

#include "win32/common/Paths.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

namespace {

// Calls `fill(buffer, size)`, which returns the number of characters that it has put there.
template <typename Text, typename Fill>
Text Filled(std::size_t size, Fill&& fill) {
    Text buffer(size == 0 ? 1 : size, typename Text::value_type{});
    const DWORD count = fill(buffer.data(), static_cast<DWORD>(size));
    buffer.resize(count < size ? count : (size == 0 ? 0 : size - 1));
    return buffer;
}

// The Unicode form over wide texts, which also serves the 8-bit form where a file's name does not
// fit into the code page. A null key or value means what it means to the calls.
std::wstring ReadWide(const wchar_t* section, const wchar_t* key, const wchar_t* otherwise,
                      const std::wstring& file, std::size_t size) {
    return Filled<std::wstring>(size, [&](wchar_t* buffer, DWORD room) {
        return GetPrivateProfileStringW(section, key, otherwise, buffer, room, file.c_str());
    });
}

std::wstring ReadSectionWide(const std::wstring& section, const std::wstring& file,
                             std::size_t size) {
    return Filled<std::wstring>(size, [&](wchar_t* buffer, DWORD room) {
        return GetPrivateProfileSectionW(section.c_str(), buffer, room, file.c_str());
    });
}

std::wstring ReadSectionNamesWide(const std::wstring& file, std::size_t size) {
    return Filled<std::wstring>(size, [&](wchar_t* buffer, DWORD room) {
        return GetPrivateProfileSectionNamesW(buffer, room, file.c_str());
    });
}

std::wstring AnsiToWide(std::string_view bytes) {
    return Decode(bytes, CP_ACP);
}

std::string WideToAnsi(std::wstring_view text) {
    return Encode(text, CP_ACP);
}

// A file's name for the 8-bit calls. They look for a bare name in the system's own folder, so it
// is always a full path.
struct AnsiFileName {
    explicit AnsiFileName(std::string_view file)
        : wide(ToFullPath(file)), bytes(WideToAnsi(wide)), fits(AnsiToWide(bytes) == wide) {}
    std::wstring wide;
    std::string bytes;
    bool fits;  // whether the code page holds the name
};

}  // namespace

std::string Win32AnsiProfile::ReadEntry(std::string_view section, std::string_view key,
                                        std::string_view otherwise, std::string_view file,
                                        std::size_t size) {
    const AnsiFileName name(file);
    if (!name.fits)
        return WideToAnsi(ReadWide(AnsiToWide(section).c_str(), AnsiToWide(key).c_str(),
                                   AnsiToWide(otherwise).c_str(), name.wide, size));
    return Filled<std::string>(size, [&](char* buffer, DWORD room) {
        return GetPrivateProfileStringA(std::string(section).c_str(), std::string(key).c_str(),
                                        std::string(otherwise).c_str(), buffer, room,
                                        name.bytes.c_str());
    });
}

std::string Win32AnsiProfile::ReadKeyNames(std::string_view section, std::string_view file,
                                           std::size_t size) {
    const AnsiFileName name(file);
    if (!name.fits)
        return WideToAnsi(ReadWide(AnsiToWide(section).c_str(), nullptr, L"", name.wide, size));
    return Filled<std::string>(size, [&](char* buffer, DWORD room) {
        return GetPrivateProfileStringA(std::string(section).c_str(), nullptr, "", buffer, room,
                                        name.bytes.c_str());
    });
}

std::string Win32AnsiProfile::ReadSection(std::string_view section, std::string_view file,
                                          std::size_t size) {
    const AnsiFileName name(file);
    if (!name.fits)
        return WideToAnsi(ReadSectionWide(AnsiToWide(section), name.wide, size));
    return Filled<std::string>(size, [&](char* buffer, DWORD room) {
        return GetPrivateProfileSectionA(std::string(section).c_str(), buffer, room,
                                         name.bytes.c_str());
    });
}

std::string Win32AnsiProfile::ReadSectionNames(std::string_view file, std::size_t size) {
    const AnsiFileName name(file);
    if (!name.fits)
        return WideToAnsi(ReadSectionNamesWide(name.wide, size));
    return Filled<std::string>(size, [&](char* buffer, DWORD room) {
        return GetPrivateProfileSectionNamesA(buffer, room, name.bytes.c_str());
    });
}

void Win32AnsiProfile::WriteEntry(std::string_view section, std::string_view key,
                                  std::string_view value, std::string_view file) {
    const AnsiFileName name(file);
    if (name.fits)
        WritePrivateProfileStringA(std::string(section).c_str(), std::string(key).c_str(),
                                   std::string(value).c_str(), name.bytes.c_str());
    else
        WritePrivateProfileStringW(AnsiToWide(section).c_str(), AnsiToWide(key).c_str(),
                                   AnsiToWide(value).c_str(), name.wide.c_str());
}

void Win32AnsiProfile::DeleteEntry(std::string_view section, std::string_view key,
                                   std::string_view file) {
    const AnsiFileName name(file);
    if (name.fits)
        WritePrivateProfileStringA(std::string(section).c_str(), std::string(key).c_str(), nullptr,
                                   name.bytes.c_str());
    else
        WritePrivateProfileStringW(AnsiToWide(section).c_str(), AnsiToWide(key).c_str(), nullptr,
                                   name.wide.c_str());
}

void Win32AnsiProfile::DeleteSection(std::string_view section, std::string_view file) {
    const AnsiFileName name(file);
    if (name.fits)
        WritePrivateProfileStringA(std::string(section).c_str(), nullptr, nullptr,
                                   name.bytes.c_str());
    else
        WritePrivateProfileStringW(AnsiToWide(section).c_str(), nullptr, nullptr,
                                   name.wide.c_str());
}

std::string Win32UnicodeProfile::ReadEntry(std::string_view section, std::string_view key,
                                           std::string_view otherwise, std::string_view file,
                                           std::size_t size) {
    return FromWide(ReadWide(ToWide(section).c_str(), ToWide(key).c_str(),
                             ToWide(otherwise).c_str(), ToFullPath(file), size));
}

std::string Win32UnicodeProfile::ReadKeyNames(std::string_view section, std::string_view file,
                                              std::size_t size) {
    return FromWide(ReadWide(ToWide(section).c_str(), nullptr, L"", ToFullPath(file), size));
}

std::string Win32UnicodeProfile::ReadSection(std::string_view section, std::string_view file,
                                             std::size_t size) {
    return FromWide(ReadSectionWide(ToWide(section), ToFullPath(file), size));
}

std::string Win32UnicodeProfile::ReadSectionNames(std::string_view file, std::size_t size) {
    return FromWide(ReadSectionNamesWide(ToFullPath(file), size));
}

void Win32UnicodeProfile::WriteEntry(std::string_view section, std::string_view key,
                                     std::string_view value, std::string_view file) {
    WritePrivateProfileStringW(ToWide(section).c_str(), ToWide(key).c_str(), ToWide(value).c_str(),
                               ToFullPath(file).c_str());
}

void Win32UnicodeProfile::DeleteEntry(std::string_view section, std::string_view key,
                                      std::string_view file) {
    WritePrivateProfileStringW(ToWide(section).c_str(), ToWide(key).c_str(), nullptr,
                               ToFullPath(file).c_str());
}

void Win32UnicodeProfile::DeleteSection(std::string_view section, std::string_view file) {
    WritePrivateProfileStringW(ToWide(section).c_str(), nullptr, nullptr, ToFullPath(file).c_str());
}

}  // namespace ordalyn::win32
