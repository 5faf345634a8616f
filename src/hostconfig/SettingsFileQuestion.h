// SettingsFileQuestion: how the search for the file manager's settings file asks the user for it
// when it is nowhere to be found. Searching needs no window; whoever has one answers.
#pragma once

#include <string>

namespace ordalyn {

class SettingsFileQuestion {
  public:
    enum class Outcome {
        Chosen,
        Cancelled,
        ProgramEnded  // while the question was open
    };
    struct Answer {
        Outcome outcome;
        std::string path;  // when one was chosen
    };

    virtual ~SettingsFileQuestion() = default;

    // Says that there is no settings file and offers to look for one, first in `startFolder`.
    // Messages may be handled meanwhile: whatever events can change may have changed on return.
    virtual Answer AskForSettingsFile(const std::string& startFolder) = 0;
    // The same for a user who wants to look for one, and knows why.
    virtual Answer ChooseSettingsFile(const std::string& startFolder) = 0;
};

}  // namespace ordalyn
