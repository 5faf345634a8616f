// TextHistory: what was typed into a box of a dialog before, newest first. In the settings file a
// history is the entries <key>1 (newest), <key>2, ... of the section "Ordalyn".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ordalyn {

class cProfile;
class mAppCommon;

class TextHistory {
  public:
    TextHistory(cProfile& profile, const mAppCommon& common) : profile_(profile), common_(common) {}

    // Numbers that are missing are passed over.
    std::vector<std::string> Read(std::string_view strKey, int intMax) const;
    // Entries behind the last item stay as they are. Blanks at the ends of an item are kept.
    void Write(std::string_view strKey, const std::vector<std::string>& items);
    void Delete(std::string_view strKey, int intMax);

  private:
    cProfile& profile_;
    const mAppCommon& common_;
};

}  // namespace ordalyn
