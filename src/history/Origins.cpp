#include "history/Origins.h"

#include <algorithm>

#include "history/EntryScan.h"
#include "history/PathNames.h"
#include "history/WatchedPaths.h"

namespace ordalyn {

namespace {

class BackwardWalk {
  public:
    explicit BackwardWalk(std::string_view path) : asked_(PathKey(path)) {
        Watch(std::string(path));
    }

    void Run(const EntryLists& entries, const EntryOrder& order, const OperationReader& reader) {
        first_ = order.Count();
        ScanEntries(entries, order, watched_, order.Count() - 1, -1,
                    [&](std::int32_t entry, std::string_view source, std::string_view target) {
                        first_ = entry;
                        Undo(entry, reader.Read(source, target));
                    });
        for (const auto& [key, path] : watched_.All())
            Begin(key, 0, Origin::Beginning::WithLog);
    }

    Origins Take() {
        std::reverse(origins_.begin(), origins_.end());
        std::stable_sort(origins_.begin(), origins_.end(),
                         [](const Origin& a, const Origin& b) { return a.entry < b.entry; });
        return {std::move(origins_), first_};
    }

  private:
    void Watch(std::string path) {
        const std::string key = PathKey(path);
        if (watched_.Find(key) != nullptr)
            return;
        watched_.Watch(key, static_cast<int>(paths_.size()));
        paths_.push_back(std::move(path));
    }
    const std::string& PathOf(const std::string& key) {
        return paths_[static_cast<std::size_t>(*watched_.Find(key))];
    }
    void Begin(const std::string& key, std::int32_t entry, Origin::Beginning how) {
        if (key != asked_)
            origins_.push_back({entry, PathOf(key), how});
    }
    // The path that was asked for is watched to the end: it can have had other things before.
    void BeginAndForget(const std::string& key, std::int32_t entry, Origin::Beginning how) {
        if (watched_.Find(key) == nullptr || key == asked_)
            return;
        Begin(key, entry, how);
        watched_.Forget(key);
    }

    // What is where after the entry is known; now where it was before.
    void Undo(std::int32_t entry, const Operation& operation) {
        if (operation.Failed())
            return;
        const std::string source = PathKey(operation.source);
        const std::string target = PathKey(operation.target);
        using enum OperationKind;
        switch (operation.kind) {
            case CreateFile:
            case NewFolder:
                BeginAndForget(source, entry, Origin::Beginning::ByEntry);
                return;
            case Copy:
                if (source == target)
                    return;
                BeginAndForget(target, entry, Origin::Beginning::ByEntry);
                for (const auto& below : watched_.Below(target))
                    Begin(below.key, entry, Origin::Beginning::ByEntry);
                return;
            case Unpack:
            case Shortcut:
                BeginAndForget(target, entry, Origin::Beginning::ByEntry);
                return;
            case Move:
                if (source != target)
                    UndoMove(entry, operation, source, target);
                return;
            case Delete:
            case DeleteFolder:
                WasEmptied(entry, source);
                return;
            default:
                return;
        }
    }

    // What is at a place from which something went away has come later.
    void WasEmptied(std::int32_t entry, const std::string& place) {
        for (const auto& below : watched_.Below(place))
            BeginAndForget(below.key, entry + 1, Origin::Beginning::AfterEmpty);
        BeginAndForget(place, entry + 1, Origin::Beginning::AfterEmpty);
    }

    void UndoMove(std::int32_t entry, const Operation& operation, const std::string& source,
                  const std::string& target) {
        WasEmptied(entry, source);
        if (source.empty()) {
            BeginAndForget(target, entry, Origin::Beginning::ByEntry);
            return;
        }
        // What is below the target may have come with it, or have been in a folder that was there.
        for (const auto& below : watched_.Below(target)) {
            Watch(InOtherFolder(PathOf(below.key),
                                std::string_view(below.key).substr(target.size()),
                                operation.source));
        }
        if (watched_.Find(target) == nullptr)
            return;
        if (target != asked_)
            watched_.Forget(target);
        Watch(std::string(operation.source));
    }

    std::string asked_;
    WatchedPaths watched_;
    std::vector<std::string> paths_;  // as they are written
    std::vector<Origin> origins_;
    std::int32_t first_ = 0;
};

}  // namespace

Origins FindOrigins(const EntryLists& entries, const EntryOrder& order,
                    const OperationReader& reader, std::string_view path) {
    BackwardWalk walk(path);
    walk.Run(entries, order, reader);
    return walk.Take();
}

}  // namespace ordalyn
