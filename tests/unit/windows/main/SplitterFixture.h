// A splitter with a container, a bar and two panes in memory.
#pragma once

#include <gtest/gtest.h>

#include "support/toolkit/MemoryToolkit.h"
#include "windows/main/cSplitter.h"

namespace ordalyn::test {

inline constexpr toolkit::ControlDesign kSplitterControls[] = {
    {.kind = toolkit::Kind::PictureBox, .name = "container", .bounds = {0, 0, 6000, 4000}},
    {.kind = toolkit::Kind::Frame, .name = "bar", .bounds = {0, 0, 45, 45}},
    {.kind = toolkit::Kind::PictureBox, .name = "otherContainer", .bounds = {0, 0, 6000, 4000}},
    {.kind = toolkit::Kind::Frame, .name = "otherBar", .bounds = {0, 0, 45, 45}},
    {.kind = toolkit::Kind::ListView, .name = "one", .bounds = {0, 0, 100, 100}},
    {.kind = toolkit::Kind::ListView, .name = "two", .bounds = {0, 0, 100, 100}},
};
inline constexpr toolkit::FormDesign kSplitterDesign = {.name = "frmTest",
                                                        .tag = "",
                                                        .clientSize = {8000, 6000},
                                                        .style = {},
                                                        .controls = kSplitterControls};

class Splitter : public testing::Test {
  protected:
    void Create(std::int32_t direction, std::int32_t start, float margin = 0,
                std::int32_t size = 45) {
        splitter.CreateSplitter(container, bar, one, two, direction, start, size, margin, margin,
                                margin, margin);
    }
    void Drag(int buttons, float x, float y) { bar.MouseMove.Raise(buttons, {}, x, y); }

    MemoryToolkit toolkit;
    toolkit::Form form{toolkit, kSplitterDesign};
    toolkit::PictureBox& container = form.Get<toolkit::PictureBox>("container");
    toolkit::Frame& bar = form.Get<toolkit::Frame>("bar");
    toolkit::ListView& one = form.Get<toolkit::ListView>("one");
    toolkit::ListView& two = form.Get<toolkit::ListView>("two");
    cSplitter splitter;
};

}  // namespace ordalyn::test
