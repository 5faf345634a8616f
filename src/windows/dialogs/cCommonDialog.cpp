#include "windows/dialogs/cCommonDialog.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include "base/Attempt.h"
#include "base/CheckedMath.h"
#include "base/Errors.h"
#include "base/Text.h"
#include "base/TextIds.h"
#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

using namespace std::string_view_literals;

// "Description", NUL, "pattern", NUL pairs. Each ends with all files, so that the user can always
// look further.
constexpr std::string_view kFilters[] = {
    "All Files (*.*)\0*.*\0"sv,
    "Wincmd.ini (*.ini)\0*.ini\0All Files (*.*)\0*.*\0"sv,
    "Language File (*.lng)\0*.lng\0All Files (*.*)\0*.*\0"sv,
    "TC Log File(*.log)\0*.log\0All Files (*.*)\0*.*\0"sv,
};

constexpr std::size_t kRoomForPath = 768;

// Old libraries refuse a record with the fields that version 5 added at its end.
constexpr int kFirstVersionWithLongRecord = 5;
constexpr std::size_t kLongRecord = 88;
constexpr std::size_t kShortRecord = 76;

// The system's OFN_, CC_ and CF_ bits.
constexpr std::uint32_t kOverwritePrompt = 0x2, kHideReadOnly = 0x4, kNoChangeDir = 0x8,
                        kExtensionDifferent = 0x400, kFileMustExist = 0x1000, kExplorer = 0x80000,
                        kEnableSizing = 0x800000, kForceShowHidden = 0x10000000;
constexpr std::uint32_t kOpenFlags = kOverwritePrompt | kHideReadOnly | kNoChangeDir |
                                     kExtensionDifferent | kExplorer | kEnableSizing |
                                     kForceShowHidden;
// A folder that is there, and the user can make files in.
constexpr std::uint32_t kPathMustExist = 0x800, kNoReadOnlyReturn = 0x8000;
constexpr std::uint32_t kSaveFlags = kOverwritePrompt | kHideReadOnly | kNoChangeDir |
                                     kPathMustExist | kNoReadOnlyReturn | kExplorer | kEnableSizing;
constexpr std::uint32_t kRgbInit = 0x1, kSolidColor = 0x80, kAnyColor = 0x100;
constexpr std::uint32_t kScreenFonts = 0x1, kInitToLogFont = 0x40, kEffects = 0x100,
                        kLimitSize = 0x2000, kForceFontExist = 0x10000;

constexpr std::size_t kLongestFaceName = 31;
constexpr int kNormalWeight = 400;
constexpr int kBoldWeight = 700;
constexpr int kSmallestFont = 8;
constexpr int kLargestFont = 72;

// The text up to its first NUL.
std::string UpToNul(std::string text) {
    text.resize(std::min(text.find('\0'), text.size()));
    return text;
}

// A part of a colour; parts that are too large are full.
std::uint32_t ColorPart(std::string_view number) {
    const std::int32_t part = ToLong(number);
    if (part < 0)
        throw Overflow();
    return static_cast<std::uint32_t>(std::min(part, 255));
}

}  // namespace

cCommonDialog::cCommonDialog(const platform::Services& services, const mAppCommon& common,
                             const cRegistry& registry, TextSource text)
    : dialogs_(services.dialogs), common_(common), registry_(registry), text_(std::move(text)) {}

std::size_t cCommonDialog::RecordSize() const {
    return dialogs_.LibraryMajorVersion() >= kFirstVersionWithLongRecord ? kLongRecord
                                                                         : kShortRecord;
}

void cCommonDialog::ShowOpenDialog(platform::WindowHandle lngOwnerFormHwnd,
                                   std::string_view strInitDir, std::string_view strFileName,
                                   std::int32_t lngFilter, std::string_view strTitle,
                                   bool blnFileMustExist) {
    Confirmed = false;
    if (lngFilter < 0 || static_cast<std::size_t>(lngFilter) >= std::size(kFilters))
        throw SubscriptOutOfRange();
    platform::Dialogs::OpenRequest request;
    request.owner = lngOwnerFormHwnd;
    request.filter = kFilters[lngFilter];
    request.fileName = strFileName;
    request.initialFolder = strInitDir.empty() ? lastFolder_ : std::string(strInitDir);
    request.title = strTitle.empty() ? text_(text_id::kOpenTitle) : std::string(strTitle);
    request.flags = kOpenFlags | (blnFileMustExist ? kFileMustExist : 0);
    request.bufferSize = CharacterCount(strFileName) + kRoomForPath;
    request.recordSize = RecordSize();
    std::optional<std::string> chosen = dialogs_.OpenFile(request);
    Confirmed = chosen.has_value();
    if (!chosen)
        return;
    std::string path = UpToNul(*std::move(chosen));
    if (!path.empty())
        FileName = std::move(path);
    lastFolder_ = mAppCommon::FolderPart(FileName);
}

