#include "history/LifeTracker.h"

#include <algorithm>
#include <utility>

#include "history/EntryScan.h"
#include "history/PathNames.h"

namespace ordalyn {

namespace {

void SortSteps(FileLife& life) {
    std::vector<HistoryStep>& steps = life.steps;
    std::sort(steps.begin(), steps.end());
    steps.erase(std::unique(steps.begin(), steps.end()), steps.end());
}

// What failed while nothing was there belongs to what was there last, or else to what came first.
void AddHomeless(std::vector<FileLife>& lives, const std::vector<HistoryStep>& homeless) {
    std::size_t next = 1;
    std::vector<std::vector<HistoryStep>> more(lives.size());
    for (const HistoryStep& step : homeless) {
        while (next < lives.size() && lives[next].steps.front().entry < step.entry)
            ++next;
        more[next - 1].push_back(step);
    }
    for (std::size_t i = 0; i < lives.size(); ++i) {
        lives[i].steps.insert(lives[i].steps.end(), more[i].begin(), more[i].end());
        SortSteps(lives[i]);
    }
}

}  // namespace

LifeTracker::LifeTracker(std::string_view path, Origins origins)
    : path_(path),
      asked_(PathKey(path)),
      origins_(std::move(origins.origins)),
      first_(origins.first) {
    // There may be something before the log begins.
    Place(asked_, NewLife(path, true));
}

void LifeTracker::Run(const EntryLists& entries, const EntryOrder& order,
                      const OperationReader& reader) {
    const std::int32_t count = order.Count();
    for (std::int32_t from = first_; from < count;) {
        BringIn(from);
        const std::int32_t end =
            nextOrigin_ < origins_.size() ? std::min(origins_[nextOrigin_].entry, count) : count;
        ScanEntries(entries, order, watched_, from, end,
                    [&](std::int32_t entry, std::string_view source, std::string_view target) {
                        Read(entry, reader.Read(source, target));
                    });
        from = end;
    }
}

void LifeTracker::Read(std::int32_t entry, const Operation& operation) {
    entry_ = entry;
    source_ = PathKey(operation.source);
    target_ = PathKey(operation.target);
    if (operation.Failed())
        FollowFailure(operation);
    else
        Follow(operation);
    LetGoOfEmpty();
}

void LifeTracker::BringIn(std::int32_t entry) {
    for (; nextOrigin_ < origins_.size() && origins_[nextOrigin_].entry <= entry; ++nextOrigin_) {
        const Origin& origin = origins_[nextOrigin_];
        const std::string key = PathKey(origin.path);
        const bool watched = watched_.Find(key) != nullptr;
        if (origin.beginning == Origin::Beginning::ByEntry) {
            waiting_.push_back(origin);
            if (!watched)
                watched_.Watch(key, kEmpty);
            continue;
        }
        if (watched)
            continue;
        const int life = NewLife(origin.path, false);
        At(life).afterEmpty = origin.beginning == Origin::Beginning::AfterEmpty;
        Place(key, life);
    }
}

void LifeTracker::LetGoOfEmpty() {
    for (const Origin& origin : std::exchange(waiting_, {})) {
        const std::string key = PathKey(origin.path);
        const int* life = watched_.Find(key);
        if (life != nullptr && *life == kEmpty && key != asked_)
            watched_.Forget(key);
    }
}

void LifeTracker::Follow(const Operation& operation) {
    using enum OperationKind;
    switch (operation.kind) {
        case CreateFile:
        case NewFolder:
            BornAt(source_, operation.source, StepKind::Created);
            return;
        case Copy:
            FollowCopy(operation);
            return;
        case Move:
            FollowMove(operation);
            return;
        case Delete:
        case DeleteFolder:
            SeenAt(source_, operation.source);
            FollowDeletion();
            return;
        case Shortcut:
        case Unpack:
            TouchAt(source_, operation.source);
            BornAt(target_, operation.target, StepKind::Created);
            return;
        case Pack:
            TouchAt(source_, operation.source);
            PackedInto(target_, operation.target);
            return;
        case Test:
        case Other:
            TouchAt(source_, operation.source);
            TouchAt(target_, operation.target);
            return;
        case None:
        case ProgramStart:
        case ProgramShutdown:
            return;
    }
}

void LifeTracker::FollowFailure(const Operation& operation) {
    for (const std::string* key : {&source_, &target_}) {
        const int* life = watched_.Find(*key);
        if (life == nullptr)
            continue;
        if (*key == asked_)
            failures_.push_back({{entry_, StepKind::Failed}, *life});
        else if (*life != kEmpty)
            AddStep(*life, StepKind::Failed);
    }
    using enum OperationKind;
    if (operation.kind != Move && operation.kind != Delete && operation.kind != DeleteFolder)
        return;
    for (const auto& below : watched_.Below(source_))
        if (below.value != kEmpty)
            AddStep(below.value, StepKind::Failed);
}

void LifeTracker::FollowCopy(const Operation& operation) {
    if (source_ == target_) {
        TouchAt(source_, operation.source);
        return;
    }
    if (const int life = SeenAt(source_, operation.source); life != kEmpty)
        AddStep(life, StepKind::CopiedAway);
    for (const auto& below : watched_.Below(source_))
        if (below.value != kEmpty)
            AddStep(below.value, StepKind::CopiedAway);
    // What is known to be below the target was in a folder that was there already.
    for (const auto& below : watched_.Below(target_)) {
        if (below.value != kEmpty && At(below.value).seen)
            continue;
        const int life =
            NewLife(InOtherFolder(PathOf(below), std::string_view(below.key).substr(target_.size()),
                                  operation.target),
                    false);
        if (below.value != kEmpty)
            Drop(below.value);
        Place(below.key, life);
        AddStep(life, StepKind::CopiedHere);
    }
    BornAt(target_, operation.target, StepKind::CopiedHere);
}

void LifeTracker::FollowDeletion() {
    for (const auto& below : watched_.Below(source_)) {
        if (below.value != kEmpty)
            AddStep(below.value, StepKind::DeletedWithFolder);
        Empty(below.key);
    }
    if (const int* life = watched_.Find(source_)) {
        if (*life != kEmpty)
            AddStep(*life, StepKind::Deleted);
        Empty(source_);
    }
}

void LifeTracker::FollowMove(const Operation& operation) {
    std::vector<Mover> movers;
    if (const int life = SeenAt(source_, operation.source); life != kEmpty)
        movers.push_back({life, target_, std::string(operation.target), StepKind::Moved});
    const bool itself = !movers.empty();
    for (const auto& below : watched_.Below(source_)) {
        if (below.value == kEmpty)
            continue;
        const std::string_view rest = std::string_view(below.key).substr(source_.size());
        movers.push_back({below.value, target_ + std::string(rest),
                          InOtherFolder(At(below.value).life.path, rest, operation.target),
                          StepKind::MovedWithFolder});
    }
    // All leave before one arrives: the new names can be among the old ones.
    for (const auto& below : watched_.Below(source_))
        Empty(below.key);
    Empty(source_);
    if (!itself)
        BornAt(target_, operation.target, StepKind::Moved);
    for (const Mover& mover : movers) {
        AddStep(mover.life, mover.kind);
        if (target_.empty())
            continue;  // nobody knows where to
        const int* there = watched_.Find(mover.key);
        if (there != nullptr && *there != kEmpty) {
            if (At(*there).seen && !At(mover.life).seen) {
                Drop(mover.life);
                continue;
            }
            EndAt(mover.key);
        }
        At(mover.life).life.path = WithoutLastBackslash(mover.path);
        Place(mover.key, mover.life);
    }
}

int LifeTracker::NewLife(std::string_view path, bool hasPath) {
    Tracked& tracked = lives_.emplace_back();
    tracked.life.path = WithoutLastBackslash(path);
    tracked.hadPath = hasPath;
    return static_cast<int>(lives_.size()) - 1;
}

void LifeTracker::Place(const std::string& key, int life) {
    watched_.Watch(key, life);
    if (key == asked_)
        At(life).hadPath = true;
}

int LifeTracker::SeenAt(const std::string& key, std::string_view path) {
    const int* there = watched_.Find(key);
    if (there == nullptr || (*there == kEmpty && key != asked_))
        return kEmpty;
    int life = *there;
    if (life == kEmpty) {
        life = NewLife(path, true);
        Place(key, life);
    }
    At(life).seen = true;
    At(life).life.path = WithoutLastBackslash(path);
    return life;
}

void LifeTracker::TouchAt(const std::string& key, std::string_view path) {
    if (const int life = SeenAt(key, path); life != kEmpty)
        AddStep(life, StepKind::Touched);
}

void LifeTracker::BornAt(const std::string& key, std::string_view path, StepKind kind) {
    const int* there = watched_.Find(key);
    if (there == nullptr)
        return;
    const bool wanted = key == asked_ || BeginsNow(key);
    EndAt(key);
    if (!wanted)
        return;
    const int life = NewLife(path, false);
    At(life).seen = true;
    Place(key, life);
    AddStep(life, kind);
}

// What is in an archive's place takes the new files up. Whether there is one is known only when
// the log tells.
void LifeTracker::PackedInto(const std::string& key, std::string_view path) {
    const int* there = watched_.Find(key);
    if (there == nullptr)
        return;
    if (*there == kEmpty || (At(*there).afterEmpty && !At(*there).seen)) {
        if (*there == kEmpty) {
            BornAt(key, path, StepKind::Created);
            return;
        }
        Drop(*there);
        AddStep(SeenAt(key, path), StepKind::Created);
        return;
    }
    TouchAt(key, path);
}

void LifeTracker::EndAt(const std::string& key) {
    const int* there = watched_.Find(key);
    if (there != nullptr && *there != kEmpty) {
        if (At(*there).seen)
            AddStep(*there, StepKind::Replaced);
        else
            Drop(*there);
    }
    Empty(key);
}

// The path that was asked for stays watched: something else can come there.
void LifeTracker::Empty(const std::string& key) {
    if (watched_.Find(key) == nullptr)
        return;
    if (key == asked_)
        watched_.Watch(key, kEmpty);
    else
        watched_.Forget(key);
}

void LifeTracker::AddStep(int life, StepKind kind) {
    At(life).life.steps.push_back({entry_, kind});
}

bool LifeTracker::BeginsNow(const std::string& key) const {
    return std::any_of(waiting_.begin(), waiting_.end(),
                       [&](const Origin& origin) { return PathKey(origin.path) == key; });
}

std::string LifeTracker::PathOf(const WatchedPaths::Watched& watched) {
    if (watched.value != kEmpty)
        return At(watched.value).life.path;
    for (const Origin& origin : waiting_)
        if (PathKey(origin.path) == watched.key)
            return origin.path;
    return path_;
}

bool LifeTracker::IsTold(const Tracked& tracked) {
    return tracked.hadPath && tracked.seen;
}

std::vector<FileLife> LifeTracker::Take() {
    const bool anySeen =
        std::any_of(lives_.begin(), lives_.end(), [](const Tracked& t) { return IsTold(t); });
    std::vector<HistoryStep> homeless;
    for (const Failure& failure : failures_) {
        if (failure.life != kEmpty && IsTold(At(failure.life)))
            At(failure.life).life.steps.push_back(failure.step);
        else
            homeless.push_back(failure.step);
    }
    std::vector<FileLife> lives;
    for (Tracked& tracked : lives_) {
        if (!tracked.hadPath || tracked.life.steps.empty() || (anySeen && !tracked.seen))
            continue;
        SortSteps(tracked.life);
        lives.push_back(std::move(tracked.life));
    }
    std::sort(lives.begin(), lives.end(),
              [](const FileLife& a, const FileLife& b) { return a.steps < b.steps; });
    if (lives.empty() && !homeless.empty())
        lives.push_back({{}, path_});
    AddHomeless(lives, homeless);
    return lives;
}

}  // namespace ordalyn
