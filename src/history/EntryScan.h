// ScanEntries goes through a part of the log and visits the entries that may name a watched path.
// It asks for the ends of many fields before it looks at the first of them, so that the processor
// fetches them side by side.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "history/EntryOrder.h"
#include "history/WatchedPaths.h"
#include "log/EntryLists.h"

namespace ordalyn {

// Visits the entries at the positions from `first` up to (without) `end`, or down to it when it is
// below. `visit` is given the position and the entry's fields; what it watches or forgets counts
// from the next entry on.
template <typename Visit>
void ScanEntries(const EntryLists& entries, const EntryOrder& order, const WatchedPaths& watched,
                 std::int32_t first, std::int32_t end, const Visit& visit) {
    struct Fields {
        std::string_view source;
        std::string_view target;
    };
    constexpr std::int32_t kAtOnce = 64;
    const cStringArray& sources = entries.EntrySources();
    const cStringArray& targets = entries.EntryTargets();
    const std::int32_t step = first < end ? 1 : -1;
    std::array<Fields, kAtOnce> fields;
    for (std::int32_t left = (end - first) * step; left > 0;) {
        const EntryOrder::Run& run = order.RunOf(first);
        const std::int32_t inRun =
            step > 0 ? run.position + run.count - first : first - run.position + 1;
        const std::int32_t count = std::min({left, inRun, kAtOnce});
        const std::int32_t entry = run.entry + (first - run.position);
        for (std::int32_t i = 0; i < count; ++i) {
            Fields& field = fields[static_cast<std::size_t>(i)];
            field = {sources.List(entry + i * step), targets.List(entry + i * step)};
            __builtin_prefetch(field.source.data() + field.source.size());
            __builtin_prefetch(field.target.data() + field.target.size());
        }
        for (std::int32_t i = 0; i < count; ++i) {
            const Fields& field = fields[static_cast<std::size_t>(i)];
            if (watched.MayConcern(field.source, field.target)) [[unlikely]]
                visit(first + i * step, field.source, field.target);
        }
        first += count * step;
        left -= count;
    }
}

}  // namespace ordalyn
