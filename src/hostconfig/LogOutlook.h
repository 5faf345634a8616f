// What stands in the way of the file manager's log while none can be shown: the one thing that the
// user can do something about.
#pragma once

#include <string>

#include "platform/Platform.h"

namespace ordalyn {

class cProfile;
class mAppCommon;
class TotalCommanderLocator;

enum class LogState {
    NoFileManager,  // neither its folder nor its settings file is known
    NoSettings,     // its folder is known, its settings file is not
    NotLogging,     // it writes no log: logging is off, or its settings name no file for it
    NotYetThere,    // it begins the log with the next operation
    NoFolder,       // the drive or folder that the log is to be in is not there
    NoSuchFile,     // the program was started with a file that does not exist
    Empty,
    Unreadable,  // there is something in the file, or it is a folder
};

struct LogOutlook {
    LogState state = LogState::NoFileManager;
    std::string path;  // the log's; empty when none is named

    bool operator==(const LogOutlook&) const = default;
};

// As things are now, once the locator has found what there is to be found. A program that was
// started with a file is about that file, whatever the file manager does.
LogOutlook LookForLog(const TotalCommanderLocator& locator, const mAppCommon& common,
                      cProfile& profile, const platform::Services& services);

}  // namespace ordalyn
