// Any sequence of operations on a small file system: the history that is found in its log is the
// true one, life by life.
#include <cstddef>
#include <cstdint>

#include "Choices.h"
#include "Require.h"
#include "history/PathNames.h"
#include "support/history/HistoryModel.h"

using namespace ordalyn;
using fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int kMost = 200;
    fuzz::Choices choices(data, size);
    test::HistoryModel model([&](int count) { return choices.Of(count); });
    for (int i = 0; i < kMost && choices.Left(); ++i)
        model.DoOperations(1);
    const OperationReader reader = test::HistoryModel::Reader();
    for (const std::string& path : model.Paths()) {
        const std::vector<FileLife> expected = model.TrueLives(path);
        if (expected.empty())
            continue;
        const std::vector<FileLife> found = FindLives(model.Entries(), reader, path);
        Require(found.size() == expected.size(), "there are as many lives");
        for (std::size_t i = 0; i < found.size(); ++i) {
            Require(found[i].steps == expected[i].steps, "each life is the true one");
            Require(PathKey(found[i].path) == PathKey(expected[i].path), "it ends where it is");
        }
    }
    return 0;
}
