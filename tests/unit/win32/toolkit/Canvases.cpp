// Canvases on Windows: drawn in one step, at every resolution, with the marks and colours of the
// system.
#include "TestForm.h"
#include "win32/common/DeviceContext.h"
#include "win32/controls/Window.h"
#include "win32/drawing/Colors.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::Canvas, .name = "cnv", .bounds = {0, 0, 1500, 1500}},
    {.kind = Kind::CommandButton, .name = "cmd", .bounds = {1800, 0, 1200, 375}},
};
constexpr FormDesign kDesign = {"frmCanvas", "", {3000, 1500}, {}, kControls};

class Canvases : public ::testing::Test {
  protected:
    Canvases() {
        area.SetBackColor(0xFFFFFF);
        form.Get<CommandButton>("cmd").SetFocus();
        form.Show();
        TheToolkit().DoEvents();
    }
    HWND Window() const { return dynamic_cast<win32::Window&>(area.peer()).handle(); }
    // Without drawing anything by hand.
    COLORREF Seen(int x, int y) const { return GetPixel(win32::WindowDc(Window()).Get(), x, y); }
    int PixelsOf(COLORREF color) const {
        RECT inside = {};
        GetClientRect(Window(), &inside);
        const win32::WindowDc dc(Window());
        int count = 0;
        for (int y = 0; y < inside.bottom; ++y) {
            for (int x = 0; x < inside.right; ++x)
                count += GetPixel(dc.Get(), x, y) == color ? 1 : 0;
        }
        return count;
    }

    Form form{TheToolkit(), kDesign};
    Canvas& area = form.Get<Canvas>("cnv");
};

TEST_F(Canvases, NothingOfAPictureIsSeenBeforeAllOfIt) {
    Color color = 0x0000FF;
    std::vector<COLORREF> meanwhile;
    area.Paint.Subscribe([&](Painter& on) {
        on.Fill({0, 0, 1500, 1500}, color);
        meanwhile.push_back(Seen(50, 50));
    });
    area.Refresh();
    ASSERT_EQ(Seen(50, 50), 0x0000FFU);
    color = 0xFF0000;
    area.Refresh();
    EXPECT_EQ(Seen(50, 50), 0xFF0000U);
    EXPECT_EQ(meanwhile.back(), 0x0000FFU) << "neither the background nor a part of the new one";
}

TEST_F(Canvases, AnotherWindowGetsThePictureWithoutAskingTheScreen) {
    area.Paint.Subscribe([](Painter& on) { on.Fill({0, 0, 1500, 1500}, 0x0000FF); });
    const win32::WindowDc screen(nullptr);
    const HDC memory = CreateCompatibleDC(screen.Get());
    const win32::Bitmap picture(CreateCompatibleBitmap(screen.Get(), 100, 100));
    {
        const win32::SelectedObject selected(memory, picture.Get());
        SendMessageW(Window(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory), PRF_CLIENT);
        EXPECT_EQ(GetPixel(memory, 50, 50), 0x0000FFU);
    }
    DeleteDC(memory);
}

// Wine has no state of its own that hides marks of focus.
LRESULT CALLBACK HidesFocus(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                            DWORD_PTR hidden) {
    if (message == WM_QUERYUISTATE)
        return *reinterpret_cast<bool*>(hidden) ? UISF_HIDEFOCUS : 0;
    return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(Canvases, TheFocusIsMarkedForThoseWhoWorkWithTheKeyboardOnly) {
    bool hidden = true;
    SetWindowSubclass(Window(), HidesFocus, 78, reinterpret_cast<DWORD_PTR>(&hidden));
    area.Paint.Subscribe([](Painter& on) { on.MarkFocus({150, 150, 600, 600}, 0xFFFFFF); });
    const auto marked = [this] {
        TheToolkit().DoEvents();
        return PixelsOf(0x000000) > 0;
    };
    area.SetFocus();
    EXPECT_FALSE(marked());
    hidden = false;
    SendMessageW(Window(), WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    EXPECT_TRUE(marked());
    form.Get<CommandButton>("cmd").SetFocus();
    EXPECT_FALSE(marked());
    RemoveWindowSubclass(Window(), HidesFocus, 78);
}

bool HighContrast() {
    return true;
}

TEST_F(Canvases, HighContrastShowsColoursThatCanBeReadTogether) {
    area.SetForeColor(0x808080);
    area.SetBackColor(kWindowBackground);
    EXPECT_EQ(area.ShownColors().text, 0x808080);
    win32::HighContrastQuestion* const before = win32::HighContrastIsOn();
    win32::HighContrastIsOn() = HighContrast;
    EXPECT_EQ(static_cast<COLORREF>(area.ShownColors().text), GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(static_cast<COLORREF>(area.ShownColors().background), GetSysColor(COLOR_WINDOW));
    win32::HighContrastIsOn() = before;
}

TEST_F(Canvases, SaysItsNameAndDrawsNoText) {
    area.SetForeColor(0x0000FF);
    area.SetAccessibleName("The days of a year");
    TheToolkit().DoEvents();
    EXPECT_EQ(win32::TextOf(Window()), "The days of a year");
    EXPECT_EQ(PixelsOf(0x0000FF), 0);
}

TEST(CanvasResolutions, EveryPartHasItsPixelsAtEachOfThem) {
    for (const int dpi : {96, 120, 144, 168, 192, 288}) {
        win32::Win32Toolkit kit(GetModuleHandleW(nullptr), win32::Scale(dpi, dpi));
        Form form(kit, kDesign);
        auto& area = form.Get<Canvas>("cnv");
        area.SetBackColor(0xFFFFFF);
        const Twips side = area.WholePixels(150);
        const Twips gap = area.WholePixels(15);
        area.Paint.Subscribe([&](Painter& on) {
            for (int i = 0; i < 7; ++i)
                on.Fill({static_cast<Twips>(i) * (side + gap), 0, side, side}, 0x0000FF);
        });
        form.Show();
        kit.DoEvents();
        const win32::WindowDc dc(dynamic_cast<win32::Window&>(area.peer()).handle());
        std::string row;
        const auto pixels = [dpi](Twips twips) {
            return static_cast<std::size_t>(std::lround(double{twips} * dpi / 1440));
        };
        for (std::size_t x = 0; x < 7 * (pixels(side) + pixels(gap)); ++x)
            row += GetPixel(dc.Get(), static_cast<int>(x), 1) == 0x0000FF ? '#' : '.';
        std::string expected;
        for (int i = 0; i < 7; ++i)
            expected += std::string(pixels(side), '#') + std::string(pixels(gap), '.');
        EXPECT_EQ(row, expected) << dpi;
    }
}

}  // namespace
}  // namespace ordalyn::test
