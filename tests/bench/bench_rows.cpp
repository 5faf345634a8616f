// bench_rows [FILE]: what saving all rows as a table costs, as a multiple of a plain write of the
// same bytes, and what finding the failed operations costs, as a multiple of a filter. Without a
// file it writes a log of a million lines beside itself. Ends with 1 when a figure misses its
// target.
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <string>
#include <vector>

#include "bench/LogGenerator.h"
#include "bench/NativeFiles.h"
#include "log/EntryTable.h"
#include "log/LogReader.h"
#include "search/EntryFilter.h"
#include "search/FailedEntries.h"

namespace ordalyn::bench {
namespace {

constexpr int kRounds = 7;
constexpr std::size_t kBlock = std::size_t{1} << 20;

class NoCodePages : public platform::CodePages {
  public:
    std::string ToUtf8(std::string_view, unsigned) override { return {}; }
    std::optional<std::string> FromUtf8(std::string_view, unsigned) override { return {}; }
    unsigned OfCharacterSet(std::int32_t) override { return kSystem; }
};

// Processor time of this process, so that what else the machine does matters little.
template <typename Work>
double Milliseconds(const Work& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC;
}

bool missed = false;

void Report(const char* what, double milliseconds, double floor, double target, double most) {
    const bool met = milliseconds <= floor * target && milliseconds <= most;
    missed = missed || !met;
    std::printf("%-34s %8.2f ms  floor %7.2f ms  %5.2f x  target %4.1f x, %5.0f ms  %s\n", what,
                milliseconds, floor, milliseconds / floor, target, most, met ? "met" : "MISSED");
}

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

void Measure(const std::string& path) {
    NativeFiles files;
    NoCodePages codePages;
    EntryLists entries;
    LogReader reader(files, codePages, entries);
    reader.BeginFile(path);
    reader.ReadEntries([](std::int32_t) {});
    std::vector<std::int32_t> tags(
        static_cast<std::size_t>(entries.EntrySources().ListCount() + 1));
    std::iota(tags.begin(), tags.end(), 0);
    const OperationReader operations(EnglishNames());
    const std::string saved = path + ".table";
    for (const TableForm form : {TableForm::TabSeparated, TableForm::CommaSeparated}) {
        const EntryTable table(entries, operations, form);
        double floor = 1e9;
        double save = 1e9;
        std::string bytes;
        for (const std::int32_t entry : tags)
            table.AddEntry(bytes, entry);
        for (int round = 0; round < kRounds; ++round) {
            floor = std::min(floor, Milliseconds([&] { files.Replace(saved, bytes); }));
            save = std::min(save, Milliseconds([&] {
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
        Report(form == TableForm::TabSeparated ? "saving rows, tabs" : "saving rows, commas", save,
               floor, 10, 1000);
    }
    std::filesystem::remove(saved);
    FilterChoice choice;
    choice.FilterText = ": Copy";
    double filter = 1e9;
    double failed = 1e9;
    std::size_t count = 0;
    for (int round = 0; round < kRounds; ++round) {
        filter = std::min(
            filter, Milliseconds([&] { count += EntriesThatPass(entries, tags, choice).size(); }));
        failed = std::min(failed, Milliseconds([&] {
                              count += EntriesThatFailed(entries, tags, operations).size();
                          }));
    }
    Report("failed operations, floor a filter", failed, filter, 5, 500);
    std::printf("%zu rows found\n", count);
}

}  // namespace
}  // namespace ordalyn::bench

int main(int argc, char** argv) {
    const std::string path = argc > 1 ? argv[1] : "bench_rows.log";
    if (argc <= 1) {
        std::ofstream out(path, std::ios::binary);
        ordalyn::bench::WriteLog(out, 1'000'000, 1);
    }
    ordalyn::bench::Measure(path);
    if (argc <= 1)
        std::filesystem::remove(path);
    return ordalyn::bench::missed ? 1 : 0;
}
