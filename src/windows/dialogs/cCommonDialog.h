// cCommonDialog: the system's dialogs for choosing a file, a colour and a font. One instance is
// shared, so that every open dialog starts where the last one ended and the user's own colours last
// for the run. Each operation leaves its result in the fields and says in Confirmed whether there
// is one; a dialog that is cancelled (or fails) leaves all other fields as they were.
//
// The dialogs are modal to the owner, but messages are handled meanwhile: whatever events can
// change may have changed when an operation returns.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/TextSource.h"
#include "platform/Platform.h"

namespace ordalyn {

class cRegistry;
class mAppCommon;

class cCommonDialog {
  public:
    // Bits of FontStyle, as the settings file holds them.
    static constexpr std::int32_t kBold = 1, kItalic = 2, kStrikethrough = 4, kUnderline = 8;
    // The open dialog's filters. "All files" comes last in each.
    enum Filter : std::int32_t {
        kAllFiles = 0,
        kSettingsFiles = 1,
        kLanguageFiles = 2,
        kLogFiles = 3
    };

    // `text` is only asked when a dialog is shown, so what it asks may be made later.
    cCommonDialog(const platform::Services& services, const mAppCommon& common,
                  const cRegistry& registry, TextSource text);

    // Font: input and result of ShowFontDialog.
    std::string FontName;
    std::int32_t FontScript = 1;  // character set number
    std::int32_t FontStyle = 0;
    std::int32_t FontSize = 8;  // points
    std::string FileName;       // full path
    int FilterIndex = 0;        // of the save dialog
    std::int32_t Color = 0;     // 0x00BBGGRR
    bool Confirmed = false;     // the last dialog was closed with OK

    // Without a folder it starts in that of the file chosen last, without a title it bears the word
    // for "Open". Throws SubscriptOutOfRange for a filter that does not exist.
    void ShowOpenDialog(platform::WindowHandle lngOwnerFormHwnd, std::string_view strInitDir = {},
                        std::string_view strFileName = {}, std::int32_t lngFilter = kAllFiles,
                        std::string_view strTitle = {}, bool blnFileMustExist = false);
    // For a file to be written; the question before one that exists is overwritten is the dialog's.
    // `filter` is as the system's dialogs take it; which of its pairs was chosen is left in
    // FilterIndex, from 0.
    void ShowSaveDialog(platform::WindowHandle lngOwnerFormHwnd, std::string_view strFileName,
                        std::string_view strTitle, std::string_view filter);
    // A negative initial colour stands for a system colour. `strRegName` is that one's name in the
    // user's settings; the dialog then starts with the colour that they hold.
    void ShowColorDialog(platform::WindowHandle lngOwnerFormHwnd, std::int32_t lngIntialColor,
                         std::string_view strRegName = {});
    // Sizes from 8 to 72 points. A font comes back as bold at the weight of 700 alone: one that is
    // heavier still is not the bold face of its family.
    void ShowFontDialog(platform::WindowHandle lngOwnerFormHwnd);

  private:
    std::size_t RecordSize() const;
    std::int32_t RegisteredColor(std::string_view name, std::int32_t otherwise) const;

    platform::Dialogs& dialogs_;
    const mAppCommon& common_;
    const cRegistry& registry_;
    TextSource text_;
    std::string lastFolder_;
    std::uint32_t customColors_[16] = {};
};

}  // namespace ordalyn
