#include "settings/cDefaultStrings.h"

#include "base/Text.h"

namespace ordalyn {

namespace {

// clang-format off
constexpr std::string_view kTable[] = {
    "101=&File",
    "103=&Open...",
    "107=&Recent Files",
    "108=No Recent Files",
    "109=Clear List",
    "110=E&xit",
    "141=&View",
    "143=Status &Bar",
    "145=&Vertical Panels",
    "150=&Options...",
    "161=&Help",
    "162=Help &Topics",
    "163=&About...",
    "250=&Search",
    "251=&Find...",
    "252=Find &Next",
    "253=Find",
    "254=&Find what:",
    "255=Search in:",
    "258=Match whole word &only",
    "259=Cannot find",
    "1001=Options",
    "1002=Layout",
    "1006=Language",
    "1008=OK",
    "1009=Cancel",
    "1010=&Apply",
    "1021=Visual effects:",
    "1024=Show &grid lines",
    "1025=Fixed &borders",
    "1026=&Flat user interface",
    "1044=&Change...",
    "1051=Text:",
    "1052=Foreground",
    "1053=Background",
    "1065=Font:",
    "1089=Change language:",
    "1090=Use &default language",
    "1091=&Other",
    "1501=About",
    "1502=Programmed by:",
    "1503=Version:",
    "1505=For the latest information on this program please visit the program home page.",
    "1506=Web site:",
    "1507=e-mail:",
    "1508=Visit now",
    "1605=Open",
    "3009=Are you sure?",
    "3015=There is an error in file",
    "3016=Line:",
    "3021=Cannot find this file",
    "3022=Please verify that the correct path and file name are given.",
    "3046=Cannot find Total Commander settings file [Wincmd.ini]",
    "3048=Cannot find language file!",
    "3056=File not found.",
    "3250=Reading... Please wait.",
    "4000=Time",
    "4001=Source",
    "4002=Target",
    "4003=&Source",
    "4004=&Target",
    "4005=All dates",
    "4006=All files",
    "4010=%i Operation(s)",
    "4015=&Long date format",
    "4016=&Selected date only",
    "4020=&Refresh",
    "4021=&Two Panels",
    "4022=Copy &Source",
    "4023=Copy &Target",
    "4030=Filte&r...",
    "4031=Filter",
    "4032=Filter: ",
    "4033=Contains",
    "4034=Does not contain",
    "4035=Apply filter",
    "4050=Cannot find Total Commander log file.",
    "4051=Lines passed over that are not lines of a log:",
    "4052=The first one is line:",
    "4053=There is not enough memory for this log:",
    "5100=Date",
    "5101=Log file",
    "5102=Condition",
    "5103=Language file",
    "5104=The settings could not be kept in this file:",
    "5110=File &History...",
    "5111=&History of Source",
    "5112=H&istory of Target",
    "5113=File History",
    "5114=&File or folder:",
    "5115=&Show History",
    "5116=&Which of them:",
    "5117=%n of %c: %f to %t",
    "5118=Last seen at %p on %d",
    "5119=Moved once, last seen at %p on %d",
    "5120=Moved %n times, last seen at %p on %d",
    "5121=%s, deleted on %d",
    "5122=%s, replaced by another one on %d",
    "5123=Deleted at %p on %d",
    "5124=All operations at %p failed",
    "5125=No operation with %p was found",
    "5126=Please enter the whole path, with its drive or network folder",
    "5127=Older log files have not been read.",
    "5128=Read &All Files",
    "5129=Close",
    "5130=From",
    "5131=To",
    "5132=Outcome",
    "5133=The filter hides this entry. Clear the filter?",
    "5134=Operation",
    "5140=&Calendar",
    "5141=Calendar",
    "5142=&Previous Year",
    "5143=&Next Year",
    "5144=%d: %i operation(s)",
    "5145=%d: %i operation(s), %f of them failed",
    "5146=%d: no operations",
    "5147=There are no operations to show.",
    "5148=The days of this log cannot be told.",
    "5149=Operations left out because their day cannot be told: %i",
    "5150=Fewer",
    "5151=More",
    "5152=Something failed",
    "5155=&Save Shown Rows As...",
    "5156=Copy &Rows",
    "5157=Save shown rows as",
    "5158=Text separated by tabs",
    "5159=Comma-separated values",
    "5160=Saving... Please wait.",
    "5161=The rows could not be saved in this file:",
    "5162=There is not enough room on the drive.",
    "5163=You have no right to write there.",
    "5164=Another program is using the file.",
    "5165=This file is one of the file manager's logs and stays as it is. Choose another name:",
    "5166=Operation",
    "5167=Failed Operations O&nly",
    "5168=%i failed operation(s)",
    "5175=Show Source in the &File Manager",
    "5176=Show Target in the File &Manager",
    "5177=This path does not exist:",
    "5178=Show %i instead?",
    "5179=This path holds a sign that no path can have:",
    "5180=Only the file manager can show this path, and its program was not found:",
    "5181=Follow the &Log",
};
// clang-format on

}  // namespace

std::span<const std::string_view> cDefaultStrings::BuiltInTable() {
    return kTable;
}

cDefaultStrings::cDefaultStrings() : cDefaultStrings(BuiltInTable()) {}

cDefaultStrings::cDefaultStrings(std::span<const std::string_view> table)
    : entries_(table.begin(), table.end()) {}

std::string cDefaultStrings::GetDefaultString(std::int32_t lngID) const {
    const std::string key = std::to_string(lngID);
    for (const std::string_view entry : entries_) {
        const std::size_t equals = entry.find('=');
        if (equals != std::string_view::npos && EqualsIgnoreCase(entry.substr(0, equals), key))
            return std::string(entry.substr(equals + 1));
    }
    return {};
}

}  // namespace ordalyn
