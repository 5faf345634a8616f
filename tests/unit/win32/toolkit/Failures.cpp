// Exceptions that nobody catches: where nothing but Windows is left to receive them, the user is
// notified instead.
#include <atomic>
#include <cstdlib>
#include <new>
#include <stdexcept>

#include "TestForm.h"
#include "base/Errors.h"
#include "contract/toolkit/Win32Watch.h"
#include "win32/forms/RunProgram.h"

namespace ordalyn::test {
namespace {

constinit std::atomic<std::size_t> smallestThatFails = SIZE_MAX;

// There is no memory for blocks of this size and above.
class MemoryShortage {
  public:
    explicit MemoryShortage(std::size_t size) { smallestThatFails = size; }
    ~MemoryShortage() { smallestThatFails = SIZE_MAX; }
    MemoryShortage(const MemoryShortage&) = delete;
    MemoryShortage& operator=(const MemoryShortage&) = delete;
};

}  // namespace
}  // namespace ordalyn::test

// The whole test program allocates through these.
void* operator new(std::size_t size) {
    if (size < ordalyn::test::smallestThatFails) {
        if (void* const block = std::malloc(size == 0 ? 1 : size))
            return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::ListView, .name = "list", .bounds = {0, 0, 4000, 2000}},
};
constexpr MenuDesign kMenus[] = {{0, "mnuFile", "&File"}, {1, "mnuOpen", "&Open..."}};
constexpr FormDesign kDesign = {"frmTest", "", {4500, 3000}, {}, kControls, kMenus};

class Failures : public ::testing::Test {
  protected:
    std::vector<std::string> TakeBoxes() {
        std::vector<std::string> texts;
        for (const contract::BoxSeen& box : boxes_)
            texts.push_back(box.title + ": " + box.text);
        boxes_.clear();
        return texts;
    }
    static std::vector<std::string> One(std::string text) { return {std::move(text)}; }

  private:
    std::vector<contract::BoxSeen> boxes_;
    contract::Win32Watch watch_{boxes_};
};

int RunProgram(const std::function<void(Toolkit&)>& program) {
    return win32::RunProgram(GetModuleHandleW(nullptr), program);
}

TEST_F(Failures, AProgramThatEndsByItselfEndsWithZero) {
    bool run = false;
    EXPECT_EQ(RunProgram([&](Toolkit& toolkit) { run = toolkit.TwipsPerPixelX() > 0; }), 0);
    EXPECT_TRUE(run);
    EXPECT_TRUE(TakeBoxes().empty());
}

TEST_F(Failures, AStartThatFailsSaysWhatFailedAndEndsWithAnError) {
    EXPECT_NE(RunProgram([](Toolkit&) { throw Error("Cannot create the window of frmMain"); }), 0);
    EXPECT_EQ(TakeBoxes(), One("Ordalyn: Cannot create the window of frmMain"));
    EXPECT_NE(RunProgram([](Toolkit&) { throw 7; }), 0);
    EXPECT_EQ(TakeBoxes(), One("Ordalyn: Unknown error"));
}

TEST_F(Failures, AStartThatFailsWithAFormOnTheScreenTakesItAway) {
    HWND window = nullptr;
    EXPECT_NE(RunProgram([&](Toolkit& toolkit) {
                  Form form(toolkit, kDesign);
                  form.Show();
                  window = HandleOf(form);
                  throw TypeMismatch();
              }),
              0);
    EXPECT_EQ(TakeBoxes(), One("Ordalyn: Type mismatch"));
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(Failures, MenusThatCannotBeRebuiltAreReportedAndTheProgramGoesOn) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    TheToolkit().DoEvents();
    form.Menu("mnuOpen").SetVisible(false);
    TheToolkit().DoEvents();
    form.Menu("mnuOpen").SetCaption(std::string(1'000'000, 'x'));
    {
        const MemoryShortage shortage(500'000);
        form.Menu("mnuOpen").SetVisible(true);
        TheToolkit().DoEvents();
    }
    EXPECT_EQ(TakeBoxes(), One("Ordalyn: std::bad_alloc"));
    form.Menu("mnuOpen").SetCaption("Open");
    form.Menu("mnuFile").AddItem("mnuMore", "More");
    TheToolkit().DoEvents();
    EXPECT_EQ(GetMenuItemCount(GetSubMenu(GetMenu(HandleOf(form)), 0)), 2);
    EXPECT_TRUE(TakeBoxes().empty());
}

class CountedRows : public RowSource {
  public:
    std::string_view Text(std::int32_t, int) const override { return "row"; }
};

TEST_F(Failures, AClickThatFailsLeavesTheSelectionOnTheScreen) {
    Form form(TheToolkit(), kDesign);
    auto& list = form.Get<ListView>("list");
    list.AddColumn("a", 1200, 0);
    list.Fill(std::make_shared<CountedRows>(),
              std::make_shared<const std::vector<std::int32_t>>(5, 1));
    list.SelectRow(3);
    form.Show();
    TheToolkit().DoEvents();
    list.MouseDown.Subscribe([](int, Modifiers, Twips, Twips) { throw Overflow(); });
    const HWND window = Child(form, L"SysListView32");
    RECT row = {LVIR_LABEL, 0, 0, 0};
    SendMessageW(window, LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
    Click(window, row.left + 3, (row.top + row.bottom) / 2);
    EXPECT_EQ(TakeBoxes(), One("Ordalyn: Overflow"));
    EXPECT_EQ(list.SelectedRow(), 3);
    EXPECT_EQ(SendMessageW(window, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 3);
}

}  // namespace
}  // namespace ordalyn::test
