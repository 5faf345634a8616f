// bench_history [ENTRIES]: what the history of a file with twenty names costs, in the first place
// as a multiple of a plain scan of the stored bytes for each of the names, and in seconds. Its log
// is made in memory: a million entries, or as many as said. Ends with 1 when a figure misses its
// target.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/LogGenerator.h"
#include "history/FileHistory.h"
#include "log/LineReader.h"
#include "log/LogLine.h"

namespace ordalyn::bench {
namespace {

constexpr int kRounds = 5;
constexpr int kNamesOfFile = 21;
constexpr double kMostScans = 4;
constexpr double kMostSeconds = 1;

template <typename Work>
double Milliseconds(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

// The floor: every place of the bytes that holds these, letter case regarded.
std::size_t Scan(std::string_view bytes, std::string_view wanted) {
    std::size_t count = 0;
#ifdef _WIN32
    for (std::size_t at = 0; (at = bytes.find(wanted, at)) != std::string_view::npos; ++at)
        ++count;
#else
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while ((at = static_cast<const char*>(memmem(at, static_cast<std::size_t>(end - at),
                                                 wanted.data(), wanted.size()))) != nullptr) {
        ++count;
        ++at;
    }
#endif
    return count;
}

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
    bool missed = false;
    std::size_t scanned = 0;
    for (const int asked : {0, kNamesOfFile / 2, kNamesOfFile - 1}) {
        double floor = 1e9;
        double history = 1e9;
        std::vector<FileLife> lives;
        for (int round = 0; round < kRounds; ++round) {
            floor =
                std::min(floor, Milliseconds([&] { scanned += Scan(bytes, NameNumber(asked)); }));
            history = std::min(history, Milliseconds([&] {
                                   lives = FindLives(entries, reader, NameNumber(asked));
                               }));
        }
        const bool whole = lives.size() == 1 && lives[0].steps.size() == kNamesOfFile - 1;
        const double scans = history / floor;
        const bool met =
            whole && scans <= kMostScans * kNamesOfFile && history <= kMostSeconds * 1000;
        missed = missed || !met;
        std::printf(
            "name %2d of %d %4zu steps %8.1f ms  floor %7.2f ms  %5.2f x, %5.2f x a name  %s\n",
            asked + 1, kNamesOfFile, lives.empty() ? 0 : lives[0].steps.size(), history, floor,
            scans, scans / kNamesOfFile, met ? "met" : "MISSED");
    }
    std::printf("%zu places found by the scans\n", scanned);
    return missed ? 1 : 0;
}

}  // namespace
}  // namespace ordalyn::bench

int main(int argc, char** argv) {
    return ordalyn::bench::Measure(argc > 1 ? std::atoi(argv[1]) : 1'000'000);
}
