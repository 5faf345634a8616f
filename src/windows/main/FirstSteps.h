// FirstSteps: while no log is shown, what stands in the way of it and what to do about it, in the
// place of the panels: a headline, a sentence or two, and the buttons that do it.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "hostconfig/LogOutlook.h"
#include "hostconfig/TotalCommanderLocator.h"
#include "platform/Platform.h"
#include "toolkit/Form.h"
#include "windows/common/SharedObjects.h"
#include "windows/main/LogFileReading.h"
#include "windows/main/MainWindowLayout.h"
#include "windows/panels/DayPanels.h"

namespace ordalyn {

class FirstSteps {
  public:
    struct Parts {
        MainWindowLayout& layout;
        DayPanels& panels;
        LogFileReading& reading;
        TotalCommanderLocator& locator;
        toolkit::ListView& SourceListView;
    };

    FirstSteps(SharedObjects& shared, toolkit::Form& mainWindow, const Parts& parts);

    // The user has chosen the file manager's settings file, which names the log.
    toolkit::Event<> SettingsFileChosen;

    // The log has been looked for, and perhaps read. Nothing is shown before that.
    void LogWasLookedFor();
    // Something has changed that decides what is shown, or whether anything is.
    void Update();
    // Font and colours of the settings.
    void LoadInterface();
    // The log that is to be shown as soon as there is something in it; empty when nobody waits for
    // one. Sees what the file manager has changed in its settings since it was asked last.
    std::string AwaitedLog();

  private:
    static constexpr std::size_t kMostButtons = 2;
    using Buttons = std::array<toolkit::CommandButton*, kMostButtons>;

    LogOutlook Look();
    void ShowTexts();
    Buttons ButtonsFor(LogState state) const;
    void ShowButtons(const Buttons& buttons);
    void Show();
    void Hide();
    void Arrange();
    void PlaceButtons(toolkit::Rect column, bool oneBelowTheOther);
    void ChooseSettings();
    std::optional<platform::FileStamp> SettingsStamp() const;
    toolkit::Twips Enlarged(toolkit::Twips length) const;
    bool Follows() const { return shared_.settings->FollowLog != 0; }

    SharedObjects& shared_;
    toolkit::Form& mainWindow_;
    Parts parts_;
    toolkit::PictureBox& picFirstSteps;
    toolkit::Label& lblHeadline;
    toolkit::Label& lblLogPath;
    toolkit::Label& lblAdvice;
    toolkit::CommandButton& cmdChooseSettings;
    toolkit::CommandButton& cmdLookAgain;
    toolkit::CommandButton& cmdOpenLog;
    toolkit::CommandButton& cmdFollowLog;

    bool lookedFor_ = false;
    bool shown_ = false;
    bool focusGoesToPanel_ = false;  // once the window is the active one
    LogOutlook outlook_;
    Buttons buttons_ = {};  // those that are shown, null behind the last one
    std::optional<platform::FileStamp> settingsStamp_;
};

}  // namespace ordalyn
