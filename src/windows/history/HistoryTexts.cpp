#include "windows/history/HistoryTexts.h"

#include <utility>
#include <vector>

#include "base/TextIds.h"

namespace ordalyn {

namespace {

// Puts all values in at once: a path can hold what looks like the place of another one.
std::string WithValues(std::string_view text,
                       const std::vector<std::pair<char, std::string>>& values) {
    std::string filled;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string* found = nullptr;
        for (const auto& [letter, value] : values)
            if (text[at] == '%' && at + 1 < text.size() && text[at + 1] == letter)
                found = &value;
        if (found == nullptr) {
            filled += text[at];
            continue;
        }
        filled += *found;
        ++at;
    }
    return filled;
}

}  // namespace

std::string LifeInWords(const FileLife& life, const TextSource& text, const DateOfEntry& dateOf) {
    const LifeSummary summary = Summarise(life);
    if (summary.seen == kNoEntry) {
        if (summary.deleted == kNoEntry)
            return AboutPath(text(text_id::kOnlyFailures), life.path);
        return WithValues(text(text_id::kWasDeleted),
                          {{'p', life.path}, {'d', dateOf(summary.deleted)}});
    }
    const std::int32_t sentence = summary.moves == 0   ? text_id::kLastSeen
                                  : summary.moves == 1 ? text_id::kMovedOnce
                                                       : text_id::kMovedTimes;
    std::string words = WithValues(
        text(sentence),
        {{'n', std::to_string(summary.moves)}, {'p', life.path}, {'d', dateOf(summary.seen)}});
    if (summary.deleted != kNoEntry)
        words =
            WithValues(text(text_id::kThenDeleted), {{'s', words}, {'d', dateOf(summary.deleted)}});
    if (summary.replaced != kNoEntry)
        words = WithValues(text(text_id::kThenReplaced),
                           {{'s', words}, {'d', dateOf(summary.replaced)}});
    return words;
}

std::string LifeInList(const FileLife& life, std::size_t number, std::size_t count,
                       const TextSource& text, const DateOfEntry& dateOf) {
    return WithValues(text(text_id::kOneOfLives), {{'n', std::to_string(number)},
                                                   {'c', std::to_string(count)},
                                                   {'f', dateOf(life.steps.front().entry)},
                                                   {'t', dateOf(life.steps.back().entry)}});
}

std::string AboutPath(std::string_view text, std::string_view path) {
    return WithValues(text, {{'p', std::string(path)}});
}

}  // namespace ordalyn
