// bench_rows [FILE]: what saving all rows as a table costs, as a multiple of a plain write of the
// same bytes, and what finding the failed operations costs, as a multiple of a filter. Without a
// file it writes a log of a million lines beside itself. Ends with 1 when a figure misses its
// target.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <numeric>
#include <string>
#include <vector>

#include "bench/Measuring.h"
#include "bench/NativeFiles.h"
#include "log/EntryTable.h"
#include "log/LogReader.h"
#include "search/EntryFilter.h"
#include "search/FailedEntries.h"

namespace ordalyn::bench {
namespace {

constexpr int kRounds = 7;
constexpr std::size_t kBlock = std::size_t{1} << 20;

std::vector<OperationName> EnglishNames() {
    return {{OperationKind::ProgramStart, "Program start"},
            {OperationKind::ProgramShutdown, "Program shutdown"},
            {OperationKind::Copy, "Copy"},
            {OperationKind::Move, "Move"},
            {OperationKind::Shortcut, "Shortcut"},
            {OperationKind::NewFolder, "NewFolder"},
            {OperationKind::Delete, "Delete"},
            {OperationKind::DeleteFolder, "DeleteFolder"},
            {OperationKind::Pack, "Pack"},
            {OperationKind::Unpack, "Unpack"},
            {OperationKind::Test, "Test"},
            {OperationKind::CreateFile, "CreateFile"}};
}

int Measure(const std::string& path) {
    NativeFiles files;
    NoCodePages codePages;
    EntryLists entries;
    LogReader reader(files, codePages, entries);
    reader.BeginFile(path);
    reader.ReadEntries();
    std::vector<std::int32_t> tags(
        static_cast<std::size_t>(entries.EntrySources().ListCount() + 1));
    std::iota(tags.begin(), tags.end(), 0);
    const OperationReader operations(EnglishNames());
    Figures figures("bench_rows", tags.size());
    // For a million rows; more of them may take longer in the same measure.
    const double size = std::max(1.0, static_cast<double>(tags.size()) / 1e6);
    const std::string saved = path + ".table";
    for (const TableForm form : {TableForm::TabSeparated, TableForm::CommaSeparated}) {
        const EntryTable table(entries, operations, form);
        Shortest floor, save;
        std::string bytes;
        for (const std::int32_t entry : tags)
            table.AddEntry(bytes, entry);
        for (int round = 0; round < kRounds; ++round) {
            floor.Keep(ProcessorMilliseconds([&] { files.Replace(saved, bytes); }));
            save.Keep(ProcessorMilliseconds([&] {
                const auto file = files.BeginReplacing(saved);
                std::string block;
                for (const std::int32_t entry : tags) {
                    table.AddEntry(block, entry);
                    if (block.size() < kBlock)
                        continue;
                    file->Write(block);
                    block.clear();
                }
                file->Write(block);
                file->TakePlace();
            }));
        }
        figures.Add(
            {.what = form == TableForm::TabSeparated ? "saving rows, tabs" : "saving rows, commas",
             .value = save.Value(),
             .floor = floor.Value(),
             .mostTimes = 10,
             .most = 1000 * size});
    }
    std::filesystem::remove(saved);
    FilterChoice choice;
    choice.FilterText = ": Copy";
    Shortest filter, failed;
    std::size_t count = 0;
    for (int round = 0; round < kRounds; ++round) {
        filter.Keep(Milliseconds([&] { count += EntriesThatPass(entries, tags, choice).size(); }));
        failed.Keep(
            Milliseconds([&] { count += EntriesThatFailed(entries, tags, operations).size(); }));
    }
    figures.Add({.what = "failed operations; floor: a filter by a word",
                 .value = failed.Value(),
                 .floor = filter.Value(),
                 .mostTimes = 5,
                 .most = 500 * size});
    std::printf("%zu rows found\n", count);
    return figures.ExitCode();
}

}  // namespace
}  // namespace ordalyn::bench

int main(int argc, char** argv) {
    const ordalyn::bench::LogToMeasure log(argc, argv, "bench_rows.log");
    return ordalyn::bench::Measure(log.Path());
}
