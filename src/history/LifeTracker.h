// LifeTracker goes through the log forward with the things that have a path of interest, and writes
// down what happens to each of them. What it takes for granted about a place of which the log says
// nothing (a file in a folder that is moved) is kept apart until an entry names the thing itself.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "history/FileHistory.h"
#include "history/Origins.h"
#include "history/WatchedPaths.h"

namespace ordalyn {

class LifeTracker {
  public:
    LifeTracker(std::string_view path, Origins origins);

    void Run(const EntryLists& entries, const EntryOrder& order, const OperationReader& reader);
    // The lives that had the path, in order. Their steps have positions for entries.
    std::vector<FileLife> Take();

  private:
    struct Tracked {
        FileLife life;
        bool seen = false;        // an entry names the thing itself
        bool hadPath = false;     // it had the path that was asked for
        bool afterEmpty = false;  // something was at its place before and went away
    };
    struct Mover {
        int life;
        std::string key;
        std::string path;
        StepKind kind;
    };
    // At the path that was asked for.
    struct Failure {
        HistoryStep step;
        int life;  // what was believed to be there; kEmpty for nothing
    };
    static constexpr int kEmpty = -1;

    void Read(std::int32_t entry, const Operation& operation);
    void BringIn(std::int32_t entry);
    void LetGoOfEmpty();
    void Follow(const Operation& operation);
    void FollowFailure(const Operation& operation);
    void FollowMove(const Operation& operation);
    void FollowCopy(const Operation& operation);
    void FollowDeletion();

    int NewLife(std::string_view path, bool hasPath);
    void Place(const std::string& key, int life);
    // The thing at this path, of which an entry speaks as being there; kEmpty when it is none of
    // those that are followed.
    int SeenAt(const std::string& key, std::string_view path);
    void TouchAt(const std::string& key, std::string_view path);
    void BornAt(const std::string& key, std::string_view path, StepKind kind);
    void PackedInto(const std::string& key, std::string_view path);
    // Another thing takes this place, which is watched.
    void EndAt(const std::string& key);
    void Empty(const std::string& key);
    void AddStep(int life, StepKind kind);
    // There never was such a thing, as it turns out.
    void Drop(int life) { At(life).life.steps.clear(); }
    bool BeginsNow(const std::string& key) const;
    // What the place is called, as far as is known.
    std::string PathOf(const WatchedPaths::Watched& watched);
    // Whether an entry names it, and it had the path that was asked for.
    static bool IsTold(const Tracked& tracked);
    Tracked& At(int life) { return lives_[static_cast<std::size_t>(life)]; }

    std::string path_;
    std::string asked_;  // its key
    std::vector<Origin> origins_;
    std::int32_t first_;  // where there is something to be read
    std::size_t nextOrigin_ = 0;
    WatchedPaths watched_;  // the value is a life, or kEmpty
    std::vector<Tracked> lives_;
    std::vector<Origin> waiting_;  // places at which the current entry begins a life
    std::vector<Failure> failures_;
    // Of the current entry.
    std::int32_t entry_ = 0;
    std::string source_;
    std::string target_;
};

}  // namespace ordalyn
