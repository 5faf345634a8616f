// cRecentFiles: the log files that were opened last, latest first. The list in memory is the
// master; the settings file gets it when SaveList is called.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ordalyn {

class cProfile;
class mAppCommon;

// Entries are numbered from 1 to the maximum; the occupied ones come first. Numbers outside throw
// SubscriptOutOfRange, except that ListItems knows an entry 0, which holds nothing.
class cRecentFiles {
  public:
    cRecentFiles(cProfile& profile, const mAppCommon& common)
        : profile_(profile), common_(common) {}

    // Empties the list and says how many entries it has. A maximum below 1 throws
    // InvalidPropertyValue.
    void Setup(std::int32_t lngMaxFiles);
    // Runs `changed` after each change from now on, so that what shows the list follows it. Empty:
    // nothing shows it.
    void OnChange(std::function<void()> changed) { changed_ = std::move(changed); }

    // An absent key gives an empty entry, an empty value an entry with an empty path.
    void ReadList(std::string_view strFileName, std::string_view strSection,
                  std::string_view KeyPrefix = "");
    // Empty entries leave no key behind.
    void SaveList(std::string_view strFileName, std::string_view strSection,
                  std::string_view strKeyPrefix = "");

    // Puts the file first. A file that is listed already (letter case ignored) moves there and
    // takes the new spelling; otherwise the last entry of a full list is lost.
    void AddFile(std::string_view strFileName);
    // Without blnAutoRefresh the change is not reported.
    void RemoveFile(std::int32_t lngIndex, bool blnAutoRefresh = false);
    void PutAsFirstItem(std::int32_t lngIndex);
    void RemoveAllFiles();

    // The full path, or the absent-value marker for an empty entry.
    const std::string& ListItems(std::int32_t lngIndex) const;
    bool Occupied(std::int32_t lngIndex) const;
    std::int32_t Max() const { return maximum_; }

    // A path as a menu shows it: whole up to 48 characters, otherwise with its middle left out.
    // The result is not measured again and may still be longer; a name of more than 48 characters
    // without any backslash gives an empty text.
    static std::string CompactPath(std::string_view path);

  private:
    void RequireEntry(std::int32_t index) const;
    std::string& Entry(std::int32_t index) { return files_[static_cast<std::size_t>(index)]; }
    std::int32_t IndexOf(std::string_view path) const;
    void EmptyAllEntries();
    void ReportChange() const;

    cProfile& profile_;
    const mAppCommon& common_;
    std::function<void()> changed_;
    std::int32_t maximum_ = 0;
    // 0 to maximum; 0 holds nothing.
    std::vector<std::string> files_ = std::vector<std::string>(1);
};

}  // namespace ordalyn
