#include "TestForm.h"
#include "win32/drawing/Colors.h"
#include "win32/drawing/DarkMode.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::ListView, .name = "list", .bounds = {0, 0, 6000, 3000}},
};
constexpr FormDesign kDesign = {"frmTest", "", {6000, 3000}, {}, kControls};
constexpr Color kBlack = 0x202020, kWhite = 0xFFFFFF;

struct Told {
    HWND window;
    DWORD attribute;
    BOOL dark;
    bool operator==(const Told&) const = default;
};
std::vector<Told> frames;
std::vector<std::pair<HWND, std::wstring>> themes;
bool knowsTheNewNumber = true;

HRESULT WINAPI NoteFrame(HWND window, DWORD attribute, const void* value, DWORD size) {
    if (size != sizeof(BOOL) || (attribute == 20 && !knowsTheNewNumber))
        return E_INVALIDARG;
    frames.push_back({window, attribute, *static_cast<const BOOL*>(value)});
    return S_OK;
}

HRESULT WINAPI NoteTheme(HWND window, const wchar_t* name, const wchar_t*) {
    themes.emplace_back(window, name == nullptr ? L"(none)" : name);
    return S_OK;
}

class DarkWindows : public ::testing::Test {
  protected:
    DarkWindows() {
        list.SetBackColor(kWhite);
        win32::SystemDarkMode() = {19045, NoteFrame, NoteTheme};
        frames.clear();
        themes.clear();
        knowsTheNewNumber = true;
    }
    ~DarkWindows() override {
        list.SetBackColor(kWhite);
        win32::SystemDarkMode() = before_;
        win32::HighContrastIsOn() = question_;
    }
    HWND ListOf(const Form& of) const { return Child(of, L"SysListView32"); }
    Form form{TheToolkit(), kDesign};
    ListView& list = form.Get<ListView>("list");

  private:
    const win32::DarkMode before_ = win32::SystemDarkMode();
    win32::HighContrastQuestion* const question_ = win32::HighContrastIsOn();
};

TEST_F(DarkWindows, ADarkBackgroundDarkensTheFramesOfAllForms) {
    Form other(TheToolkit(), kDesign);
    form.Show();
    list.SetBackColor(kBlack);
    EXPECT_EQ(frames.size(), 2U);
    for (const Form* each : {&form, &other})
        EXPECT_NE(std::find(frames.begin(), frames.end(), Told{HandleOf(*each), 20, TRUE}),
                  frames.end());
    EXPECT_EQ(themes, (decltype(themes){{ListOf(form), L"DarkMode_Explorer"}}));
    frames.clear();
    themes.clear();
    list.SetBackColor(kWhite);
    EXPECT_EQ(frames.size(), 2U);
    EXPECT_EQ(frames.at(0).dark, FALSE);
    EXPECT_EQ(themes, (decltype(themes){{ListOf(form), L"(none)"}}));
}

TEST_F(DarkWindows, AFormThatIsMadeLaterIsDarkFromTheStart) {
    list.SetBackColor(kBlack);
    frames.clear();
    constexpr FormDesign kDialog = {"frmDialog", "", {3000, 2000}, {}, {}};
    const Form dialog(TheToolkit(), kDialog);
    EXPECT_EQ(frames, (std::vector<Told>{{HandleOf(dialog), 20, TRUE}}));
}

TEST_F(DarkWindows, AListThatHasNoColourYetLeavesTheFramesDark) {
    list.SetBackColor(kBlack);
    frames.clear();
    const Form another(TheToolkit(), kDesign);
    EXPECT_EQ(frames, (std::vector<Told>{{HandleOf(another), 20, TRUE}}));
}

TEST_F(DarkWindows, WhatStaysAsItIsIsToldNobody) {
    list.SetForeColor(0x123456);
    list.SetBackColor(0xF0F0F0);
    EXPECT_TRUE(frames.empty());
    EXPECT_TRUE(themes.empty());
}

TEST_F(DarkWindows, AWindowsThatHasTheOlderNumberIsToldByThatOne) {
    knowsTheNewNumber = false;
    list.SetBackColor(kBlack);
    EXPECT_EQ(frames, (std::vector<Told>{{HandleOf(form), 19, TRUE}}));
}

TEST_F(DarkWindows, AnOlderWindowsIsToldNothing) {
    win32::SystemDarkMode().build = 7601;
    list.SetBackColor(kBlack);
    EXPECT_TRUE(frames.empty());
    EXPECT_TRUE(themes.empty());
}

TEST_F(DarkWindows, HighContrastKeepsTheSystemsFrames) {
    win32::HighContrastIsOn() = [] { return true; };
    list.SetForeColor(0xE0E0E0);
    list.SetBackColor(kBlack);
    EXPECT_TRUE(frames.empty());
    EXPECT_TRUE(themes.empty());
}

}  // namespace
}  // namespace ordalyn::test
