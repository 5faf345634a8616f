#include "log/RotatedLogs.h"

#include <algorithm>
#include <charconv>
#include <set>

#include "base/Attempt.h"
#include "base/CheckedMath.h"
#include "base/FileNames.h"
#include "base/Text.h"

namespace ordalyn {

namespace {

constexpr double kNoRotation = 0;
constexpr double kByDate = -1;
// Numbers up to here are looked for one by one. Beyond, only those that the folder's list shows: a
// keep count of millions must not ask the system for millions of names.
constexpr std::int32_t kTriedNumbers = 1000;

}  // namespace

RotatedLogs::RotatedLogs(platform::Files& files, const RotationSettings& settings,
                         std::string_view allFiles)
    : liveLogName_(GetFileName(settings.logFile)), logFolder_(GetFilePath(settings.logFile)) {
    if (settings.logFileAbsent)
        return;
    base_ = GetFileBaseName(liveLogName_);
    dotExtension_ = "." + GetFileExtension(liveLogName_);
    const std::vector<std::string> listed = files.List(logFolder_, base_ + "*" + dotExtension_);
    const bool siblings = listed.size() >= 2;
    if (siblings)
        items_.emplace_back(allFiles);
    items_.push_back(liveLogName_);

    const double limit = LeadingNumber(settings.rotateLimit);
    if (limit == kNoRotation) {
        display_ = Display::Hidden;
    } else if (limit == kByDate) {
        if (!siblings)
            return;
        AddListed(listed);
        display_ = Display::LiveLog;
    } else {
        if (siblings)
            AddNumbered(files, listed, settings.keepCount);
        display_ = Display::LiveLog;
    }
}

void RotatedLogs::AddListed(const std::vector<std::string>& listed) {
    for (const std::string& name : listed)
        if (!EqualsIgnoreCase(name, liveLogName_))
            items_.push_back(name);
}

void RotatedLogs::AddNumbered(platform::Files& files, const std::vector<std::string>& listed,
                              std::string_view keepCount) {
    std::int32_t most = 0;  // stays so for a number that 32 bits do not hold
    Attempt([&] { most = RoundToLong(LeadingNumber(keepCount)); });
    std::set<std::int32_t> numbers;
    for (std::int32_t i = 1; i <= std::min(most, kTriedNumbers); ++i)
        numbers.insert(i);
    for (const std::string& name : listed)
        if (const std::optional<std::int32_t> number = NumberOf(name); number && *number <= most)
            numbers.insert(*number);
    for (const std::int32_t number : numbers)
        if (files.Exists(logFolder_ + NumberedName(number)))
            items_.push_back(NumberedName(number));
}

std::string RotatedLogs::NumberedName(std::int32_t number) const {
    return base_ + "." + std::to_string(number) + dotExtension_;
}

// The number in a name of that form, above 0; nothing for any other name.
std::optional<std::int32_t> RotatedLogs::NumberOf(std::string_view name) const {
    if (!StartsWithIgnoreCase(name, base_ + "."))
        return std::nullopt;
    std::int32_t number = 0;
    const std::string_view rest = name.substr(std::min(name.size(), base_.size() + 1));
    std::from_chars(rest.data(), rest.data() + rest.size(), number);
    if (number < 1 || !EqualsIgnoreCase(name, NumberedName(number)))
        return std::nullopt;
    return number;
}

}  // namespace ordalyn
