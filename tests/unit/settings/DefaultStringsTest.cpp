#include "settings/cDefaultStrings.h"

#include <gmock/gmock.h>

#include <array>

#include "base/Text.h"

namespace ordalyn {
namespace {

TEST(DefaultStrings, ATextIsFoundByItsId) {
    const cDefaultStrings strings;
    EXPECT_EQ(strings.GetDefaultString(101), "&File");
    EXPECT_EQ(strings.GetDefaultString(3048), "Cannot find language file!");
    EXPECT_EQ(strings.GetDefaultString(4010), "%i Operation(s)");
    EXPECT_EQ(strings.GetDefaultString(4050), "Cannot find Total Commander log file.");
}

TEST(DefaultStrings, TheFilterTextKeepsItsTrailingBlank) {
    EXPECT_EQ(cDefaultStrings().GetDefaultString(4032), "Filter: ");
}

TEST(DefaultStrings, AnIdThatTheTableLacksIsEmpty) {
    const cDefaultStrings strings;
    EXPECT_EQ(strings.GetDefaultString(102), "");
    EXPECT_EQ(strings.GetDefaultString(0), "");
    EXPECT_EQ(strings.GetDefaultString(-101), "");
    EXPECT_EQ(strings.GetDefaultString(10), "");  // only a beginning of other ids
}

TEST(DefaultStrings, ATextMayHoldAnEqualsSign) {
    constexpr std::array<std::string_view, 1> table = {"7=a=b=c"};
    EXPECT_EQ(cDefaultStrings(table).GetDefaultString(7), "a=b=c");
}

TEST(DefaultStrings, TheFirstOfTwoEntriesWithOneIdCounts) {
    constexpr std::array<std::string_view, 3> table = {"6=x", "7=first", "7=second"};
    EXPECT_EQ(cDefaultStrings(table).GetDefaultString(7), "first");
}

TEST(DefaultStrings, TheTableIsOrderedAndHasEachIdOnce) {
    std::int32_t before = 0;
    for (const std::string_view entry : cDefaultStrings::BuiltInTable()) {
        const std::int32_t id = ToLong(entry.substr(0, entry.find('=')));
        EXPECT_GT(id, before);
        before = id;
    }
    EXPECT_EQ(cDefaultStrings::BuiltInTable().size(), 161U);
}

// Translators and settings files know the texts by these numbers.
struct Expected {
    std::int32_t id;
    const char* text;
};
constexpr Expected kExpected[] = {
    {101, "&File"},
    {103, "&Open..."},
    {107, "&Recent Files"},
    {108, "No Recent Files"},
    {109, "Clear List"},
    {110, "E&xit"},
    {141, "&View"},
    {143, "Status &Bar"},
    {145, "&Vertical Panels"},
    {150, "&Options..."},
    {161, "&Help"},
    {162, "Help &Topics"},
    {163, "&About..."},
    {250, "&Search"},
    {251, "&Find..."},
    {252, "Find &Next"},
    {253, "Find"},
    {254, "&Find what:"},
    {255, "Search in:"},
    {258, "Match whole word &only"},
    {259, "Cannot find"},
    {1001, "Options"},
    {1002, "Layout"},
    {1006, "Language"},
    {1008, "OK"},
    {1009, "Cancel"},
    {1010, "&Apply"},
    {1021, "Visual effects:"},
    {1024, "Show &grid lines"},
    {1025, "Fixed &borders"},
    {1026, "&Flat user interface"},
    {1044, "&Change..."},
    {1051, "Text:"},
    {1052, "Foreground"},
    {1053, "Background"},
    {1065, "Font:"},
    {1089, "Change language:"},
    {1090, "Use &default language"},
    {1091, "&Other"},
    {1501, "About"},
    {1502, "Programmed by:"},
    {1503, "Version:"},
    {1505, "For the latest information on this program please visit the program home page."},
    {1506, "Web site:"},
    {1507, "e-mail:"},
    {1508, "Visit now"},
    {1605, "Open"},
    {3009, "Are you sure?"},
    {3015, "There is an error in file"},
    {3016, "Line:"},
    {3021, "Cannot find this file"},
    {3022, "Please verify that the correct path and file name are given."},
    {3046, "Cannot find Total Commander settings file [Wincmd.ini]"},
    {3048, "Cannot find language file!"},
    {3056, "File not found."},
    {3250, "Reading... Please wait."},
    {4000, "Time"},
    {4001, "Source"},
    {4002, "Target"},
    {4003, "&Source"},
    {4004, "&Target"},
    {4005, "All dates"},
    {4006, "All files"},
    {4010, "%i Operation(s)"},
    {4015, "&Long date format"},
    {4016, "&Selected date only"},
    {4020, "&Refresh"},
    {4021, "&Two Panels"},
    {4022, "Copy &Source"},
    {4023, "Copy &Target"},
    {4030, "Filte&r..."},
    {4031, "Filter"},
    {4032, "Filter: "},
    {4033, "Contains"},
    {4034, "Does not contain"},
    {4035, "Apply filter"},
    {4050, "Cannot find Total Commander log file."},
    {4051, "Lines passed over that are not lines of a log:"},
    {4052, "The first one is line:"},
    {4053, "There is not enough memory for this log:"},
    {5100, "Date"},
    {5101, "Log file"},
    {5102, "Condition"},
    {5103, "Language file"},
    {5104, "The settings could not be kept in this file:"},
    {5110, "File &History..."},
    {5111, "&History of Source"},
    {5112, "H&istory of Target"},
    {5113, "File History"},
    {5114, "&File or folder:"},
    {5115, "&Show History"},
    {5116, "&Which of them:"},
    {5117, "%n of %c: %f to %t"},
    {5118, "Last seen at %p on %d"},
    {5119, "Moved once, last seen at %p on %d"},
    {5120, "Moved %n times, last seen at %p on %d"},
    {5121, "%s, deleted on %d"},
    {5122, "%s, replaced by another one on %d"},
    {5123, "Deleted at %p on %d"},
    {5124, "All operations at %p failed"},
    {5125, "No operation with %p was found"},
    {5126, "Please enter the whole path, with its drive or network folder"},
    {5127, "Older log files have not been read."},
    {5128, "Read &All Files"},
    {5129, "Close"},
    {5130, "From"},
    {5131, "To"},
    {5132, "Outcome"},
    {5133, "The filter hides this entry. Clear the filter?"},
    {5134, "Operation"},
    {5140, "&Calendar"},
    {5141, "Calendar"},
    {5142, "&Previous Year"},
    {5143, "&Next Year"},
    {5144, "%d: %i operation(s)"},
    {5145, "%d: %i operation(s), %f of them failed"},
    {5146, "%d: no operations"},
    {5147, "There are no operations to show."},
    {5148, "The days of this log cannot be told."},
    {5149, "Operations left out because their day cannot be told: %i"},
    {5150, "Fewer"},
    {5151, "More"},
    {5152, "Something failed"},
    {5155, "&Save Shown Rows As..."},
    {5156, "Copy &Rows"},
    {5157, "Save shown rows as"},
    {5158, "Text separated by tabs"},
    {5159, "Comma-separated values"},
    {5160, "Saving... Please wait."},
    {5161, "The rows could not be saved in this file:"},
    {5162, "There is not enough room on the drive."},
    {5163, "You have no right to write there."},
    {5164, "Another program is using the file."},
    {5165, "This file is one of the file manager's logs and stays as it is. Choose another name:"},
    {5167, "Failed Operations O&nly"},
    {5168, "%i failed operation(s)"},
    {5175, "Show Source in the &File Manager"},
    {5176, "Show Target in the File &Manager"},
    {5177, "This path does not exist:"},
    {5178, "Show %i instead?"},
    {5179, "This path holds a sign that no path can have:"},
    {5180, "Only the file manager can show this path, and its program was not found:"},
    {5181, "Follow the &Log"},
    {5182, "Total Commander was not found"},
    {5183,
     "Its settings file wincmd.ini says where the log is. Choose that file (a portable Total "
     "Commander has it in its own folder), or open a log file directly."},
    {5184, "&Choose wincmd.ini..."},
    {5185, "Total Commander writes no log"},
    {5186,
     "In Total Commander, choose Configuration > Options > Log file. Check Create log file there "
     "and, below it, the operations that are to be logged. Then come back and look again."},
    {5187, "The log is not there yet"},
    {5188,
     "Total Commander begins it with the next operation, such as copying a file. Look again then, "
     "or follow the log: it will be shown as soon as there is something in it."},
    {5189,
     "It will be shown here as soon as Total Commander has logged an operation, such as copying a "
     "file."},
    {5190, "The log is empty"},
    {5191, "The folder of the log is not there"},
    {5192,
     "Total Commander's settings name this file, but its drive or folder is missing. Connect the "
     "drive and look again, or open a log file in another place."},
    {5193, "This file does not exist"},
    {5194, "The log could not be read"},
    {5195, "Another program may be using the file, or it is no log of Total Commander."},
    {5196, "&Look Again"},
    {5197, "&Open Log File..."},
    {5198, "Follow the Lo&g"},
    {5199, "The settings of Total Commander were not found"},
};

TEST(DefaultStrings, TextsAreAsWritten) {
    const cDefaultStrings strings;
    for (const Expected& expected : kExpected)
        EXPECT_EQ(strings.GetDefaultString(expected.id), expected.text);
    EXPECT_EQ(std::size(kExpected), cDefaultStrings::BuiltInTable().size());
}

}  // namespace
}  // namespace ordalyn
