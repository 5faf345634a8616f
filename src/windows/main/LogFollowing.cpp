#include "windows/main/LogFollowing.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "base/FileNames.h"

namespace ordalyn {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kInterval{250};
// Without being told, the log is looked at this often.
constexpr int kBetweenLooks = 3;
// A read that takes long (a large log, a slow network) is followed by a rest that is so many times
// as long, so that the window can be used in between.
constexpr int kRest = 9;
constexpr std::chrono::milliseconds kLong{500};

}  // namespace

LogFollowing::LogFollowing(SharedObjects& shared, const Controls& controls, LogFileReading& reading,
                           LogFileSet& files, std::function<std::string()> awaited)
    : shared_(shared),
      controls_(controls),
      reading_(reading),
      files_(files),
      awaited_(std::move(awaited)),
      timer_(controls.form) {
    timer_.Elapsed.Subscribe([this] { TimeHasPassed(); });
    ShowState();
}

void LogFollowing::Toggle() {
    std::int32_t& follow = shared_.settings->FollowLog;
    follow = follow == 0 ? 1 : 0;
    ShowState();
}

void LogFollowing::ShowState() {
    const bool follows = shared_.settings->FollowLog != 0;
    controls_.mnuViewFollow.SetChecked(follows);
    Begin("");
    if (follows)
        timer_.Start(static_cast<int>(kInterval.count()));
    else
        timer_.Stop();
}

// A watch keeps a drive from being taken out: only one that stays is watched.
void LogFollowing::Begin(const std::string& path) {
    path_ = path;
    watch_.reset();
    seen_ = {};
    untilLook_ = 0;
    platform::Files& files = shared_.services.files;
    if (!path.empty() && files.DriveOf(path) == platform::DriveKind::Fixed)
        watch_ = files.Watch(WithoutEndingBackslash(GetFilePath(path)));
}

void LogFollowing::TimeHasPassed() {
    waits_ = reading_.CurrentLogFile().empty();
    std::string path;
    if (waits_)
        path = awaited_();
    else if (files_.ShowsGrowingLog())
        path = reading_.CurrentLogFile();
    if (path != path_)
        Begin(path);
    if (path.empty() || controls_.cboDate.IsDroppedDown() || controls_.cboFiles.IsDroppedDown())
        return;
    const bool resting = untilLook_ > kBetweenLooks;
    const bool told = !resting && watch_ != nullptr && watch_->Changed();
    if (!told && untilLook_-- > 0)
        return;
    const auto begun = Clock::now();
    ReadWhatIsNew();
    const auto taken = Clock::now() - begun;
    untilLook_ = kBetweenLooks - 1;
    if (taken > kLong)
        untilLook_ = std::max(kBetweenLooks + 1, static_cast<int>(kRest * taken / kInterval));
}

// Looked at before it is read: what is written meanwhile is another change. A log that is missing
// or cannot be read is what it was, until it is back.
void LogFollowing::ReadWhatIsNew() {
    platform::Files& files = shared_.services.files;
    const Look now{files.Stamp(path_), files.SizeNow(path_)};
    if (now == seen_ || !now.size)
        return;
    // It has not grown since it was opened.
    if (!seen_.size && now.size == reading_.BytesRead()) {
        seen_ = now;
        return;
    }
    // The title names the folder of the list.
    if (waits_)
        files_.BuildLogFileList();
    const LogFileReading::Followed result =
        waits_ ? reading_.FollowFromBeginning(path_) : reading_.Follow();
    if (result == LogFileReading::Followed::NotYet)
        return;
    seen_ = now;
    if (result != LogFileReading::Followed::AnotherFile)
        return;
    if (waits_)
        files_.LogOpened();
    else  // The log was rotated: there is another one beside it.
        files_.BuildLogFileList();
}

}  // namespace ordalyn
