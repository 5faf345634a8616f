// Any bytes as the program's settings file, and as the texts of its language: the program starts,
// shows its log, can be used and closed, and what it keeps can be read.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Require.h"
#include "base/Text.h"
#include "hostconfig/cProfile.h"
#include "support/windows/MemoryProgram.h"

using namespace ordalyn;
using fuzz::Require;

namespace {

constexpr std::string_view kSettings = "C:\\Ordalyn\\Ordalyn.ini";

void CheckTexts(const toolkit::Form& form) {
    Require(IsValidUtf8(form.Caption()), "a caption is UTF-8");
    for (const auto& control : form.Controls())
        Require(IsValidUtf8(control->Caption()), "a label is UTF-8");
}

// Starts, works and ends; returns whether two panels were shown at the end.
bool Use(test::MemoryProgram& window) {
    window.Start();
    Require(window.Main().Visible(), "the window is shown");
    Require(window.Date().ListCount() == 3 && window.Source().RowCount() == 1, "with the log");
    CheckTexts(window.Main());
    for (const char* menu : {"mnuSearchFind", "mnuSearchFilter", "mnuViewRefresh",
                             "mnuViewTwoPanels", "mnuViewVerticalPanels"})
        window.Choose(menu);
    Require(window.Source().RowCount() == 1, "the log is still shown");
    const bool twoPanels = window.Main().Menu("mnuViewTwoPanels").Checked();
    window.Main().UserClosed();
    window.program.reset();
    return twoPanels;
}

std::string Kept(test::MemoryProgram& window, const char* key) {
    const mAppCommon common(window.system.services);
    return cProfile(window.system.services, common)
        .ReadValue(kOrdalynSection, key, "(absent)", kSettings)
        .value_or("");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    test::MemoryProgram window;
    const auto ini = window.system.files.Get("C:\\tc\\wincmd.ini");
    window.system.files.Set(kSettings, bytes);
    window.system.files.Set("C:\\Ordalyn\\a.lng", bytes);
    for (int run = 0; run < 2; ++run) {
        const bool twoPanels = Use(window);
        Require(Kept(window, "TwoPanels") == (twoPanels ? "1" : "0"), "what is chosen is kept");
        Require(Kept(window, "MainPosition") != "(absent)", "so is the window's place");
    }
    Require(window.system.files.Get("C:\\tc\\wincmd.ini") == ini,
            "the file manager's settings stay as they are");
    return 0;
}
