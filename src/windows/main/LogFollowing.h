// LogFollowing: while a log is followed, what the file manager adds to it appears by itself. The
// log is looked at when its folder is said to have changed, and now and then besides: a watch tells
// nothing of a network, nor of a program that keeps the file open. What has changed is read as
// Refresh reads it, but nothing moves under the user and nothing is reported.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Platform.h"
#include "toolkit/Form.h"
#include "toolkit/Timer.h"
#include "windows/common/SharedObjects.h"
#include "windows/main/LogFileReading.h"
#include "windows/main/LogFileSet.h"

namespace ordalyn {

class LogFollowing {
  public:
    struct Controls {
        toolkit::Form& form;
        toolkit::ComboBox& cboDate;
        toolkit::ComboBox& cboFiles;
        toolkit::MenuItem& mnuViewFollow;
    };

    // `awaited` returns the path of a log that is to be shown as soon as there is one, while none
    // is shown, and otherwise nothing. As the settings say. Nothing is looked at while the user
    // cannot use the form (toolkit/Timer.h) or has one of its lists open: what came meanwhile is
    // read afterwards.
    LogFollowing(SharedObjects& shared, const Controls& controls, LogFileReading& reading,
                 LogFileSet& files, std::function<std::string()> awaited);

    // View > Follow the Log; remembered.
    void Toggle();
    void Stop() { timer_.Stop(); }

  private:
    // What tells whether the log has changed.
    struct Look {
        std::optional<platform::FileStamp> stamp;
        std::optional<std::uint64_t> size;
        bool operator==(const Look&) const = default;
    };

    void ShowState();
    void TimeHasPassed();
    void Begin(const std::string& path);
    void ReadWhatIsNew();

    SharedObjects& shared_;
    Controls controls_;
    LogFileReading& reading_;
    LogFileSet& files_;
    std::function<std::string()> awaited_;
    toolkit::Timer timer_;
    std::string path_;    // the log that is followed; empty when none is
    bool waits_ = false;  // for that log: it is not shown yet
    std::unique_ptr<platform::FolderWatch> watch_;
    Look seen_;          // what the log was like when it was read
    int untilLook_ = 0;  // how often time has to pass before the next look
};

}  // namespace ordalyn
