// InputHistory: what was typed into a box of a dialog before, kept in the program's settings file
// from run to run. In memory a history is the list of its combo box, newest first; in the file it
// is the entries <key>1 (newest), <key>2, ... of the section "Ordalyn".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/Form.h"

namespace ordalyn {

class cProfile;
class mAppCommon;
class InterfaceStrings;

class InputHistory {
  public:
    InputHistory(cProfile& profile, const mAppCommon& common, const InterfaceStrings& strings)
        : profile_(profile), common_(common), strings_(strings) {}

    // What the settings file holds, newest first. Numbers that are missing are passed over.
    std::vector<std::string> Texts(std::string_view strKey, int intMax) const;
    // Appends that to the box's list and empties the box.
    void LoadHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax);
    // Puts the box's text on top of its list and writes the whole list at once, so that it survives
    // whatever happens next. An empty text and one that the list holds in any letter case change
    // nothing: the older item keeps its place. The oldest item gives way when the list is full.
    void AddToHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax);
    // Asks first; answers whether the user agreed. Then the list, the box and the entries of the
    // settings file are empty. Shows a message box: whatever events can change may have changed on
    // return.
    bool ClearHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax,
                      toolkit::Form& owner);

  private:
    static std::string EntryName(std::string_view key, int number);

    cProfile& profile_;
    const mAppCommon& common_;
    const InterfaceStrings& strings_;
};

}  // namespace ordalyn
