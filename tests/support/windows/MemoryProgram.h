// The whole program in memory, beside a file manager with a log of two days.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Program.h"
#include "support/platform/MemoryPlatform.h"
#include "support/toolkit/MemoryToolkit.h"

namespace ordalyn::test {

class MemoryProgram {
  public:
    MemoryProgram() {
        system.files.AddFolder("C:\\Ordalyn");
        system.files.AddFolder("C:\\Windows");
        system.environment.SetVariable("windir", "C:\\Windows");
        system.environment.SetVariable("TEMP", "C:\\Temp");
        system.environment.SetVariable("Commander_Path", "C:\\tc");
        system.environment.SetVariable("Commander_INI", "C:\\tc\\wincmd.ini");
        SetIni("LogFile=C:\\logs\\tc.log");
        SetLog("C:\\logs\\tc.log", {"01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt",
                                    "01.03.2024 10:15:31: Delete C:\\b.txt",
                                    "02.03.2024 11:00:00: Move C:\\c -> D:\\Ordner \xC3\xBC"});
    }

    void SetIni(const std::string& lines) {
        system.files.Set("C:\\tc\\wincmd.ini", "[Configuration]\r\n" + lines + "\r\n");
    }
    void SetLog(const std::string& path, const std::vector<std::string>& lines) {
        std::string bytes;
        for (const std::string& line : lines)
            bytes += line + "\r\n";
        system.files.Set(path, "\xEF\xBB\xBF" + bytes);
    }
    void SetSettings(const std::string& lines) {
        system.files.Set("C:\\Ordalyn\\Ordalyn.ini", "[Ordalyn]\r\n" + lines + "\r\n");
    }
    // Starts the program and lets the main window become active.
    frmMain& Start() {
        program = std::make_unique<Program>(system.services, tools);
        tools.DoLaterWork();
        return program->MainWindow();
    }
    frmMain& Main() { return program->MainWindow(); }
    template <typename T>
    T& Get(const char* name) {
        return Main().Get<T>(name);
    }
    toolkit::ListView& Source() { return Get<toolkit::ListView>("SourceListView"); }
    toolkit::ListView& Target() { return Get<toolkit::ListView>("TargetListView"); }
    toolkit::ComboBox& Date() { return Get<toolkit::ComboBox>("cboDate"); }
    toolkit::ComboBox& Files() { return Get<toolkit::ComboBox>("cboFiles"); }
    toolkit::StatusBar& Status() { return Get<toolkit::StatusBar>("StatusBar1"); }
    void Choose(const char* menu) { Main().Menu(menu).Choose(); }
    std::string Stored(const char* key, const char* section = "Ordalyn") {
        return program->Shared()
            .profile->ReadValue(section, key, "(absent)", program->Shared().common.SettingsFile())
            .value_or("");
    }
    // What the settings file says after the program has ended.
    std::string SettingsAfterClose() {
        Main().UserClosed();
        program.reset();
        return system.files.Get("C:\\Ordalyn\\Ordalyn.ini").value_or("");
    }
    static std::string Title(const std::string& rest) { return "Ordalyn 1.00 RC 1 - " + rest; }

    MemoryToolkit tools;
    MemoryPlatform system;
    std::unique_ptr<Program> program;
};

}  // namespace ordalyn::test
