// The texts that the program shows, by name. A text's number is its key in the language files; the
// built-in English texts are in settings/cDefaultStrings.cpp.
#pragma once

#include <cstdint>
#include <string_view>

namespace ordalyn {

// A text's number, also in digits, as the designs of forms name it.
struct TextId {
    const char* tag;
    std::int32_t number;

    consteval TextId(const char* digits) : tag(digits), number(0) {
        for (const char digit : std::string_view(digits))
            number = number * 10 + (digit - '0');
    }
    constexpr operator std::int32_t() const { return number; }
};

namespace text_id {

// The menus.
inline constexpr TextId kFileMenu{"101"};
inline constexpr TextId kOpenFile{"103"};
inline constexpr TextId kRecentFiles{"107"};
inline constexpr TextId kNoRecentFiles{"108"};
inline constexpr TextId kClearList{"109"};
inline constexpr TextId kExit{"110"};
inline constexpr TextId kViewMenu{"141"};
inline constexpr TextId kStatusBar{"143"};
inline constexpr TextId kVerticalPanels{"145"};
inline constexpr TextId kOptionsItem{"150"};
inline constexpr TextId kHelpMenu{"161"};
inline constexpr TextId kHelpTopics{"162"};
inline constexpr TextId kAboutItem{"163"};
inline constexpr TextId kSearchMenu{"250"};
inline constexpr TextId kFind{"251"};
inline constexpr TextId kFindNext{"252"};
inline constexpr TextId kRefresh{"4020"};
inline constexpr TextId kTwoPanels{"4021"};
inline constexpr TextId kCopySource{"4022"};
inline constexpr TextId kCopyTarget{"4023"};
inline constexpr TextId kFilterItem{"4030"};
inline constexpr TextId kFollowLog{"5181"};
inline constexpr TextId kShowSource{"5175"};
inline constexpr TextId kShowTarget{"5176"};

// The find dialog and its message.
inline constexpr TextId kFindTitle{"253"};
inline constexpr TextId kFindWhat{"254"};
inline constexpr TextId kSearchIn{"255"};
inline constexpr TextId kWholeWordOnly{"258"};
inline constexpr TextId kCannotFind{"259"};
inline constexpr TextId kSourceOption{"4003"};
inline constexpr TextId kTargetOption{"4004"};
inline constexpr TextId kSelectedDateOnly{"4016"};

// The filter dialog and its tool bar.
inline constexpr TextId kFilterTitle{"4031"};
inline constexpr TextId kContains{"4033"};
inline constexpr TextId kDoesNotContain{"4034"};
inline constexpr TextId kApplyFilter{"4035"};

// The options dialog.
inline constexpr TextId kOptionsTitle{"1001"};
inline constexpr TextId kLayoutPage{"1002"};
inline constexpr TextId kLanguagePage{"1006"};
inline constexpr TextId kApply{"1010"};
inline constexpr TextId kVisualEffects{"1021"};
inline constexpr TextId kGridLines{"1024"};
inline constexpr TextId kFixedBorders{"1025"};
inline constexpr TextId kFlatInterface{"1026"};
inline constexpr TextId kChangeFont{"1044"};
inline constexpr TextId kTextColors{"1051"};
inline constexpr TextId kForeground{"1052"};
inline constexpr TextId kBackground{"1053"};
inline constexpr TextId kFontName{"1065"};
inline constexpr TextId kChangeLanguage{"1089"};
inline constexpr TextId kDefaultLanguage{"1090"};
inline constexpr TextId kOtherLanguage{"1091"};
inline constexpr TextId kLongDateFormat{"4015"};

// The about box.
inline constexpr TextId kAboutTitle{"1501"};
inline constexpr TextId kProgrammedBy{"1502"};
inline constexpr TextId kVersion{"1503"};
inline constexpr TextId kLatestInformation{"1505"};
inline constexpr TextId kWebSite{"1506"};
inline constexpr TextId kEmail{"1507"};
inline constexpr TextId kVisitNow{"1508"};

// Buttons, questions and messages that windows share.
inline constexpr TextId kOk{"1008"};
inline constexpr TextId kCancel{"1009"};
inline constexpr TextId kOpenTitle{"1605"};
inline constexpr TextId kAreYouSure{"3009"};
inline constexpr TextId kErrorInFile{"3015"};
inline constexpr TextId kLine{"3016"};
inline constexpr TextId kCannotFindFile{"3021"};
inline constexpr TextId kVerifyPath{"3022"};
inline constexpr TextId kNoCommanderSettings{"3046"};
inline constexpr TextId kFileNotFound{"3056"};
inline constexpr TextId kReading{"3250"};
inline constexpr TextId kNoCommanderLog{"4050"};
inline constexpr TextId kLinesPassedOver{"4051"};
inline constexpr TextId kFirstPassedOver{"4052"};
inline constexpr TextId kNotEnoughMemory{"4053"};
inline constexpr TextId kSettingsNotKept{"5104"};
inline constexpr TextId kPathMissing{"5177"};
inline constexpr TextId kShowInstead{"5178"};
inline constexpr TextId kPathUnusable{"5179"};
inline constexpr TextId kOnlyFileManager{"5180"};

// The main window: columns, lists and status bar.
inline constexpr TextId kTime{"4000"};
inline constexpr TextId kSource{"4001"};
inline constexpr TextId kTarget{"4002"};
inline constexpr TextId kAllDates{"4005"};
inline constexpr TextId kAllFiles{"4006"};
inline constexpr TextId kOperations{"4010"};
inline constexpr TextId kFilterStatus{"4032"};

// The history of a file or folder, and how to get there.
inline constexpr TextId kHistoryItem{"5110"};
inline constexpr TextId kHistoryOfSource{"5111"};
inline constexpr TextId kHistoryOfTarget{"5112"};
inline constexpr TextId kHistoryTitle{"5113"};
inline constexpr TextId kHistoryPath{"5114"};
inline constexpr TextId kShowHistory{"5115"};
inline constexpr TextId kWhichLife{"5116"};
inline constexpr TextId kOneOfLives{"5117"};
inline constexpr TextId kLastSeen{"5118"};
inline constexpr TextId kMovedOnce{"5119"};
inline constexpr TextId kMovedTimes{"5120"};
inline constexpr TextId kThenDeleted{"5121"};
inline constexpr TextId kThenReplaced{"5122"};
inline constexpr TextId kWasDeleted{"5123"};
inline constexpr TextId kOnlyFailures{"5124"};
inline constexpr TextId kNoHistory{"5125"};
inline constexpr TextId kNoWholePath{"5126"};
inline constexpr TextId kOlderLogs{"5127"};
inline constexpr TextId kReadAllFiles{"5128"};
inline constexpr TextId kClose{"5129"};
inline constexpr TextId kMovedFrom{"5130"};
inline constexpr TextId kMovedTo{"5131"};
inline constexpr TextId kOutcome{"5132"};
inline constexpr TextId kClearFilterToShow{"5133"};
inline constexpr TextId kOperation{"5134"};

// What parts without a text of their own are called by programs that speak the screen.
inline constexpr TextId kDateName{"5100"};
inline constexpr TextId kLogFileName{"5101"};
inline constexpr TextId kConditionName{"5102"};
inline constexpr TextId kLanguageFileName{"5103"};

// Taking rows along.
inline constexpr TextId kSaveRows{"5155"};
inline constexpr TextId kCopyRows{"5156"};
inline constexpr TextId kSaveRowsTitle{"5157"};
inline constexpr TextId kTabSeparated{"5158"};
inline constexpr TextId kCommaSeparated{"5159"};
inline constexpr TextId kSavingRows{"5160"};
inline constexpr TextId kRowsNotSaved{"5161"};
inline constexpr TextId kDiskFull{"5162"};
inline constexpr TextId kNoRightToWrite{"5163"};
inline constexpr TextId kFileInUse{"5164"};
inline constexpr TextId kIsLogFile{"5165"};

// What went wrong.
inline constexpr TextId kFailedOnly{"5167"};
inline constexpr TextId kFailedOperations{"5168"};
// The calendar.
inline constexpr TextId kCalendarItem{"5140"};
inline constexpr TextId kCalendarTitle{"5141"};
inline constexpr TextId kPreviousYear{"5142"};
inline constexpr TextId kNextYear{"5143"};
inline constexpr TextId kDayOperations{"5144"};
inline constexpr TextId kDayFailed{"5145"};
inline constexpr TextId kDayWithout{"5146"};
inline constexpr TextId kNoDays{"5147"};
inline constexpr TextId kNoKnownDays{"5148"};
inline constexpr TextId kDaysLeftOut{"5149"};
inline constexpr TextId kFewerOperations{"5150"};
inline constexpr TextId kMoreOperations{"5151"};
inline constexpr TextId kSomethingFailed{"5152"};

// What to do while no log is shown.
inline constexpr TextId kFileManagerNotFound{"5182"};
inline constexpr TextId kWhereSettingsAre{"5183"};
inline constexpr TextId kChooseSettings{"5184"};
inline constexpr TextId kWritesNoLog{"5185"};
inline constexpr TextId kSwitchLogOn{"5186"};
inline constexpr TextId kLogNotYetThere{"5187"};
inline constexpr TextId kLogBeginsLater{"5188"};
inline constexpr TextId kLogShowsItself{"5189"};
inline constexpr TextId kLogIsEmpty{"5190"};
inline constexpr TextId kLogFolderMissing{"5191"};
inline constexpr TextId kConnectDrive{"5192"};
inline constexpr TextId kNoSuchFile{"5193"};
inline constexpr TextId kLogNotReadable{"5194"};
inline constexpr TextId kWhyNotReadable{"5195"};
inline constexpr TextId kLookAgain{"5196"};
inline constexpr TextId kOpenLogFile{"5197"};
inline constexpr TextId kFollowThisLog{"5198"};
inline constexpr TextId kSettingsNotFound{"5199"};

}  // namespace text_id

}  // namespace ordalyn
