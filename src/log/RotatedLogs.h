// RotatedLogs: the live log and the siblings that hold its older contents, as the list of files
// offers them. The file manager's rotation settings say how the siblings are named.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace ordalyn {

// What the file manager's settings file says, as it is written there; nothing for an absent key.
struct RotationSettings {
    bool logFileAbsent = false;
    std::string logFile;      // expanded; when the key is absent, whatever text stands for that
    std::string rotateLimit;  // "0" no rotation, "-1" by date, any other number by size
    std::string keepCount;    // how many numbered siblings to look for
};

class RotatedLogs {
  public:
    // What becomes of the list of files.
    enum class Display {
        Unchanged,  // neither shown nor hidden, nothing selected
        Hidden,
        LiveLog,  // the live log's item is selected without reading it; shown when there are two
                  // items
    };

    // Lists the folder. `allFiles` is the text of the item that stands for all of them. What cannot
    // be read of the folder or the settings counts as not there.
    RotatedLogs(platform::Files& files, const RotationSettings& settings,
                std::string_view allFiles);

    const std::string& LiveLogName() const { return liveLogName_; }
    // With a "\" at its end; empty when the log's path has none.
    const std::string& LogFolder() const { return logFolder_; }
    // In order: all files (only when at least two files match the live log's name), the live log,
    // its siblings. Empty when no log is configured.
    const std::vector<std::string>& Items() const { return items_; }
    Display ComboDisplay() const { return display_; }

  private:
    void AddListed(const std::vector<std::string>& listed);
    void AddNumbered(platform::Files& files, const std::vector<std::string>& listed,
                     std::string_view keepCount);
    std::string NumberedName(std::int32_t number) const;
    std::optional<std::int32_t> NumberOf(std::string_view name) const;

    std::string liveLogName_;
    std::string logFolder_;
    std::string base_;
    std::string dotExtension_;
    std::vector<std::string> items_;
    Display display_ = Display::Unchanged;
};

}  // namespace ordalyn
