// A form with one control of each kind, and a count of what it raises.
#pragma once

#include <string>
#include <vector>

#include "support/toolkit/MemoryToolkit.h"
#include "toolkit/Form.h"

namespace ordalyn::test {

inline constexpr toolkit::Modifiers kNoModifiers{};
inline constexpr toolkit::Modifiers kControl{false, true, false};

inline constexpr toolkit::ControlDesign kSampleControls[] = {
    {.kind = toolkit::Kind::Frame, .name = "fraOne", .tag = "10", .bounds = {100, 100, 3000, 2000}},
    {.kind = toolkit::Kind::OptionButton,
     .name = "optSide",
     .bounds = {60, 60, 900, 300},
     .container = "fraOne",
     .index = 0},
    {.kind = toolkit::Kind::OptionButton,
     .name = "optSide",
     .bounds = {60, 400, 900, 300},
     .container = "fraOne",
     .index = 1},
    {.kind = toolkit::Kind::OptionButton,
     .name = "optSide",
     .bounds = {60, 740, 900, 300},
     .container = "fraOne",
     .index = 2},
    {.kind = toolkit::Kind::OptionButton, .name = "optAlone", .bounds = {4000, 100, 900, 300}},
    {.kind = toolkit::Kind::CheckBox,
     .name = "chkBox",
     .tag = "11",
     .bounds = {4000, 500, 900, 300}},
    {.kind = toolkit::Kind::Label, .name = "lblText", .tag = "12", .bounds = {4000, 900, 900, 300}},
    {.kind = toolkit::Kind::PictureBox, .name = "picBox", .bounds = {5000, 100, 900, 900}},
    {.kind = toolkit::Kind::TextBox, .name = "txtBox", .bounds = {4000, 1300, 900, 300}},
    {.kind = toolkit::Kind::ComboBox, .name = "cboList", .bounds = {100, 2200, 2000, 999}},
    {.kind = toolkit::Kind::ComboBox,
     .name = "cboEdit",
     .bounds = {2200, 2200, 2000, 999},
     .editable = true},
    {.kind = toolkit::Kind::ListView, .name = "SourceListView", .bounds = {100, 2700, 3000, 1000}},
    {.kind = toolkit::Kind::ProgressBar, .name = "pgbBar", .bounds = {100, 3800, 3000, 200}},
    {.kind = toolkit::Kind::TabStrip, .name = "tabStrip", .bounds = {3200, 2700, 2000, 900}},
    {.kind = toolkit::Kind::ToolBar, .name = "Toolbar1", .bounds = {5300, 2700, 900, 300}},
    {.kind = toolkit::Kind::CommandButton,
     .name = "cmdOk",
     .tag = "13",
     .bounds = {100, 4100, 900, 300},
     .isDefault = true},
    {.kind = toolkit::Kind::CommandButton,
     .name = "cmdCancel",
     .tag = "14",
     .bounds = {1100, 4100, 900, 300},
     .visible = false,
     .isCancel = true,
     .tabStop = false},
    {.kind = toolkit::Kind::StatusBar, .name = "StatusBar1", .bounds = {0, 9000, 100, 100}},
};

inline constexpr toolkit::MenuDesign kSampleMenus[] = {
    {.level = 0, .name = "mnuFile", .caption = "20"},
    {.level = 1, .name = "mnuFileOpen", .caption = "21", .shortcut = {'O', {false, true, false}}},
    {.level = 1, .name = "mnuFileRecent", .caption = "22"},
    {.level = 2, .name = "mnuFileRecentFirst", .caption = "23", .shortcut = {toolkit::key::F4, {}}},
    {.level = 1, .name = "mnuFileLine", .caption = "-"},
    {.level = 1, .name = "mnuFileExit", .caption = "24", .keyHint = "Esc"},
    {.level = 0, .name = "mnuContext", .caption = "30", .visible = false},
    {.level = 1, .name = "mnuContextCopy", .caption = "31"},
};

inline const toolkit::FormDesign kSampleDesign = {.name = "frmSample",
                                                  .tag = "1",
                                                  .clientSize = {6400, 5000},
                                                  .style = {.resizable = true},
                                                  .controls = kSampleControls,
                                                  .menus = kSampleMenus};

// Counts an event of any kind.
struct Counter {
    template <typename... Args>
    explicit Counter(toolkit::Event<Args...>& event) {
        event.Subscribe([this](Args...) { ++count; });
    }
    Counter(const Counter&) = delete;
    Counter& operator=(const Counter&) = delete;
    // The count since it was last asked.
    int Take() { return std::exchange(count, 0); }
    int count = 0;
};

// Rows whose texts are made of the tag and the field.
class NumberedRows : public toolkit::RowSource {
  public:
    std::string_view Text(std::int32_t tag, int field) const override {
        auto& text =
            texts_.emplace_back("row " + std::to_string(tag) + " field " + std::to_string(field));
        return text;
    }

  private:
    mutable std::deque<std::string> texts_;
};

inline toolkit::ListView::Tags TagsOf(std::vector<std::int32_t> tags) {
    return std::make_shared<const std::vector<std::int32_t>>(std::move(tags));
}

}  // namespace ordalyn::test
