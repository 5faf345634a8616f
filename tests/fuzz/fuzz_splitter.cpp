// Any sequence of uses of the splitter: panes and bar fill the container without a gap, and the
// bar's committed position is what was set last, whatever sizes came in between.
#include <cstddef>
#include <cstdint>

#include "Choices.h"
#include "Require.h"
#include "support/toolkit/MemoryToolkit.h"
#include "windows/main/cSplitter.h"

using namespace ordalyn;
using fuzz::Require;

namespace {

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = toolkit::Kind::PictureBox, .name = "container", .bounds = {0, 0, 6000, 4000}},
    {.kind = toolkit::Kind::Frame, .name = "bar", .bounds = {0, 0, 45, 45}},
    {.kind = toolkit::Kind::ListView, .name = "one", .bounds = {0, 0, 100, 100}},
    {.kind = toolkit::Kind::ListView, .name = "two", .bounds = {0, 0, 100, 100}},
};
constexpr toolkit::FormDesign kDesign = {
    .name = "frmTest", .tag = "", .clientSize = {8000, 6000}, .style = {}, .controls = kControls};
constexpr int kSizes[] = {0, 90, 1000, 1790, 1890, 3000, 6000, 12000, 20000};
constexpr std::int32_t kBar = 45;

// An edge of a control in the direction in which the bar moves.
struct Span {
    float from, size;
    float End() const { return from + size; }
};

class Session {
  public:
    void Use(fuzz::Choices& choices) {
        Create(choices);
        while (choices.Left()) {
            switch (choices.Of(7)) {
                case 0:
                    Create(choices);
                    break;
                case 1:
                    Drag(choices);
                    break;
                case 2:
                    splitter_.SetSplitPosition(committed_ = Place(choices));
                    break;
                case 3:
                    splitter_.SwapPanels();
                    swapped_ = !swapped_;
                    break;
                default:
                    splitter_.Resize(Size(choices), Size(choices));
            }
            Check();
        }
        // Whatever happened: as soon as there is room, the bar is where it was committed.
        splitter_.Resize(30000, 30000);
        Check();
        Require(splitter_.SplitPosition() == committed_, "sizes leave the position alone");
        splitter_.CreateSplitter(container_, bar_, First(), Second(), direction_,
                                 static_cast<std::int32_t>(committed_), kBar, margin_, margin_,
                                 margin_, margin_);
        Require(Along(bar_).from == committed_, "made again, the bar stands where it stood");
    }

  private:
    static float Size(fuzz::Choices& choices) {
        return static_cast<float>(kSizes[choices.Of(std::size(kSizes))]);
    }
    static float Place(fuzz::Choices& choices) { return static_cast<float>(choices.Of(100)) * 90; }
    Span Along(const toolkit::Control& control) const {
        return direction_ == cSplitter::kSideBySide ? Span{control.Left(), control.Width()}
                                                    : Span{control.Top(), control.Height()};
    }
    Span Across(const toolkit::Control& control) const {
        return direction_ == cSplitter::kSideBySide ? Span{control.Top(), control.Height()}
                                                    : Span{control.Left(), control.Width()};
    }
    toolkit::Control& First() const { return swapped_ ? two_ : one_; }
    toolkit::Control& Second() const { return swapped_ ? one_ : two_; }

    void Create(fuzz::Choices& choices) {
        direction_ = choices.Of(2) == 0 ? cSplitter::kSideBySide : cSplitter::kStacked;
        margin_ = static_cast<float>(choices.Of(2) * 30);
        const auto start = static_cast<std::int32_t>(Place(choices));
        splitter_.CreateSplitter(container_, bar_, First(), Second(), direction_, start, kBar,
                                 margin_, margin_, margin_, margin_);
        const float size = Along(container_).size;
        committed_ = static_cast<float>(start);
        if (created_ && committed_ >= size)
            committed_ = size / 2;
        created_ = true;
        Require(splitter_.SplitPosition() == committed_, "a start inside is taken as it is");
        Check();
    }

    void Drag(fuzz::Choices& choices) {
        const float before = Along(bar_).from;
        bar_.MouseDown.Raise(toolkit::kLeftButton, {}, 10, 10);
        for (int moves = choices.Of(3); moves > 0; --moves) {
            const float to = Place(choices) - 4500;
            bar_.MouseMove.Raise(toolkit::kLeftButton, {}, to, to);
        }
        bar_.MouseUp.Raise(toolkit::kLeftButton, {}, 0, 0);
        if (Along(bar_).from != before)
            committed_ = Along(bar_).from;
        Require(splitter_.SplitPosition() == committed_ || Along(bar_).from == before,
                "the place where a drag ends is committed");
        committed_ = splitter_.SplitPosition();
    }

    // Where there is room for all of it.
    void Check() const {
        const Span inside = Along(container_), bar = Along(bar_);
        if (bar.from < margin_ || bar.End() > inside.size - margin_ ||
            Across(container_).size < 2 * margin_)
            return;
        const Span first = Along(First()), second = Along(Second());
        Require(first.from == margin_ && first.End() == bar.from, "the first pane ends at the bar");
        Require(second.from == bar.End() && second.End() == inside.size - margin_,
                "the second one fills the rest");
        for (const toolkit::Control* part : {&First(), &Second()})
            Require(Across(*part).from == margin_ &&
                        Across(*part).End() == Across(container_).size - margin_,
                    "a pane goes from edge to edge");
    }

    test::MemoryToolkit toolkit_;
    toolkit::Form form_{toolkit_, kDesign};
    toolkit::Control& container_ = form_.Get<toolkit::PictureBox>("container");
    toolkit::Control& bar_ = form_.Get<toolkit::Frame>("bar");
    toolkit::Control& one_ = form_.Get<toolkit::ListView>("one");
    toolkit::Control& two_ = form_.Get<toolkit::ListView>("two");
    cSplitter splitter_;
    std::int32_t direction_ = cSplitter::kSideBySide;
    float margin_ = 0;
    float committed_ = 0;
    bool created_ = false;
    bool swapped_ = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Choices choices(data, size);
    Session().Use(choices);
    return 0;
}
