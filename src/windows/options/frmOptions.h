// frmOptions: the options dialog, with a page for the look of the main window and one for the
// interface language. It works on the settings in memory; Apply and OK copy the dialog into them,
// have the main window show them and write them to the settings file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "settings/mAppSpecific.h"
#include "toolkit/Form.h"
#include "windows/common/Texts.h"
#include "windows/dialogs/cCommonDialog.h"

namespace ordalyn {

class frmOptions : public toolkit::Form {
  public:
    struct Surroundings {
        Texts texts;
        mAppSpecific& settings;
        cCommonDialog& commonDialog;
        std::string programFolder;  // with a trailing backslash
        // Whether a path is the mark of a setting that is absent.
        std::function<bool(const std::string&)> isNoValue;
        // The main window's.
        std::function<void()> applySettings;                         // shows the settings
        std::function<void(std::int32_t lngLd)> applyNewDateFormat;  // non-zero: long dates
        std::function<void()> refreshMainWindow;                     // repaints it
    };

    frmOptions(toolkit::Toolkit& toolkit, Surroundings surroundings);

  private:
    void LoadFromSettings();
    void ShowLanguageSource();
    void PaintPages();
    void ArrangePages();
    toolkit::Twips PageOffset();
    void WirePages();
    void WireControls();
    void ShowPage(int tab);
    void ChooseLanguageSource();
    void BrowseForLanguageFile();
    void ChangeColor(int index);
    void ChangeFont();
    void ApplyOptions();
    toolkit::CheckBox& Box(const char* name) { return Get<toolkit::CheckBox>(name); }
    toolkit::Label& ColorLabel(int index) { return Get<toolkit::Label>("lblColorChange", index); }

    Surroundings around_;
    toolkit::TabStrip& tbsOptions;
    toolkit::OptionButton& optUseDefaultLanguage;
    toolkit::OptionButton& optUseOtherLanguage;
    toolkit::TextBox& txtLanguageFilePath;
    toolkit::CommandButton& cmdBrowseForLangFile;
    toolkit::CommandButton& cmdApply;
};

}  // namespace ordalyn
