// bench_scripts: what reading a log costs whose names are all in another script than Latin, as a
// multiple of the floor that does not look at the encoding, and what a filter by a word in that
// script costs, as a multiple of a plain scan. The logs have a million lines and are written beside
// the program. Ends with 1 when a figure misses its target.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <string>
#include <vector>

#include "bench/LogFloor.h"
#include "bench/LogGenerator.h"
#include "bench/Measuring.h"
#include "bench/MemoryMeter.h"
#include "bench/NativeFiles.h"
#include "bench/ReadLog.h"
#include "search/EntryFilter.h"

namespace ordalyn::bench {
namespace {

constexpr int kLines = 1'000'000;
constexpr int kRounds = 9;
constexpr double kReading = 2.2;
constexpr double kFilter = 2;

// Sources and targets side by side.
std::string TextsOf(const EntryLists& entries) {
    std::string bytes;
    for (std::int32_t entry = 0; entry <= entries.EntrySources().ListCount(); ++entry)
        bytes.append(entries.EntrySources().List(entry))
            .append(entries.EntryTargets().List(entry))
            .append("\n");
    return bytes;
}

struct Case {
    Script script;
    const char* reading;
    const char* filter;
    const char* word;
};

constexpr Case kCases[] = {
    {Script::Cyrillic, "reading: Cyrillic", "filter: Cyrillic",
     "\xD0\xB4\xD0\xBE\xD0\xBA\xD1\x83\xD0\xBC\xD0\xB5\xD0\xBD\xD1\x82\xD1\x8B"},
    {Script::Greek, "reading: Greek", "filter: Greek",
     "\xCF\x86\xCF\x89\xCF\x84\xCE\xBF\xCE\xB3\xCF\x81\xCE\xB1\xCF\x86\xCE\xAF\xCE\xB5\xCF\x82"},
    {Script::Chinese, "reading: Chinese", "filter: Chinese", "\xE5\xA4\x87\xE4\xBB\xBD"},
    {Script::Thai, "reading: Thai", "filter: Thai",
     "\xE0\xB9\x80\xE0\xB8\xAD\xE0\xB8\x81\xE0\xB8\xAA\xE0\xB8\xB2\xE0\xB8\xA3"},
};

void Measure(const Case& one, const std::string& path, Figures& figures) {
    {
        std::ofstream out(path, std::ios::binary);
        WriteLog(out, kLines, 1, one.script);
    }
    NativeFiles files;
    Shortest floor, read;
    std::vector<LineOffsets> lines;
    for (int round = 0; round < kRounds; ++round) {
        floor.Keep(Milliseconds([&] { FindLines(files, path, lines); }));
        EntryLists entries;
        read.Keep(Milliseconds([&] { ReadLog(files, entries, path); }));
    }
    figures.Add({.what = one.reading,
                 .value = read.Value(),
                 .floor = floor.Value(),
                 .mostTimes = kReading});
    EntryLists entries;
    ReadLog(files, entries, path);
    const std::string bytes = TextsOf(entries);
    std::vector<std::int32_t> tags(static_cast<std::size_t>(entries.EntrySources().ListCount()) +
                                   1);
    std::iota(tags.begin(), tags.end(), 0);
    FilterChoice choice;
    choice.FilterText = one.word;
    Shortest scan, filter;
    std::size_t found = 0, scanned = 0;
    for (int round = 0; round < kRounds; ++round) {
        scan.Keep(Milliseconds([&] { scanned += Scan(bytes, one.word); }));
        filter.Keep(Milliseconds([&] { found += EntriesThatPass(entries, tags, choice).size(); }));
    }
    std::printf("%.0f MB, %zu rows and %zu places found\n",
                static_cast<double>(std::filesystem::file_size(path)) / 1e6, found / kRounds,
                scanned / kRounds);
    figures.Add(
        {.what = one.filter, .value = filter.Value(), .floor = scan.Value(), .mostTimes = kFilter});
}

}  // namespace
}  // namespace ordalyn::bench

int main() {
    using namespace ordalyn::bench;
    const std::string path = "bench_scripts.log";
    KeepFreeMemory();
    Figures figures("bench_scripts", kLines);
    for (const Case& one : kCases)
        Measure(one, path, figures);
    std::filesystem::remove(path);
    return figures.ExitCode();
}