void cCommonDialog::ShowSaveDialog(platform::WindowHandle lngOwnerFormHwnd,
                                   std::string_view strFileName, std::string_view strTitle,
                                   std::string_view filter) {
    Confirmed = false;
    platform::Dialogs::OpenRequest request;
    request.owner = lngOwnerFormHwnd;
    request.filter = filter;
    request.fileName = strFileName;
    request.initialFolder = lastFolder_;
    request.title = strTitle;
    request.flags = kSaveFlags;
    request.bufferSize = CharacterCount(strFileName) + kRoomForPath;
    request.recordSize = RecordSize();
    std::optional<platform::Dialogs::SaveAnswer> chosen = dialogs_.SaveFile(request);
    Confirmed = chosen.has_value() && !UpToNul(chosen->path).empty();
    if (!Confirmed)
        return;
    FileName = UpToNul(std::move(chosen->path));
    FilterIndex = chosen->filter;
    lastFolder_ = mAppCommon::FolderPart(FileName);
}

void cCommonDialog::ShowColorDialog(platform::WindowHandle lngOwnerFormHwnd,
                                    std::int32_t lngIntialColor, std::string_view strRegName) {
    Confirmed = false;
    std::int32_t initial = lngIntialColor;
    if (!strRegName.empty() && initial < 0)
        initial = RegisteredColor(strRegName, initial);
    const std::optional<std::uint32_t> chosen =
        dialogs_.ChooseColor({.owner = lngOwnerFormHwnd,
                              .initial = static_cast<std::uint32_t>(initial),
                              .flags = kRgbInit | kSolidColor | kAnyColor},
                             customColors_);
    Confirmed = chosen.has_value();
    if (chosen)
        Color = static_cast<std::int32_t>(*chosen);
}

std::int32_t cCommonDialog::RegisteredColor(std::string_view name, std::int32_t otherwise) const {
    const std::string value = registry_.ReadValue("HKEY_CURRENT_USER\\Control Panel\\Colors", name);
    std::int32_t color = otherwise;
    // A value that holds no three numbers counts as absent.
    Attempt([&] {
        std::vector<std::string> parts = Split(value, ' ');
        std::erase(parts, "");
        if (common_.IsNoValue(value) || parts.size() < 3)
            return;
        color = static_cast<std::int32_t>(ColorPart(parts[0]) | (ColorPart(parts[1]) << 8U) |
                                          (ColorPart(parts[2]) << 16U));
    });
    return color;
}

void cCommonDialog::ShowFontDialog(platform::WindowHandle lngOwnerFormHwnd) {
    Confirmed = false;
    const std::optional<platform::Dialogs::FontAnswer> chosen = dialogs_.ChooseFont(
        {.owner = lngOwnerFormHwnd,
         .name = std::string(FirstCharacters(FontName, kLongestFaceName)),
         .size = static_cast<double>(FontSize),
         .characterSet = FontScript,
         .weight = (FontStyle & kBold) != 0 ? kBoldWeight : kNormalWeight,
         .italic = (FontStyle & kItalic) != 0,
         .strikethrough = (FontStyle & kStrikethrough) != 0,
         .underline = (FontStyle & kUnderline) != 0,
         .flags = kScreenFonts | kInitToLogFont | kEffects | kLimitSize | kForceFontExist,
         .minimum = kSmallestFont,
         .maximum = kLargestFont,
         .color = 0});
    Confirmed = chosen.has_value();
    if (!chosen)
        return;
    FontName = UpToNul(chosen->name);
    FontSize = RoundToLong(chosen->tenthsOfPoints / 10.0);
    FontScript = chosen->characterSet;
    FontStyle = (chosen->weight == kBoldWeight ? kBold : 0) | (chosen->italic ? kItalic : 0) |
                (chosen->strikethrough ? kStrikethrough : 0) | (chosen->underline ? kUnderline : 0);
}

}  // namespace ordalyn
