// What all benchmarks share: clocks, a plain scan to compare with, the log that is measured, and
// the rows of figures.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace ordalyn::bench {

// Every line of the logs that are written here is UTF-8; whatever is not is never asked for.
class NoCodePages : public platform::CodePages {
  public:
    std::string ToUtf8(std::string_view, unsigned) override { return {}; }
    std::optional<std::string> FromUtf8(std::string_view, unsigned) override { return {}; }
    unsigned OfCharacterSet(std::int32_t) override { return kSystem; }
};

// As a clock on the wall sees it.
template <typename Work>
double Milliseconds(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

// Of all processors for this process: where a disk may be waited for.
template <typename Work>
double ProcessorMilliseconds(Work&& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC;
}

// The shortest of several rounds: what the machine does besides only makes a round longer.
class Shortest {
  public:
    void Keep(double milliseconds) {
        if (!value_ || milliseconds < *value_)
            value_ = milliseconds;
    }
    double Value() const { return value_.value_or(0); }

  private:
    std::optional<double> value_;
};

// How often the wanted bytes stand in these, letter case regarded, by the C library's own search
// where there is one: the floor of every search.
std::size_t Scan(std::string_view bytes, std::string_view wanted);

// The log to measure with: the one that the first argument names, or one of a million lines, which
// is written now and gone at the end.
class LogToMeasure {
  public:
    LogToMeasure(int argc, char** argv, const char* ownName);
    ~LogToMeasure();
    LogToMeasure(const LogToMeasure&) = delete;
    LogToMeasure& operator=(const LogToMeasure&) = delete;
    const std::string& Path() const { return path_; }

  private:
    bool own_;
    std::string path_;
};

// A row of the table. A target of 0 is none.
struct Figure {
    const char* what;
    double value;
    const char* unit = "ms";
    double floor = 0;      // in the same unit; 0: there is none
    double mostTimes = 0;  // target: times the floor
    double most = 0;       // target: the value itself
};

// Prints rows of figures; where the environment variable ORDALYN_FIGURES names a file, they are
// added to it, too, separated by tabs, for tests/bench/figures.py.
class Figures {
  public:
    Figures(const char* program, std::size_t lines) : program_(program), lines_(lines) {}
    // Targets are those of large logs, or of what has nothing to do with the size of a log (0).
    void Add(Figure figure);
    // What the program ends with: 1 when a figure has missed its target.
    int ExitCode() const { return missed_ ? 1 : 0; }

  private:
    const char* program_;
    std::size_t lines_;
    bool missed_ = false;
};

}  // namespace ordalyn::bench
