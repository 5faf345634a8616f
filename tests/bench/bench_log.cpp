// bench_log [FILE]: what reading a log, indexing and counting its days and filling the panels
// costs. Without a file it writes one of a million lines beside itself. Ends with 1 when a figure
// misses its target.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "bench/LogFloor.h"
#include "bench/Measuring.h"
#include "bench/MemoryMeter.h"
#include "bench/NativeFiles.h"
#include "bench/ReadLog.h"
#include "log/CalendarDays.h"
#include "log/DayIndex.h"
#include "log/DayRows.h"
#include "log/LineReader.h"
#include "log/Operation.h"
#include "support/toolkit/MemoryToolkit.h"
#include "toolkit/ListView.h"
#include "windows/panels/EntryRows.h"

namespace ordalyn::bench {
namespace {

// Of a log that takes seconds they are enough.
constexpr int kRoundsOfLargeLog = 3;
constexpr double kLargeLog = 5e8;  // bytes
constexpr int kRounds = 15;

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

struct Rounds {
    Shortest floor, count, read, newMemory, readIntoNewMemory, index, fill, calendar, failed;
    double memory = 0;
    std::size_t lines = 0;
    int rows = 0;
    std::size_t days = 0;
};

// What the calendar counts: entries from the days alone, then a look at each of them.
void MeasureCalendar(const EntryLists& entries, const DayIndex& days, Rounds& best) {
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
    best.calendar.Keep(Milliseconds([&] { calendar.Count(entries, days); }));
    best.failed.Keep(Milliseconds([&] {
        for (const CalendarDays::Day& day : calendar.Days())
            calendar.FailedOn(day);
    }));
}

void MeasureRound(const std::string& path, Rounds& best) {
    NativeFiles files;
    {
        static std::vector<LineOffsets> lines;
        best.floor.Keep(Milliseconds([&] { FindLines(files, path, lines); }));
        best.lines = lines.size();
    }
    best.count.Keep(Milliseconds([&] { CountFileLines(files, path); }));
    {
        const std::size_t before = MemoryHeld();
        EntryLists entries;
        best.read.Keep(Milliseconds([&] { ReadLog(files, entries, path); }));
        best.memory = static_cast<double>(MemoryHeld() - before);
        DayIndex days;
        best.index.Keep(Milliseconds([&] { best.days = days.Build(entries.EntryDates()).size(); }));
        MeasureCalendar(entries, days, best);
        Panels panels;
        best.fill.Keep(Milliseconds([&] { best.rows = FillPanels(panels, entries, days); }));
    }
    ReturnFreeMemory();
    best.newMemory.Keep(
        Milliseconds([&] { TouchNewMemory(static_cast<std::size_t>(best.memory)); }));
    ReturnFreeMemory();
    EntryLists entries;
    best.readIntoNewMemory.Keep(Milliseconds([&] { ReadLog(files, entries, path); }));
}

int Measure(const std::string& path) {
    const auto bytes = static_cast<double>(std::filesystem::file_size(path));
    KeepFreeMemory();
    Rounds best;
    const int rounds = bytes < kLargeLog ? kRounds : kRoundsOfLargeLog;
    for (int round = 0; round < rounds; ++round)
        MeasureRound(path, best);
    std::printf("%zu lines, %d rows, %zu days, %.1f MB; shortest of %d rounds\n", best.lines,
                best.rows, best.days, bytes / 1e6, rounds);
    const double floor = best.floor.Value();
    Figures figures("bench_log", best.lines);
    figures.Add({.what = "floor: one pass that finds the fields", .value = floor});
    figures.Add({.what = "counting the lines", .value = best.count.Value(), .floor = floor});
    figures.Add({.what = "counting and reading",
                 .value = best.read.Value(),
                 .floor = floor,
                 .mostTimes = 2.5});
    figures.Add({.what = "the same into memory that is new to the process",
                 .value = best.readIntoNewMemory.Value(),
                 .floor = floor,
                 .mostTimes = 2.4});
    figures.Add({.what = "the system's part in that: as much memory touched",
                 .value = best.newMemory.Value(),
                 .floor = floor});
    figures.Add({.what = "memory of the entry lists; floor: the file",
                 .value = best.memory / 1e6,
                 .unit = "MB",
                 .floor = bytes / 1e6,
                 .mostTimes = 1.6});
    // For a million lines; a larger log may take longer in the same measure.
    const double size = std::max(1.0, static_cast<double>(best.lines) / 1e6);
    figures.Add({.what = "filling both panels with all dates",
                 .value = best.fill.Value(),
                 .most = 20 * size});
    figures.Add({.what = "indexing the days", .value = best.index.Value(), .most = 20 * size});
    figures.Add({.what = "counting the entries of each day",
                 .value = best.calendar.Value(),
                 .most = 20 * size});
    figures.Add({.what = "looking at all entries for what failed",
                 .value = best.failed.Value(),
                 .most = 250 * size});
    return figures.ExitCode();
}

}  // namespace
}  // namespace ordalyn::bench

int main(int argc, char** argv) {
    try {
        const ordalyn::bench::LogToMeasure log(argc, argv, "bench_log.log");
        return ordalyn::bench::Measure(log.Path());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
