#include "win32/services/Win32Dialogs.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "win32/common/Scale.h"
#include "win32/common/SystemLibraries.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

using namespace platform;

namespace {

// Size of the 8-bit record that has the three fields that came with version 5 of the library.
constexpr std::size_t kRecordWithLaterFields = 88;

LOGFONTW ToLogFont(const Dialogs::FontRequest& request) {
    LOGFONTW font{};
    font.lfHeight = -static_cast<LONG>(std::lround(request.size * Scale().DpiY() / 72.0));
    font.lfWeight = request.weight;
    font.lfItalic = request.italic ? TRUE : FALSE;
    font.lfUnderline = request.underline ? TRUE : FALSE;
    font.lfStrikeOut = request.strikethrough ? TRUE : FALSE;
    font.lfCharSet = static_cast<BYTE>(request.characterSet);
    const std::wstring name = ToWide(request.name).substr(0, LF_FACESIZE - 1);
    std::copy(name.begin(), name.end(), font.lfFaceName);
    return font;
}

// The record of the dialogs for files, and the memory that it points at.
struct FileDialog {
    explicit FileDialog(const Dialogs::OpenRequest& request)
        : filter(ToWide(request.filter) + L'\0'),
          folder(ToWide(request.initialFolder)),
          title(ToWide(request.title)),
          chosen(ToWide(request.fileName)) {
        chosen.resize(std::max(request.bufferSize, chosen.size() + 1));
        record.lStructSize = request.recordSize < kRecordWithLaterFields
                                 ? OPENFILENAME_SIZE_VERSION_400W
                                 : sizeof(OPENFILENAMEW);
        record.hwndOwner = reinterpret_cast<HWND>(request.owner);
        record.lpstrFilter = filter.c_str();
        record.lpstrFile = chosen.data();
        record.nMaxFile = static_cast<DWORD>(chosen.size());
        record.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
        record.lpstrTitle = title.empty() ? nullptr : title.c_str();
        record.Flags = request.flags;
    }
    FileDialog(const FileDialog&) = delete;
    FileDialog& operator=(const FileDialog&) = delete;

    std::string Chosen() const { return FromWide(chosen.substr(0, chosen.find(L'\0'))); }

    std::wstring filter, folder, title, chosen;
    OPENFILENAMEW record{};
};

// "*.txt" of the first pair gives "txt".
std::wstring FirstExtension(const std::wstring& filter) {
    const std::size_t pattern = filter.find(L'\0');
    const std::size_t dot = pattern == std::wstring::npos ? pattern : filter.find(L'.', pattern);
    if (dot == std::wstring::npos)
        return {};
    return filter.substr(dot + 1,
                         filter.find_first_of(std::wstring_view(L"\0;", 2), dot) - dot - 1);
}

}  // namespace

std::optional<std::string> Win32Dialogs::OpenFile(const OpenRequest& request) {
    FileDialog dialog(request);
    if (!GetOpenFileNameW(&dialog.record))
        return std::nullopt;
    return dialog.Chosen();
}

std::optional<Dialogs::SaveAnswer> Win32Dialogs::SaveFile(const OpenRequest& request) {
    FileDialog dialog(request);
    // Any one makes the dialog use that of the chosen pattern.
    const std::wstring extension = FirstExtension(dialog.filter);
    dialog.record.lpstrDefExt = extension.c_str();
    dialog.record.nFilterIndex = 1;
    if (!GetSaveFileNameW(&dialog.record))
        return std::nullopt;
    return SaveAnswer{dialog.Chosen(), static_cast<int>(dialog.record.nFilterIndex) - 1};
}

std::optional<std::uint32_t> Win32Dialogs::ChooseColor(const ColorRequest& request,
                                                       std::uint32_t (&customColors)[16]) {
    COLORREF custom[16];
    std::copy(std::begin(customColors), std::end(customColors), std::begin(custom));
    CHOOSECOLORW record{};
    record.lStructSize = sizeof(record);
    record.hwndOwner = reinterpret_cast<HWND>(request.owner);
    record.rgbResult = request.initial;
    record.lpCustColors = custom;
    record.Flags = request.flags;
    const bool confirmed = ChooseColorW(&record) != 0;
    std::copy(std::begin(custom), std::end(custom), std::begin(customColors));
    if (!confirmed)
        return std::nullopt;
    return static_cast<std::uint32_t>(record.rgbResult);
}

std::optional<Dialogs::FontAnswer> Win32Dialogs::ChooseFont(const FontRequest& request) {
    LOGFONTW font = ToLogFont(request);
    CHOOSEFONTW record{};
    record.lStructSize = sizeof(record);
    record.hwndOwner = reinterpret_cast<HWND>(request.owner);
    record.lpLogFont = &font;
    record.Flags = request.flags;
    record.rgbColors = request.color;
    record.nSizeMin = request.minimum;
    record.nSizeMax = request.maximum;
    if (!ChooseFontW(&record))
        return std::nullopt;
    FontAnswer answer;
    const auto* nameEnd = std::find(std::begin(font.lfFaceName), std::end(font.lfFaceName), L'\0');
    answer.name = FromWide({font.lfFaceName, static_cast<std::size_t>(nameEnd - font.lfFaceName)});
    answer.tenthsOfPoints = record.iPointSize;
    answer.characterSet = font.lfCharSet;
    answer.weight = font.lfWeight;
    answer.italic = font.lfItalic != 0;
    answer.strikethrough = font.lfStrikeOut != 0;
    answer.underline = font.lfUnderline != 0;
    return answer;
}

int Win32Dialogs::LibraryMajorVersion() {
    // Read from the library that is loaded, not from a file that has its name.
    const Library library = LoadSystemLibrary(L"comdlg32.dll");
    if (!library)
        return 0;
    const HRSRC found = FindResourceW(library.Get(), MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    const HGLOBAL resource = found == nullptr ? nullptr : LoadResource(library.Get(), found);
    const void* const data = resource == nullptr ? nullptr : LockResource(resource);
    // The fixed part stands behind three lengths and the name, at the next multiple of four bytes.
    constexpr std::size_t kFixedPart = 40;
    VS_FIXEDFILEINFO fixed = {};
    if (data == nullptr || SizeofResource(library.Get(), found) < kFixedPart + sizeof fixed)
        return 0;
    std::memcpy(&fixed, static_cast<const BYTE*>(data) + kFixedPart, sizeof fixed);
    return fixed.dwSignature == VS_FFI_SIGNATURE ? HIWORD(fixed.dwFileVersionMS) : 0;
}

}  // namespace ordalyn::win32
