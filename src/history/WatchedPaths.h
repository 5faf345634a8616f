// WatchedPaths: the paths that a scan of the log is after at one moment, each with a number that
// means something to the scan.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "history/PathTails.h"

namespace ordalyn {

class WatchedPaths {
  public:
    struct Watched {
        std::string key;
        int value;
    };

    // `key` as PathKey returns it. Gives a path that is watched another number.
    void Watch(const std::string& key, int value);
    void Forget(const std::string& key);

    // The path's number; null when it is not watched.
    int* Find(const std::string& key);
    // The watched paths in this folder, at any depth; none for an empty key.
    std::vector<Watched> Below(const std::string& folder) const;

    // Whether an entry with these fields may name one of the paths or a folder above one.
    bool MayConcern(std::string_view sourceField, std::string_view targetField) const {
        return tails_.MayEnd(sourceField) || tails_.MayEnd(targetField);
    }
    const std::map<std::string, int>& All() const { return paths_; }

  private:
    std::map<std::string, int> paths_;
    PathTails tails_;
    std::size_t forgotten_ = 0;  // paths that are still in the tails
};

}  // namespace ordalyn
