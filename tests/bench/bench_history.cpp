// bench_history [ENTRIES]: what the history of a file with twenty names costs, in the first place
// as a multiple of a plain scan of the stored bytes for each of the names, and in seconds. Its log
// is made in memory: a million entries, or as many as said. Ends with 1 when a figure misses its
// target.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/LogGenerator.h"
#include "bench/Measuring.h"
#include "history/FileHistory.h"
#include "log/LineReader.h"
#include "log/LogLine.h"

namespace ordalyn::bench {
namespace {

constexpr int kRounds = 5;
constexpr int kNamesOfFile = 21;
constexpr double kMostScans = 4;
constexpr double kMostMilliseconds = 1000;

std::string NameNumber(int number) {
    return R"(D:\Projects\Release )" + std::to_string(number % 5) + R"(\Annual plan )" +
           std::to_string(number) + ".docx";
}

// The generated log with the story of one file in it, spread evenly.
void Fill(EntryLists& entries, int count) {
    constexpr int kPiece = 100'000;
    const int step = count / kNamesOfFile;
    int written = 0;
    int name = 0;
    for (std::uint32_t seed = 1; written < count; ++seed) {
        std::ostringstream text;
        WriteLog(text, kPiece, seed);
        const std::string bytes = text.str() + std::string(bytescan::kSlack, ' ');
        const std::string_view all =
            std::string_view(bytes).substr(0, bytes.size() - bytescan::kSlack);
        for (std::size_t at = 3; at < all.size() && written < count; ++written) {
            const std::size_t end = std::min(all.find("\r\n", at), all.size());
            const std::string_view line = all.substr(at, end - at);
            at = end + 2;
            if (line.empty())
                continue;
            entries.Add(SplitOperationLine(line));
            if (written % step == step / 2 && name + 1 < kNamesOfFile) {
                const std::string move = "15.03.2024 12:02:45: Move: " + NameNumber(name) + " -> " +
                                         NameNumber(name + 1) + std::string(bytescan::kSlack, '\n');
                entries.Add(SplitOperationLine(
                    std::string_view(move).substr(0, move.size() - bytescan::kSlack)));
                ++name;
            }
        }
    }
}

OperationReader Reader() {
    using enum OperationKind;
    return OperationReader({{Copy, "Copy"},
                            {Move, "Move"},
                            {Shortcut, "Shortcut"},
                            {NewFolder, "NewFolder"},
                            {Delete, "Delete"},
                            {DeleteFolder, "DeleteFolder"},
                            {Pack, "Pack"},
                            {Unpack, "Unpack"},
                            {Test, "Test"},
                            {CreateFile, "CreateFile"}});
}

int Measure(int count) {
    EntryLists entries;
    Fill(entries, count);
    std::string bytes;
    for (std::int32_t entry = 0; entry <= entries.EntrySources().ListCount(); ++entry)
        bytes.append(entries.EntrySources().List(entry))
            .append(entries.EntryTargets().List(entry))
            .append("\n");
    std::printf("%d entries, %.1f MB of sources and targets\n",
                entries.EntrySources().ListCount() + 1, static_cast<double>(bytes.size()) / 1e6);
    const OperationReader reader = Reader();
    Figures figures("bench_history", static_cast<std::size_t>(count));
    bool whole = true;
    std::size_t scanned = 0;
    for (const auto& [asked, what] : {std::pair(0, "history of a file by its first name"),
                                      std::pair(kNamesOfFile / 2, "by its middle name"),
                                      std::pair(kNamesOfFile - 1, "by its newest name")}) {
        Shortest floor, history;
        std::vector<FileLife> lives;
        for (int round = 0; round < kRounds; ++round) {
            floor.Keep(Milliseconds([&] { scanned += Scan(bytes, NameNumber(asked)); }));
            history.Keep(
                Milliseconds([&] { lives = FindLives(entries, reader, NameNumber(asked)); }));
        }
        whole = whole && lives.size() == 1 && lives[0].steps.size() == kNamesOfFile - 1;
        figures.Add({.what = what,
                     .value = history.Value(),
                     .floor = floor.Value(),
                     .mostTimes = kMostScans * kNamesOfFile,
                     .most = kMostMilliseconds});
    }
    std::printf("%zu places found by the scans; %s\n", scanned,
                whole ? "each story is whole" : "A STORY IS NOT WHOLE");
    return whole ? figures.ExitCode() : 1;
}

}  // namespace
}  // namespace ordalyn::bench

int main(int argc, char** argv) {
    return ordalyn::bench::Measure(argc > 1 ? std::atoi(argv[1]) : 1'000'000);
}
