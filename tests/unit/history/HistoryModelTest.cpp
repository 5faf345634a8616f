// The history that is found is the true one, life by life: random operations on a small file system
// that knows what became of each file.
#include "support/history/HistoryModel.h"

#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "history/PathNames.h"

namespace ordalyn {
namespace {

using test::HistoryModel;

std::string Told(const std::vector<FileLife>& lives) {
    std::ostringstream text;
    for (const FileLife& life : lives) {
        text << "life " << PathKey(life.path) << ":";
        for (const HistoryStep& step : life.steps)
            text << " " << step.entry << "/" << static_cast<int>(step.kind);
        text << "\n";
    }
    return text.str();
}

std::string LogOf(const HistoryModel& model) {
    std::ostringstream text;
    const EntryLists& entries = model.Entries();
    for (std::int32_t i = 0; i <= entries.EntrySources().ListCount(); ++i)
        text << i << "  " << entries.EntrySources().List(i) << " -> "
             << entries.EntryTargets().List(i) << "\n";
    return text.str();
}

TEST(HistoryModelTest, WhatIsFoundIsTrueLifeByLife) {
    const OperationReader reader = HistoryModel::Reader();
    int lives = 0;
    int longest = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        std::mt19937 random(seed);
        HistoryModel model(
            [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); });
        model.DoOperations(seed % 4 == 0 ? 120 : 30);
        for (const std::string& path : model.Paths()) {
            const std::vector<FileLife> expected = model.TrueLives(path);
            if (expected.empty())
                continue;
            const std::vector<FileLife> found = FindLives(model.Entries(), reader, path);
            ASSERT_EQ(Told(found), Told(expected)) << "seed " << seed << ", " << path << "\n"
                                                   << LogOf(model);
            lives += static_cast<int>(found.size());
            for (const FileLife& life : found)
                longest = std::max(longest, Summarise(life).moves);
        }
    }
    // The model has something to say.
    EXPECT_GT(lives, 1000);
    EXPECT_GE(longest, 6);
}

}  // namespace
}  // namespace ordalyn
