// The whole program in memory, in one of the languages that ship.
#pragma once

#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/windows/ProgramWindow.h"

namespace ordalyn::test {

inline constexpr const char* kBuiltInLanguage = "English";

inline constexpr const char* kLog = "C:\\logs\\tc.log";
inline constexpr const char* kGone = "D:\\Archiv\\2023\\totalcmd.log";
inline constexpr const char* kSought = "Urlaub 2024.jpg";
// The log's days have so many lines: what one form of a word does not say rightly in every
// language.
inline constexpr int kRows[] = {1, 2, 5, 21};

class Speaker : public ProgramWindow {
  public:
    using ProgramWindow::Choose;
    using ProgramWindow::Date;
    using ProgramWindow::Files;
    using ProgramWindow::Main;
    using ProgramWindow::program;
    using ProgramWindow::SetIni;
    using ProgramWindow::SetLog;
    using ProgramWindow::Source;
    using ProgramWindow::Start;
    using ProgramWindow::Status;
    using ProgramWindow::system;
    using ProgramWindow::Target;
    using ProgramWindow::tools;

    // `language` is the name of a file in languages/ without its ending, or kBuiltInLanguage.
    explicit Speaker(std::string language) : language_(std::move(language)) {
        if (language_ != kBuiltInLanguage) {
            std::ifstream file(ORDALYN_SOURCE_DIR "/languages/" + language_ + ".lng",
                               std::ios::binary);
            system.files.Set("C:\\Ordalyn\\used.lng",
                             std::string(std::istreambuf_iterator<char>(file), {}));
        }
        SetSettings(
            (language_ == kBuiltInLanguage ? "UseDefaultLanguage=1" : "UseDefaultLanguage=0") +
            std::string("\r\nFindOptions=0,0,0,0\r\nFind1=") + kSought +
            "\r\nRecentFiles1=" + kGone + "\r\n[Common]\r\nLanguageFile=C:\\Ordalyn\\used.lng");
        SetIni("LogFile=" + std::string(kLog) + "\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
        std::vector<std::string> lines;
        for (const int rows : kRows) {
            for (int row = 0; row < rows; ++row)
                lines.push_back("0" + std::to_string(rows % 9) + ".03.2024 10:00:00: Delete z");
        }
        SetLog(kLog, lines);
        SetLog("C:\\logs\\tc.1.log", {"01.01.2024 10:00:00: Copy o -> p"});
    }
    ~Speaker() override { kept.reset(); }
    Speaker(const Speaker&) = delete;
    Speaker& operator=(const Speaker&) = delete;
    void TestBody() override {}

    SharedObjects& Shared() { return program->Shared(); }
    std::string Text(std::int32_t id) { return Shared().Text(id); }
    const std::string& Language() const { return language_; }
    std::string LastMessage() const {
        return tools.messages.empty() ? "" : tools.messages.back().text;
    }

    // What has to last as long as the program.
    std::shared_ptr<void> kept;

  private:
    std::string language_;
};

}  // namespace ordalyn::test
