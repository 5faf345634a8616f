// The whole program in memory beside a file manager whose log is not there, and what stands in the
// place of the panels then.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "base/TextIds.h"
#include "support/windows/ProgramWindow.h"
#include "windows/main/frmMain.h"

namespace ordalyn::test {

class FirstStepsFixture : public ProgramWindow {
  protected:
    static constexpr const char* kLog = "C:\\logs\\tc.log";
    static constexpr int kASecond = 1000;
    static inline const std::vector<std::string> kOneLine = {"07.03.2024 10:00:00: Copy x -> y"};

    FirstStepsFixture() {
        SetIni("LogOptions=7199\r\nLogFile=C:\\logs\\tc.log");
        system.files.Delete(kLog);
    }
    // A file manager that nobody can find.
    void WithoutFileManager() {
        system.environment.RemoveVariable("Commander_Path");
        system.environment.RemoveVariable("Commander_INI");
    }
    bool Shown() { return Get<toolkit::PictureBox>("picFirstSteps").Visible(); }
    bool PanelsCanBeUsed() { return Source().CanTakeInput(); }
    std::string Label(const char* name) {
        const auto& label = Get<toolkit::Label>(name);
        return label.CanTakeInput() ? label.Caption() : "";
    }
    std::string Headline() { return Label("lblHeadline"); }
    std::string Path() { return Label("lblLogPath"); }
    std::string Advice() { return Label("lblAdvice"); }
    std::vector<toolkit::Control*> Buttons() {
        std::vector<toolkit::Control*> found;
        for (const auto& control : Main().Controls())
            if (control->ControlKind() == toolkit::Kind::CommandButton && control->CanTakeInput())
                found.push_back(control.get());
        return found;
    }
    std::vector<std::string> ButtonNames() {
        std::vector<std::string> names;
        for (const toolkit::Control* button : Buttons())
            names.push_back(button->Name());
        return names;
    }
    void Press(const char* name) { Get<toolkit::CommandButton>(name).UserClicked(); }
    static toolkit::Rect Place(const toolkit::Control& control) { return control.Bounds(); }
    std::string Says(TextId id) { return program->Shared().Text(id); }
    // All that is said, in this order.
    void Expect(TextId headline, const std::string& path, const std::string& advice,
                std::initializer_list<const char*> buttons) {
        EXPECT_TRUE(Shown());
        EXPECT_FALSE(PanelsCanBeUsed());
        EXPECT_EQ(Headline(), Says(headline));
        EXPECT_EQ(Path(), path);
        EXPECT_EQ(Advice(), advice);
        EXPECT_THAT(ButtonNames(), testing::ElementsAreArray(buttons));
    }
};

}  // namespace ordalyn::test
