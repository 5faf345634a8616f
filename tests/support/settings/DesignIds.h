// The string ids that the forms' designs carry, and a check of a form against them:
//
//     EXPECT_THAT(test::DesignIdFaults(form), testing::IsEmpty());
#pragma once

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "toolkit/Form.h"

namespace ordalyn::test {

struct DesignId {
    std::string_view form;
    std::string_view element;  // empty: the form itself
    std::string_view id;
    int index = -1;  // place in a control array; for a tab strip: the tab's number
};

inline constexpr DesignId kDesignIds[] = {
    {"frmMain", "cmdChooseSettings", "5184"},
    {"frmMain", "cmdLookAgain", "5196"},
    {"frmMain", "cmdOpenLog", "5197"},
    {"frmMain", "cmdFollowLog", "5198"},
    {"frmMain", "mnuFile", "101"},
    {"frmMain", "mnuFileOpen", "103"},
    {"frmMain", "mnuFileRecentGroup", "107"},
    {"frmMain", "mnuFileRecentFiles", "108"},
    {"frmMain", "mnuFileExit", "110"},
    {"frmMain", "mnuFileSaveRows", "5155"},
    {"frmMain", "mnuSearch", "250"},
    {"frmMain", "mnuSearchFind", "251"},
    {"frmMain", "mnuSearchFindNext", "252"},
    {"frmMain", "mnuSearchFilter", "4030"},
    {"frmMain", "mnuSearchHistory", "5110"},
    {"frmMain", "mnuView", "141"},
    {"frmMain", "mnuViewStatusBar", "143"},
    {"frmMain", "mnuViewTwoPanels", "4021"},
    {"frmMain", "mnuViewVerticalPanels", "145"},
    {"frmMain", "mnuViewRefresh", "4020"},
    {"frmMain", "mnuViewOptions", "150"},
    {"frmMain", "mnuViewFailedOnly", "5167"},
    {"frmMain", "mnuViewCalendar", "5140"},
    {"frmMain", "mnuViewFollow", "5181"},
    {"frmMain", "mnuHelp", "161"},
    {"frmMain", "mnuHelpHelpTopics", "162"},
    {"frmMain", "mnuHelpAbout", "163"},
    {"frmMain", "mnuContextCopySource", "4022"},
    {"frmMain", "mnuContextCopyTarget", "4023"},
    {"frmMain", "mnuContextCopyRows", "5156"},
    {"frmMain", "mnuContextHistorySource", "5111"},
    {"frmMain", "mnuContextHistoryTarget", "5112"},
    {"frmMain", "mnuContextShowSource", "5175"},
    {"frmMain", "mnuContextShowTarget", "5176"},
    {"frmSearchFor", "", "253"},
    {"frmSearchFor", "Label1", "254"},
    {"frmSearchFor", "cmdFindNext", "252"},
    {"frmSearchFor", "cmdCancel", "1009"},
    {"frmSearchFor", "Frame1", "255"},
    {"frmSearchFor", "chkWholeWord", "258"},
    {"frmSearchFor", "cmdClearList", "109"},
    {"frmSearchFor", "optColumn", "4003", 0},
    {"frmSearchFor", "optColumn", "4004", 1},
    {"frmSearchFor", "chkSelectedDate", "4016"},
    {"frmHistory", "", "5113"},
    {"frmHistory", "lblPath", "5114"},
    {"frmHistory", "cmdShow", "5115"},
    {"frmHistory", "lblLives", "5116"},
    {"frmHistory", "lblOlderLogs", "5127"},
    {"frmHistory", "cmdReadAll", "5128"},
    {"frmHistory", "cmdClose", "5129"},
    {"frmFilters", "", "4031"},
    {"frmFilters", "cmdCancel", "1009"},
    {"frmOptions", "", "1001"},
    {"frmOptions", "cmdOK", "1008"},
    {"frmOptions", "cmdCancel", "1009"},
    {"frmOptions", "cmdApply", "1010"},
    {"frmOptions", "Frame1", "1021"},
    {"frmOptions", "chkGridLines", "1024"},
    {"frmOptions", "chkFixedBorders", "1025"},
    {"frmOptions", "chkFlatUserInterface", "1026"},
    {"frmOptions", "chkLongDate", "4015"},
    {"frmOptions", "Frame3", "1065"},
    {"frmOptions", "cmdChangeFont", "1044"},
    {"frmOptions", "Frame7", "1051"},
    {"frmOptions", "Label3", "1052"},
    {"frmOptions", "Label4", "1053"},
    {"frmOptions", "Frame4", "1089"},
    {"frmOptions", "optUseDefaultLanguage", "1090"},
    {"frmOptions", "optUseOtherLanguage", "1091"},
    {"frmOptions", "tbsOptions", "1002", 1},
    {"frmOptions", "tbsOptions", "1006", 2},
    {"frmProgress", "cmdCancel", "1009"},
    {"frmCalendar", "", "5141"},
    {"frmCalendar", "cmdPrevious", "5142"},
    {"frmCalendar", "cmdNext", "5143"},
    {"frmCalendar", "cmdClose", "5129"},
    {"frmAbout", "", "1501"},
    {"frmAbout", "lblProgrammedBy", "1502"},
    {"frmAbout", "Label4", "1505"},
    {"frmAbout", "lblVersion", "1503"},
    {"frmAbout", "lblWebAddress", "1506"},
    {"frmAbout", "lblEmail", "1507"},
    {"frmAbout", "lblURL", "1508"},
    {"frmAbout", "cmdOK", "1008"},
};

namespace detail {

// What a form carries, in the table's terms. Menu items count with their design-time caption or,
// once the ids have been moved there, with their tag.
struct CarriedId {
    std::string element;
    int index;
    std::string id;
};

inline std::vector<CarriedId> CarriedIds(const toolkit::Form& form) {
    std::vector<CarriedId> carried;
    if (!form.Tag().empty())
        carried.push_back({"", -1, form.Tag()});
    for (const auto& control : form.Controls()) {
        if (const auto* tabs = dynamic_cast<const toolkit::TabStrip*>(control.get())) {
            for (int number = 1; number <= tabs->TabCount(); ++number)
                carried.push_back({tabs->Name(), number, tabs->TabAt(number).tag});
        } else if (!control->Tag().empty()) {
            carried.push_back({control->Name(), control->Index(), control->Tag()});
        }
    }
    for (const toolkit::MenuItem* item : form.AllMenuItems()) {
        const std::string& id = item->Tag().empty() ? item->Caption() : item->Tag();
        if (id != "-" && LeadingNumber(id) > 0)
            carried.push_back({item->Name(), -1, id});
    }
    return carried;
}

inline std::string Describe(std::string_view form, std::string_view element, int index,
                            std::string_view id) {
    std::string text(form);
    if (!element.empty())
        text += "." + std::string(element);
    if (index >= 0)
        text += "(" + std::to_string(index) + ")";
    return text + " = " + std::string(id);
}

}  // namespace detail

// One sentence for each id that the form lacks and for each one that it carries although the table
// does not say so. Tool bar buttons are not looked at.
inline std::vector<std::string> DesignIdFaults(const toolkit::Form& form,
                                               std::span<const DesignId> table = kDesignIds) {
    std::vector<std::string> faults;
    const std::vector<detail::CarriedId> carried = detail::CarriedIds(form);
    const auto same = [](const DesignId& row, const detail::CarriedId& id) {
        return row.element == id.element && row.index == id.index && row.id == id.id;
    };
    for (const DesignId& row : table) {
        const bool found = std::any_of(carried.begin(), carried.end(),
                                       [&](const auto& id) { return same(row, id); });
        if (row.form == form.Name() && !found)
            faults.push_back("missing: " +
                             detail::Describe(row.form, row.element, row.index, row.id));
    }
    for (const detail::CarriedId& id : carried) {
        const bool known = std::any_of(table.begin(), table.end(), [&](const DesignId& row) {
            return row.form == form.Name() && same(row, id);
        });
        if (!known)
            faults.push_back("unexpected: " +
                             detail::Describe(form.Name(), id.element, id.index, id.id));
    }
    return faults;
}

}  // namespace ordalyn::test
