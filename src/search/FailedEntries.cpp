#include "search/FailedEntries.h"

#include <cstddef>

namespace ordalyn {

namespace {

// "TIME: WORD: PATH" with a whole path and nothing else between: whichever word it is, there is no
// outcome. That takes one pass over the first few characters, and no look at any word.
bool CertainlyWentWell(std::string_view source) {
    const char* at = source.data();
    const char* const end = at + source.size();
    // Behind the clock time.
    for (;; ++at) {
        if (end - at < 2)
            return false;
        if (at[0] == ':' && at[1] == ' ')
            break;
    }
    const char* const word = at += 2;
    while (at != end && *at != ':' && *at != ' ' && *at != '(')
        ++at;
    return at != word && end - at > 2 && at[0] == ':' && at[1] == ' ' &&
           IsWholePath({at + 2, static_cast<std::size_t>(end - at - 2)});
}

}  // namespace

bool HasFailed(const OperationReader& reader, std::string_view sourceField,
               std::string_view targetField) {
    return !CertainlyWentWell(sourceField) && reader.Read(sourceField, targetField).Failed();
}

std::vector<std::int32_t> EntriesThatFailed(const EntryLists& entries,
                                            const std::vector<std::int32_t>& candidates,
                                            const OperationReader& reader) {
    std::vector<std::int32_t> failed;
    for (const std::int32_t entry : candidates)
        if (HasFailed(reader, entries.EntrySources().List(entry),
                      entries.EntryTargets().List(entry)))
            failed.push_back(entry);
    return failed;
}

}  // namespace ordalyn
