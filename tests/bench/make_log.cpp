// make_log FILE [LINES] [SEED]: writes a log to look at or to measure with.
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "bench/LogGenerator.h"

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: make_log FILE [LINES] [SEED]\n");
        return 2;
    }
    const int lines = argc > 2 ? std::atoi(argv[2]) : 1'000'000;
    const unsigned long seed = argc > 3 ? std::strtoul(argv[3], nullptr, 10) : 1;
    std::ofstream out(argv[1], std::ios::binary);
    ordalyn::bench::WriteLog(out, lines, static_cast<std::uint32_t>(seed));
    out.close();
    return out ? 0 : 1;
}
