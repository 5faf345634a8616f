// bench_find [FILE]: what filtering all dates and searching to the end cost, as multiples of a
// plain scan of the same bytes. Without a file it writes a log of a million lines beside itself.
// Ends with 1 when a figure misses its target.
#include <cstdio>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

#include "bench/Measuring.h"
#include "bench/NativeFiles.h"
#include "bench/ReadLog.h"
#include "search/EntryFilter.h"
#include "search/FieldScan.h"

namespace ordalyn::bench {
namespace {

constexpr int kRounds = 9;

// The entries of a log, and their sources and targets side by side for the plain scan.
struct Log {
    explicit Log(const std::string& path) {
        NativeFiles files;
        ReadLog(files, entries, path);
        const std::int32_t last = entries.EntrySources().ListCount();
        for (std::int32_t entry = 0; entry <= last; ++entry)
            bytes.append(entries.EntrySources().List(entry))
                .append(entries.EntryTargets().List(entry))
                .append("\n");
        tags.resize(static_cast<std::size_t>(last + 1));
        std::iota(tags.begin(), tags.end(), 0);
    }
    EntryLists entries;
    std::vector<std::int32_t> tags;
    std::string bytes;
};

class Measurement {
  public:
    explicit Measurement(const Log& log) : log_(log), figures_("bench_find", log.tags.size()) {}

    void Filter(const char* what, std::string_view text, double target) {
        FilterChoice choice;
        choice.FilterText = text;
        Against(what, text, target,
                [&] { found_ += EntriesThatPass(log_.entries, log_.tags, choice).size(); });
    }
    // A search that finds nothing: every entry is looked at, none is shown.
    void SearchToTheEnd(const char* what, std::string_view text, double target) {
        const cStringArray& fields = log_.entries.EntrySources();
        Against(what, text, target, [&] {
            found_ += FieldScan(fields, text, false)
                              .Run(
                                  fields.ListCount() + 1, [](std::int32_t entry) { return entry; },
                                  [](std::int32_t) { return true; })
                          ? 1
                          : 0;
        });
    }
    int ExitCode() const {
        std::printf("%zu rows and %zu places found in all rounds\n", found_, scanned_);
        return figures_.ExitCode();
    }

  private:
    template <typename Work>
    void Against(const char* what, std::string_view text, double target, const Work& work) {
        Shortest floor, best;
        for (int round = 0; round < kRounds; ++round) {
            floor.Keep(Milliseconds([&] { scanned_ += Scan(log_.bytes, text); }));
            best.Keep(Milliseconds(work));
        }
        figures_.Add(
            {.what = what, .value = best.Value(), .floor = floor.Value(), .mostTimes = target});
    }

    const Log& log_;
    Figures figures_;
    // Printed, so that no round can be left out.
    std::size_t found_ = 0;
    std::size_t scanned_ = 0;
};

int Measure(const std::string& path) {
    const Log log(path);
    std::printf("%zu entries, %.1f MB of sources and targets; shortest of %d rounds\n",
                log.tags.size(), static_cast<double>(log.bytes.size()) / 1e6, kRounds);
    Measurement measurement(log);
    measurement.Filter("filter: a rare text", "report77777", 3);
    measurement.Filter("filter: a rare text with k and s", "backup-set4711", 3);
    measurement.Filter("filter: a text that is not there", "quarterly", 3);
    measurement.Filter("filter: an operation word", ": Copy", 4);
    measurement.Filter("filter: another operation word", ": Delete", 4);
    measurement.Filter("filter: a word that is everywhere", "anna", 4);
    measurement.SearchToTheEnd("search to the end", "quarterly", 3);
    measurement.SearchToTheEnd("search to the end, with k and s", "skeleton-keys", 3);
    measurement.Filter("filter: German", "M\xC3\xBCnchen", 4);
    measurement.Filter("filter: Russian",
                       "\xD0\x94\xD0\xBE\xD0\xBA\xD1\x83\xD0\xBC\xD0\xB5\xD0\xBD\xD1\x82\xD1\x8B",
                       2);
    return measurement.ExitCode();
}

}  // namespace
}  // namespace ordalyn::bench

int main(int argc, char** argv) {
    const ordalyn::bench::LogToMeasure log(argc, argv, "bench_find.log");
    return ordalyn::bench::Measure(log.Path());
}
