#include "history/WatchedPaths.h"

namespace ordalyn {

namespace {

// So few forgotten paths cost nothing worth mentioning.
constexpr std::size_t kFew = 16;

}  // namespace

void WatchedPaths::Watch(const std::string& key, int value) {
    if (paths_.insert_or_assign(key, value).second)
        tails_.AddWithFolders(key);
}

void WatchedPaths::Forget(const std::string& key) {
    if (paths_.erase(key) == 0 || ++forgotten_ <= kFew + paths_.size())
        return;
    forgotten_ = 0;
    tails_.Clear();
    for (const auto& [path, value] : paths_)
        tails_.AddWithFolders(path);
}

int* WatchedPaths::Find(const std::string& key) {
    const auto found = paths_.find(key);
    return found == paths_.end() ? nullptr : &found->second;
}

std::vector<WatchedPaths::Watched> WatchedPaths::Below(const std::string& folder) const {
    std::vector<Watched> below;
    if (folder.empty())
        return below;
    const std::string start = folder + '\\';
    for (auto at = paths_.lower_bound(start); at != paths_.end() && at->first.starts_with(start);
         ++at)
        below.push_back({at->first, at->second});
    return below;
}

}  // namespace ordalyn
