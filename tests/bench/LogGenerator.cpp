#include "bench/LogGenerator.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <ostream>
#include <random>
#include <string>
#include <string_view>

namespace ordalyn::bench {

namespace {

constexpr std::int64_t kFirstSecond = 1704096000;  // 1 January 2024, 8 o'clock
constexpr int kDays = 700;
constexpr int kSecondsOfADay = 86400;

constexpr std::string_view kFolders[] = {
    "Projects",
    "Photos",
    "lib",
    "2024",
    "tools",
    "Desktop",
    "old",
    "web",
    "Photos 2024",
    "Backup",
    "Documents",
    "Invoices",
    "Music",
    "src",
    "release",
    "Archive",
    "Temp",
    "Kunden",
    "M\xC3\xBCnchen",
    "\xD0\x94\xD0\xBE\xD0\xBA\xD1\x83\xD0\xBC\xD0\xB5\xD0\xBD\xD1\x82\xD1\x8B"};
constexpr std::string_view kNames[] = {"a",
                                       "DSC",
                                       "data",
                                       "mail",
                                       "photo",
                                       "list",
                                       "doc",
                                       "build",
                                       "report",
                                       "IMG_",
                                       "scan_",
                                       "main",
                                       "letter to the landlord",
                                       "notes",
                                       "setup",
                                       "track",
                                       "index",
                                       "budget",
                                       "Pr\xC3\xA4sentation",
                                       "r\xC3\xA9sum\xC3\xA9",
                                       "backup-set"};
constexpr std::string_view kExtensions[] = {".txt",  ".jpg", ".pdf", ".cpp",
                                            ".docx", ".zip", ".mp3", ".html"};

class Generator {
  public:
    Generator(std::ostream& out, int lines, std::uint32_t seed)
        : out_(out), lines_(lines), random_(seed) {}

    void Write() {
        out_ << "\xEF\xBB\xBF";
        for (int line = 0; line < lines_; ++line)
            WriteLine(line);
    }

  private:
    std::uint32_t Below(std::size_t limit) {
        // The generator's own numbers are the same everywhere; the library's distributions are not.
        return static_cast<std::uint32_t>(random_() % limit);
    }
    template <std::size_t Count>
    std::string_view OneOf(const std::string_view (&choices)[Count]) {
        return choices[Below(Count)];
    }

    std::string Stamp(int line) {
        const std::int64_t day = std::int64_t{line} * kDays / lines_;
        const std::int64_t inDay = (std::int64_t{line} * kDays % lines_) * 36000 / lines_;
        const std::time_t now =
            static_cast<std::time_t>(kFirstSecond + day * kSecondsOfADay + inDay);
        std::tm parts{};
#ifdef _WIN32
        gmtime_s(&parts, &now);
#else
        gmtime_r(&now, &parts);
#endif
        std::array<char, 32> text{};
        std::strftime(text.data(), text.size(), "%d.%m.%Y %H:%M:%S: ", &parts);
        return text.data();
    }

    std::string Path(std::string_view root) {
        std::string path(root);
        for (std::uint32_t depth = 1 + Below(2); depth > 0; --depth)
            path.append(OneOf(kFolders)).append("\\");
        return path;
    }

    void WriteLine(int line) {
        out_ << Stamp(line);
        const std::uint32_t kind = Below(100);
        if (kind == 0) {
            out_ << "Program start (anna/DESK7) UTF-8";
        } else if (kind == 1) {
            out_ << "Program shutdown (anna/DESK7)";
        } else {
            const std::string name = std::string(OneOf(kNames)) + std::to_string(Below(100000)) +
                                     std::string(OneOf(kExtensions));
            const std::string source = Path("C:\\Users\\anna\\") + name;
            if (kind < 62)
                out_ << "Copy: " << source << " -> " << Path("D:\\") << name;
            else if (kind < 75)
                out_ << "Move: " << source << " -> " << Path("D:\\") << name;
            else if (kind < 78)
                out_ << "Copy: Error: Read error: " << source << " -> " << Path("E:\\") << name;
            else if (kind < 80)
                out_ << "Delete: Failed: " << source;
            else if (kind < 92)
                out_ << "Delete: " << source;
            else if (kind < 96)
                out_ << "NewFolder: " << source;
            else
                out_ << "Unpack: " << source << " -> " << Path("\\\\server\\share\\anna\\");
        }
        out_ << "\r\n";
    }

    std::ostream& out_;
    int lines_;
    std::mt19937 random_;
};

}  // namespace

void WriteLog(std::ostream& out, int lines, std::uint32_t seed) {
    Generator(out, lines, seed).Write();
}

}  // namespace ordalyn::bench
