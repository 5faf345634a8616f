#include "settings/cRecentFiles.h"

#include "base/Errors.h"
#include "base/Text.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

constexpr std::size_t kWholePathLength = 48;
constexpr std::size_t kEndLength = 16;

std::string Key(std::string_view prefix, std::int32_t index) {
    return std::string(prefix) + std::to_string(index);
}

std::string Start(std::string_view part) {
    return std::string(FirstCharacters(part, kEndLength));
}

std::string End(std::string_view part) {
    return std::string(LastCharacters(part, kEndLength));
}

}  // namespace

void cRecentFiles::Setup(std::int32_t lngMaxFiles) {
    if (lngMaxFiles < 1)
        throw InvalidPropertyValue("number of recent files");
    maximum_ = lngMaxFiles;
    files_.assign(static_cast<std::size_t>(maximum_) + 1, {});
    EmptyAllEntries();
}

void cRecentFiles::ReadList(std::string_view strFileName, std::string_view strSection,
                            std::string_view KeyPrefix) {
    const cProfile::Look look(profile_);
    for (std::int32_t i = 1; i <= maximum_; ++i)
        Entry(i) = common_.ExpandPath(profile_
                                          .ReadValue(strSection, Key(KeyPrefix, i),
                                                     common_.NoValueMarker(), strFileName,
                                                     cProfile::kBufferSize)
                                          .value_or(std::string()));
    ReportChange();
}

void cRecentFiles::SaveList(std::string_view strFileName, std::string_view strSection,
                            std::string_view strKeyPrefix) {
    profile_.Together([&] {
        for (std::int32_t i = 1; i <= maximum_; ++i) {
            const std::string key = Key(strKeyPrefix, i);
            profile_.DeleteValue(strSection, key, strFileName);
            profile_.WriteValue(strSection, key, common_.UnExpandPath(Entry(i)), strFileName);
        }
    });
}

void cRecentFiles::AddFile(std::string_view strFileName) {
    // The argument may be a view of one of the entries that are about to move.
    const std::string path(strFileName);
    if (const std::int32_t listed = IndexOf(path); listed != 0)
        RemoveFile(listed, true);
    for (std::int32_t i = maximum_; i >= 1; --i)
        Entry(i) = Entry(i - 1);
    if (maximum_ >= 1)
        Entry(1) = path;
    ReportChange();
}

void cRecentFiles::RemoveFile(std::int32_t lngIndex, bool blnAutoRefresh) {
    RequireEntry(lngIndex);
    for (std::int32_t i = lngIndex; i < maximum_; ++i)
        Entry(i) = Entry(i + 1);
    Entry(maximum_) = common_.NoValueMarker();
    if (blnAutoRefresh)
        ReportChange();
}

void cRecentFiles::PutAsFirstItem(std::int32_t lngIndex) {
    RequireEntry(lngIndex);
    const std::string path = Entry(lngIndex);
    RemoveFile(lngIndex, true);
    AddFile(path);
}

void cRecentFiles::RemoveAllFiles() {
    EmptyAllEntries();
    ReportChange();
}

const std::string& cRecentFiles::ListItems(std::int32_t lngIndex) const {
    if (lngIndex != 0)
        RequireEntry(lngIndex);
    return files_[static_cast<std::size_t>(lngIndex)];
}

bool cRecentFiles::Occupied(std::int32_t lngIndex) const {
    RequireEntry(lngIndex);
    return !common_.IsNoValue(ListItems(lngIndex));
}

void cRecentFiles::RequireEntry(std::int32_t index) const {
    if (index < 1 || index > maximum_)
        throw SubscriptOutOfRange();
}

std::int32_t cRecentFiles::IndexOf(std::string_view path) const {
    for (std::int32_t i = 1; i <= maximum_; ++i) {
        if (EqualsIgnoreCase(files_[static_cast<std::size_t>(i)], path))
            return i;
    }
    return 0;
}

void cRecentFiles::EmptyAllEntries() {
    for (std::int32_t i = 1; i <= maximum_; ++i)
        Entry(i) = common_.NoValueMarker();
}

void cRecentFiles::ReportChange() const {
    if (changed_)
        changed_();
}

std::string cRecentFiles::CompactPath(std::string_view path) {
    if (CharacterCount(path) <= kWholePathLength)
        return std::string(path);
    const std::vector<std::string> parts = Split(path, '\\');
    const std::size_t backslashes = parts.size() - 1;
    switch (backslashes) {
        case 0:
            return {};
        case 1:
            return parts[0] + "\\" + Start(parts[1]) + "......" + End(parts[1]);
        case 2:
            return parts[0] + "\\" + Start(parts[1]) + "\\...\\" + End(parts[2]);
        case 3:
        case 4:
            return parts[0] + "\\" + parts[1] + "\\...\\" + parts.back();
        default:
            return parts[0] + "\\" + parts[1] + "\\...\\" + parts[backslashes - 1] + "\\" +
                   parts.back();
    }
}

}  // namespace ordalyn
