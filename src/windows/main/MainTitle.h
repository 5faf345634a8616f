// MainTitle: the main window's caption: program, version and what is shown.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/Form.h"

namespace ordalyn {

class MainTitle {
  public:
    explicit MainTitle(toolkit::Form& mainWindow) : mainWindow_(mainWindow) {}

    // The text behind program and version.
    void SetTitle(std::string_view text);
    const std::string& Text() const { return text_; }
    // A file of the log's set, by its name. The folder in front of it is the live log's, also when
    // the file was opened from another one.
    void ShowFile(std::string_view fileName) { SetTitle(logFolder_ + std::string(fileName)); }
    // With a trailing backslash; empty when the live log's path has none.
    void SetLogFolder(std::string_view folder) { logFolder_ = folder; }

  private:
    toolkit::Form& mainWindow_;
    std::string text_;
    std::string logFolder_;
};

}  // namespace ordalyn
