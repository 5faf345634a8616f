#include "bench/Measuring.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "bench/LogGenerator.h"

namespace ordalyn::bench {

namespace {

constexpr int kLines = 1'000'000;
// Of a log with fewer lines everything is there at once, and what counts once weighs most.
constexpr std::size_t kFewestForTargets = 500'000;

std::string Number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, value < 0.1 ? "%.4f" : value < 10 ? "%.2f" : "%.1f", value);
    return text;
}

}  // namespace

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

LogToMeasure::LogToMeasure(int argc, char** argv, const char* ownName)
    : own_(argc <= 1), path_(own_ ? ownName : argv[1]) {
    if (!own_)
        return;
    std::ofstream out(path_, std::ios::binary);
    WriteLog(out, kLines, 1);
}

LogToMeasure::~LogToMeasure() {
    std::error_code ignored;
    if (own_)
        std::filesystem::remove(path_, ignored);
}

void Figures::Add(Figure figure) {
    if (lines_ != 0 && lines_ < kFewestForTargets)
        figure.mostTimes = figure.most = 0;
    const double times = figure.floor > 0 ? figure.value / figure.floor : 0;
    const bool aims = figure.mostTimes > 0 || figure.most > 0;
    const bool met = (figure.mostTimes == 0 || times <= figure.mostTimes) &&
                     (figure.most == 0 || figure.value <= figure.most);
    missed_ = missed_ || !met;
    std::string target;
    if (figure.mostTimes > 0)
        target += Number(figure.mostTimes) + " x ";
    if (figure.most > 0)
        target += Number(figure.most) + " " + figure.unit;
    std::printf("%-52s %8s %-6s", figure.what, Number(figure.value).c_str(), figure.unit);
    if (figure.floor > 0)
        std::printf(" floor %8s  %6s x", Number(figure.floor).c_str(), Number(times).c_str());
    else
        std::printf("%26s", "");
    std::printf("  %s%s%s\n", aims ? "target " : "", target.c_str(),
                aims ? (met ? "  met" : "  MISSED") : "");
    const char* path = std::getenv("ORDALYN_FIGURES");
    if (path == nullptr)
        return;
    std::ofstream out(path, std::ios::binary | std::ios::app);
    out << program_ << '\t' << lines_ << '\t' << figure.what << '\t' << figure.value << '\t'
        << figure.unit << '\t' << figure.floor << '\t' << figure.mostTimes << '\t' << figure.most
        << '\n';
}

}  // namespace ordalyn::bench
