// InputHistory: what was typed into a box of a dialog before, kept in the program's settings file
// from run to run. In memory a history is the list of its combo box, newest first.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "settings/TextHistory.h"
#include "toolkit/Form.h"

namespace ordalyn {

class cProfile;
class mAppCommon;
class InterfaceStrings;

class InputHistory {
  public:
    InputHistory(cProfile& profile, const mAppCommon& common, const InterfaceStrings& strings)
        : history_(profile, common), strings_(strings) {}

    // What the settings file holds, newest first.
    std::vector<std::string> Texts(std::string_view strKey, int intMax) const {
        return history_.Read(strKey, intMax);
    }
    // Appends that to the box's list and empties the box.
    void LoadHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax);
    // Puts the box's text on top of its list and writes the whole list at once, so that it survives
    // whatever happens next. An empty text and one that the list holds in any letter case change
    // nothing: the older item keeps its place. The oldest item gives way when the list is full.
    void AddToHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax);
    // Asks first; returns whether the user agreed. Then the list, the box and the entries of the
    // settings file are empty. Shows a message box: whatever events can change may have changed on
    // return.
    bool ClearHistory(toolkit::ComboBox& cbo, std::string_view strKey, int intMax,
                      toolkit::Form& owner);

  private:
    TextHistory history_;
    const InterfaceStrings& strings_;
};

}  // namespace ordalyn
