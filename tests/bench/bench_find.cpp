// bench_find [FILE]: what filtering all dates and searching to the end cost, as multiples of a
// plain scan of the same bytes. Without a file it writes a log of a million lines beside itself.
// Ends with 1 when a figure misses its target.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

#include "bench/LogGenerator.h"
#include "bench/NativeFiles.h"
#include "log/LogReader.h"
#include "search/EntryFilter.h"
#include "search/FieldScan.h"

namespace ordalyn::bench {
namespace {

constexpr int kRounds = 9;

class NoCodePages : public platform::CodePages {
  public:
    std::string ToUtf8(std::string_view, unsigned) override { return {}; }
    std::optional<std::string> FromUtf8(std::string_view, unsigned) override { return {}; }
    unsigned OfCharacterSet(std::int32_t) override { return kSystem; }
};

template <typename Work>
double Milliseconds(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

// The floor: every place of the bytes that holds these, letter case regarded, by the C library's
// own search where there is one.
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

// What a search that finds nothing does: every entry is looked at, none is shown.
bool SearchToTheEnd(const cStringArray& fields, std::string_view text) {
    return FieldScan(fields, text, false)
        .Run(
            fields.ListCount() + 1, [](std::int32_t entry) { return entry; },
            [](std::int32_t) { return true; });
}

bool missed = false;
std::size_t scanned = 0;  // printed, so that no scan can be left out

void Report(const char* what, std::size_t rows, double milliseconds, double floor, double target) {
    const bool met = milliseconds <= floor * target;
    missed = missed || !met;
    std::printf("%-34s %8zu rows %8.2f ms  floor %7.2f ms  %5.2f x  target %4.1f  %s\n", what, rows,
                milliseconds, floor, milliseconds / floor, target, met ? "met" : "MISSED");
}

void MeasureFilter(const char* what, const EntryLists& entries,
                   const std::vector<std::int32_t>& tags, std::string_view bytes,
                   std::string_view text, double target) {
    FilterChoice choice;
    choice.FilterText = text;
    double filter = 1e9;
    double floor = 1e9;
    std::size_t rows = 0;
    for (int round = 0; round < kRounds; ++round) {
        floor = std::min(floor, Milliseconds([&] { scanned += Scan(bytes, text); }));
        filter = std::min(
            filter, Milliseconds([&] { rows = EntriesThatPass(entries, tags, choice).size(); }));
    }
    Report(what, rows, filter, floor, target);
}

void MeasureSearch(const char* what, const EntryLists& entries, std::string_view bytes,
                   std::string_view text, double target) {
    double search = 1e9;
    double floor = 1e9;
    std::size_t found = 0;
    for (int round = 0; round < kRounds; ++round) {
        floor = std::min(floor, Milliseconds([&] { scanned += Scan(bytes, text); }));
        search = std::min(search, Milliseconds([&] {
                              found += SearchToTheEnd(entries.EntrySources(), text) ? 1 : 0;
                          }));
    }
    Report(what, found, search, floor, target);
}

void Measure(const std::string& path) {
    NativeFiles files;
    NoCodePages codePages;
    EntryLists entries;
    LogReader reader(files, codePages, entries);
    reader.BeginFile(path);
    reader.ReadEntries([](std::int32_t) {});
    std::string bytes;
    for (std::int32_t entry = 0; entry <= entries.EntrySources().ListCount(); ++entry)
        bytes.append(entries.EntrySources().List(entry))
            .append(entries.EntryTargets().List(entry))
            .append("\n");
    std::vector<std::int32_t> tags(
        static_cast<std::size_t>(entries.EntrySources().ListCount() + 1));
    std::iota(tags.begin(), tags.end(), 0);
    std::printf("%zu entries, %.1f MB of sources and targets\n", tags.size(),
                static_cast<double>(bytes.size()) / 1e6);
    MeasureFilter("filter: a rare text", entries, tags, bytes, "report77777", 3);
    MeasureFilter("filter: a rare text with k and s", entries, tags, bytes, "backup-set4711", 3);
    MeasureFilter("filter: a text that is not there", entries, tags, bytes, "quarterly", 3);
    MeasureFilter("filter: an operation word", entries, tags, bytes, ": Copy", 4);
    MeasureFilter("filter: another operation word", entries, tags, bytes, ": Delete", 4);
    MeasureFilter("filter: a word that is everywhere", entries, tags, bytes, "anna", 4);
    MeasureSearch("search to the end", entries, bytes, "quarterly", 3);
    MeasureSearch("search to the end, with k and s", entries, bytes, "skeleton-keys", 3);
    MeasureFilter("filter: German", entries, tags, bytes, "M\xC3\xBCnchen", 4);
    MeasureFilter("filter: Russian", entries, tags, bytes,
                  "\xD0\x94\xD0\xBE\xD0\xBA\xD1\x83\xD0\xBC\xD0\xB5\xD0\xBD\xD1\x82\xD1\x8B", 4);
    std::printf("%zu places found by the scans\n", scanned);
}

}  // namespace
}  // namespace ordalyn::bench

int main(int argc, char** argv) {
    const std::string path = argc > 1 ? argv[1] : "bench_find.log";
    if (argc <= 1) {
        std::ofstream out(path, std::ios::binary);
        ordalyn::bench::WriteLog(out, 1'000'000, 1);
    }
    ordalyn::bench::Measure(path);
    if (argc <= 1)
        std::filesystem::remove(path);
    return ordalyn::bench::missed ? 1 : 0;
}
