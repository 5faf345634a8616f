// bench_log [FILE]: what reading a log, indexing and counting its days and filling the panels
// costs. Without a file it writes one of a million lines beside itself. Ends with 1 when a figure
// misses its target.
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "bench/LogFloor.h"
#include "bench/LogGenerator.h"
#include "bench/MemoryMeter.h"
#include "bench/NativeFiles.h"
#include "log/CalendarDays.h"
#include "log/DayIndex.h"
#include "log/DayRows.h"
#include "log/LineReader.h"
#include "log/LogReader.h"
#include "log/Operation.h"
#include "support/toolkit/MemoryToolkit.h"
#include "toolkit/ListView.h"
#include "windows/panels/EntryRows.h"

namespace ordalyn::bench {
namespace {

constexpr int kRounds = 15;

// Every line of the log that is written here is UTF-8; whatever is not is never asked for.
class NoCodePages : public platform::CodePages {
  public:
    std::string ToUtf8(std::string_view, unsigned) override { return {}; }
    std::optional<std::string> FromUtf8(std::string_view, unsigned) override { return {}; }
    unsigned OfCharacterSet(std::int32_t) override { return kSystem; }
};

// Processor time of this process, so that what else the machine does matters little.
template <typename Work>
double Milliseconds(Work&& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC;
}

bool missed = false;

void Report(const char* what, double value, const char* unit, double target) {
    const bool met = value <= target;
    missed = missed || !met;
    std::printf("%-52s %7.2f %-8s target %6.2f  %s\n", what, value, unit, target,
                met ? "met" : "MISSED");
}

// The main window's two panels, without a window.
constexpr toolkit::ControlDesign kPanels[] = {
    {toolkit::Kind::ListView, "SourceListView"},
    {toolkit::Kind::ListView, "TargetListView"},
};
constexpr toolkit::FormDesign kForm = {"frmPanels", "", {9000, 6000}, {}, kPanels};

struct Panels {
    Panels() {
        source.AddColumn("Time", 900, EntryRows::kTime);
        source.AddColumn("Source", 9000, EntryRows::kOperation);
        target.AddColumn("Target", 9000, EntryRows::kTarget);
    }
    test::MemoryToolkit toolkit;
    toolkit::Form form{toolkit, kForm};
    toolkit::ListView& source = form.Get<toolkit::ListView>("SourceListView");
    toolkit::ListView& target = form.Get<toolkit::ListView>("TargetListView");
};

int FillPanels(Panels& panels, const EntryLists& entries, const DayIndex& days) {
    auto tags = std::make_shared<std::vector<std::int32_t>>(DayRows(entries, days, kAllDates));
    const auto rows = std::make_shared<EntryRows>(entries);
    panels.source.Fill(rows, tags);
    panels.target.Fill(rows, tags);
    return panels.source.RowCount();
}

// The shortest of several rounds: what the machine does besides only makes a round longer.
void Keep(double& best, double milliseconds) {
    best = best == 0 ? milliseconds : std::min(best, milliseconds);
}

struct Figures {
    double floor = 0, count = 0, read = 0, newMemory = 0, readIntoNewMemory = 0, index = 0,
           fill = 0, calendar = 0, failed = 0;
    double memory = 0;
    std::size_t lines = 0;
    int rows = 0;
    std::size_t days = 0;
};

void ReadFile(platform::Files& files, EntryLists& entries, const std::string& path) {
    NoCodePages codePages;
    LogReader reader(files, codePages, entries);
    reader.BeginFile(path);
    reader.ReadEntries([](std::int32_t) {});
    entries.FreeExtraItems();
}

// What the calendar counts: entries from the days alone, then a look at each of them.
void MeasureCalendar(const EntryLists& entries, const DayIndex& days, Figures& best) {
    const OperationReader reader({{OperationKind::Copy, "Copy"},
                                  {OperationKind::Move, "Move"},
                                  {OperationKind::Shortcut, "Shortcut"},
                                  {OperationKind::NewFolder, "NewFolder"},
                                  {OperationKind::Delete, "Delete"},
                                  {OperationKind::DeleteFolder, "DeleteFolder"},
                                  {OperationKind::Pack, "Pack"},
                                  {OperationKind::Unpack, "Unpack"}});
    CalendarDays calendar(
        [date = CalendarDays::Date()](std::string_view) mutable {
            return std::optional(date += std::chrono::days(1));
        },
        [&](std::int32_t entry) {
            return reader
                .Read(entries.EntrySources().List(entry), entries.EntryTargets().List(entry))
                .Failed();
        });
    Keep(best.calendar, Milliseconds([&] { calendar.Count(entries, days); }));
    Keep(best.failed, Milliseconds([&] {
             for (const CalendarDays::Day& day : calendar.Days())
                 calendar.FailedOn(day);
         }));
}

void MeasureRound(const std::string& path, Figures& best) {
    NativeFiles files;
    {
        static std::vector<LineOffsets> lines;
        Keep(best.floor, Milliseconds([&] { FindLines(files, path, lines); }));
        best.lines = lines.size();
    }
    Keep(best.count, Milliseconds([&] { CountFileLines(files, path); }));
    {
        const std::size_t before = MemoryHeld();
        EntryLists entries;
        Keep(best.read, Milliseconds([&] { ReadFile(files, entries, path); }));
        best.memory = static_cast<double>(MemoryHeld() - before);
        DayIndex days;
        Keep(best.index,
             Milliseconds([&] { best.days = days.Build(entries.EntryDates()).size(); }));
        MeasureCalendar(entries, days, best);
        Panels panels;
        Keep(best.fill, Milliseconds([&] { best.rows = FillPanels(panels, entries, days); }));
    }
    ReturnFreeMemory();
    Keep(best.newMemory,
         Milliseconds([&] { TouchNewMemory(static_cast<std::size_t>(best.memory)); }));
    ReturnFreeMemory();
    EntryLists entries;
    Keep(best.readIntoNewMemory, Milliseconds([&] { ReadFile(files, entries, path); }));
}

void Measure(const std::string& path) {
    const auto bytes = static_cast<double>(std::filesystem::file_size(path));
    KeepFreeMemory();
    Figures best;
    for (int round = 0; round < kRounds; ++round)
        MeasureRound(path, best);
    std::printf("%zu lines, %d rows, %zu days, %.1f MB; shortest of %d rounds\n", best.lines,
                best.rows, best.days, bytes / 1e6, kRounds);
    const auto print = [](const char* what, double milliseconds) {
        std::printf("%-52s %7.2f ms\n", what, milliseconds);
    };
    print("floor: one pass that finds the fields", best.floor);
    print("counting the lines", best.count);
    print("counting and reading", best.read);
    print("the same into memory that is new to the process", best.readIntoNewMemory);
    print("the system's part in that: as much memory touched", best.newMemory);
    Report("counting and reading", best.read / best.floor, "x floor", 2.5);
    Report("memory of the entry lists", best.memory / bytes, "x file", 1.6);
    Report("filling both panels with all dates", best.fill, "ms", 20);
    Report("indexing the days", best.index, "ms", 20);
    Report("counting the entries of each day", best.calendar, "ms", 20);
    Report("looking at all entries for what failed", best.failed, "ms", 250);
}

}  // namespace
}  // namespace ordalyn::bench

int main(int argc, char** argv) {
    const std::string path = argc > 1 ? argv[1] : "bench_log.log";
    if (argc <= 1) {
        std::ofstream out(path, std::ios::binary);
        ordalyn::bench::WriteLog(out, 1'000'000, 1);
    }
    try {
        ordalyn::bench::Measure(path);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
    if (argc <= 1)
        std::filesystem::remove(path);
    return ordalyn::bench::missed ? 1 : 0;
}
