#include "history/FileHistory.h"

#include "history/EntryOrder.h"
#include "history/LifeTracker.h"
#include "history/Origins.h"
#include "history/PathNames.h"

namespace ordalyn {

LifeSummary Summarise(const FileLife& life) {
    LifeSummary summary;
    for (const HistoryStep& step : life.steps) {
        switch (step.kind) {
            case StepKind::Moved:
            case StepKind::MovedWithFolder:
                ++summary.moves;
                summary.seen = step.entry;
                break;
            case StepKind::Deleted:
            case StepKind::DeletedWithFolder:
                summary.deleted = step.entry;
                break;
            case StepKind::Replaced:
                summary.replaced = step.entry;
                break;
            case StepKind::Failed:
                break;
            default:
                summary.seen = step.entry;
                break;
        }
    }
    return summary;
}

std::vector<FileLife> FindLives(const EntryLists& entries, const OperationReader& reader,
                                std::string_view path) {
    if (PathKey(path).empty())
        return {};
    const EntryOrder order(entries);
    LifeTracker tracker(path, FindOrigins(entries, order, reader, path));
    tracker.Run(entries, order, reader);
    std::vector<FileLife> lives = tracker.Take();
    for (FileLife& life : lives)
        for (HistoryStep& step : life.steps)
            step.entry = order.EntryAt(step.entry);
    return lives;
}

}  // namespace ordalyn
