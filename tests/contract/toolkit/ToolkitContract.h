// The fixture of the toolkit's contract: a form with one control of each kind, made by one
// realisation, and someone who uses it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "contract/toolkit/ToolkitDriver.h"

namespace ordalyn::contract {

struct Realisation {
    const char* name;
    DriverMaker make;
    friend void PrintTo(const Realisation& r, std::ostream* out) { *out << r.name; }
};

inline auto AllRealisations() {
    return testing::Values(
#ifdef _WIN32
        Realisation{"Windows", MakeWin32Driver},
#endif
        Realisation{"Memory", MakeMemoryDriver});
}

inline std::string RealisationName(const testing::TestParamInfo<Realisation>& info) {
    return info.param.name;
}

// Counts an event of any kind.
class Counter {
  public:
    template <typename... Args>
    explicit Counter(toolkit::Event<Args...>& event) {
        event.Subscribe([count = count_](Args...) { ++*count; });
    }
    // The count since it was last asked.
    int Take() { return std::exchange(*count_, 0); }

  private:
    std::shared_ptr<int> count_ = std::make_shared<int>(0);
};

// Rows whose texts are made of the tag and the field; counts how often it is asked.
class CountedRows : public toolkit::RowSource {
  public:
    std::string_view Text(std::int32_t tag, int field) const override {
        ++asked;
        texts_.push_back(TextOf(tag, field));
        return texts_.back();
    }
    static std::string TextOf(std::int32_t tag, int field) {
        return "row " + std::to_string(tag) + " field " + std::to_string(field);
    }
    mutable int asked = 0;

  private:
    mutable std::deque<std::string> texts_;
};

inline toolkit::ListView::Tags TagsFrom(std::int32_t first, std::int32_t count) {
    auto tags = std::make_shared<std::vector<std::int32_t>>(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i)
        (*tags)[static_cast<std::size_t>(i)] = first + i;
    return tags;
}

inline constexpr toolkit::ControlDesign kContractControls[] = {
    {.kind = toolkit::Kind::Frame, .name = "fraOne", .bounds = {120, 120, 3000, 1800}},
    {.kind = toolkit::Kind::OptionButton,
     .name = "optSide",
     .bounds = {120, 300, 1200, 300},
     .container = "fraOne",
     .index = 0},
    {.kind = toolkit::Kind::OptionButton,
     .name = "optSide",
     .bounds = {120, 700, 1200, 300},
     .container = "fraOne",
     .index = 1},
    {.kind = toolkit::Kind::CheckBox,
     .name = "chkInside",
     .bounds = {1500, 300, 1200, 300},
     .container = "fraOne"},
    {.kind = toolkit::Kind::OptionButton, .name = "optAlone", .bounds = {3300, 120, 1200, 300}},
    {.kind = toolkit::Kind::CheckBox, .name = "chkBox", .bounds = {3300, 480, 1200, 300}},
    {.kind = toolkit::Kind::Label, .name = "lblText", .bounds = {3300, 900, 1200, 300}},
    {.kind = toolkit::Kind::PictureBox, .name = "picBox", .bounds = {4800, 120, 1200, 1200}},
    {.kind = toolkit::Kind::TextBox, .name = "txtBox", .bounds = {3300, 1500, 2400, 300}},
    {.kind = toolkit::Kind::ComboBox, .name = "cboList", .bounds = {120, 2100, 2400, 315}},
    {.kind = toolkit::Kind::ComboBox,
     .name = "cboEdit",
     .bounds = {2700, 2100, 2400, 315},
     .editable = true},
    {.kind = toolkit::Kind::ListView, .name = "lvwRows", .bounds = {120, 2700, 4800, 3000}},
    {.kind = toolkit::Kind::ProgressBar, .name = "pgbBar", .bounds = {120, 5880, 3000, 240}},
    {.kind = toolkit::Kind::TabStrip, .name = "tabStrip", .bounds = {5100, 2700, 2400, 900}},
    {.kind = toolkit::Kind::ToolBar, .name = "tbrTools", .bounds = {5100, 3900, 3000, 420}},
    {.kind = toolkit::Kind::Canvas, .name = "cnvArea", .bounds = {6300, 120, 1800, 1500}},
    {.kind = toolkit::Kind::CommandButton,
     .name = "cmdOk",
     .bounds = {5100, 4500, 1200, 375},
     .isDefault = true},
    {.kind = toolkit::Kind::CommandButton,
     .name = "cmdCancel",
     .bounds = {6480, 4500, 1200, 375},
     .isCancel = true},
    {.kind = toolkit::Kind::CommandButton,
     .name = "cmdHidden",
     .bounds = {5100, 5100, 1200, 375},
     .visible = false},
    {.kind = toolkit::Kind::CommandButton,
     .name = "cmdNoStop",
     .bounds = {6480, 5100, 1200, 375},
     .tabStop = false},
    {.kind = toolkit::Kind::StatusBar, .name = "sbrStatus", .bounds = {0, 6300, 8400, 330}},
};

inline constexpr toolkit::Modifiers kControlKey{false, true, false};

inline constexpr toolkit::MenuDesign kContractMenus[] = {
    {.level = 0, .name = "mnuFile", .caption = "&File"},
    {.level = 1, .name = "mnuFileOpen", .caption = "&Open", .shortcut = {'O', kControlKey}},
    {.level = 1, .name = "mnuFileRecent", .caption = "&Recent"},
    {.level = 2,
     .name = "mnuFileRecentFirst",
     .caption = "first",
     .shortcut = {toolkit::key::F4, {}}},
    {.level = 1, .name = "mnuFileLine", .caption = "-"},
    {.level = 1, .name = "mnuFileExit", .caption = "E&xit", .keyHint = "Esc"},
    {.level = 0, .name = "mnuHelp", .caption = "&Help"},
    {.level = 1, .name = "mnuHelpAbout", .caption = "&About"},
    {.level = 0, .name = "mnuContext", .caption = "context", .visible = false},
    {.level = 1, .name = "mnuContextCopy", .caption = "Copy"},
    {.level = 1, .name = "mnuContextLine", .caption = "-"},
    {.level = 1, .name = "mnuContextMore", .caption = "More"},
};

inline const toolkit::FormDesign kContractDesign = {
    .name = "frmContract",
    .tag = "",
    .clientSize = {8400, 6600},
    .style = {.resizable = true, .minimiseBox = true, .maximiseBox = true},
    .controls = kContractControls,
    .menus = kContractMenus};

inline constexpr toolkit::ControlDesign kDialogControls[] = {
    {.kind = toolkit::Kind::TextBox, .name = "txtName", .bounds = {120, 120, 2400, 300}},
    {.kind = toolkit::Kind::CommandButton,
     .name = "cmdOk",
     .bounds = {120, 600, 1200, 375},
     .isDefault = true},
};

inline const toolkit::FormDesign kDialogDesign = {.name = "frmDialog",
                                                  .tag = "",
                                                  .clientSize = {3000, 1200},
                                                  .style = {},
                                                  .controls = kDialogControls};

class ToolkitContract : public testing::TestWithParam<Realisation> {
  protected:
    ToolkitContract() { form_->SetLeft(150); }

    ToolkitDriver& User() { return *driver_; }
    toolkit::Toolkit& Kit() { return driver_->Kit(); }
    toolkit::Form& Form() { return *form_; }
    void Settle() { driver_->Settle(); }
    void Show() {
        form_->Show();
        Settle();
    }
    template <typename T>
    T& Get(std::string_view name, int index = -1) {
        return form_->Get<T>(name, index);
    }
    std::unique_ptr<toolkit::Form> NewForm(const toolkit::FormDesign& design = kDialogDesign) {
        return std::make_unique<toolkit::Form>(Kit(), design);
    }
    // The form is destroyed with whatever waits for it.
    void DestroyForm() { form_.reset(); }

    // Whether the pixels are those of the twips, rounded.
    void ExpectShownAt(const toolkit::Control& control) {
        const toolkit::Rect seen = driver_->BoundsOf(control);
        const toolkit::Rect& kept = control.Bounds();
        const double x = Kit().TwipsPerPixelX() * 0.51;
        const double y = Kit().TwipsPerPixelY() * 0.51;
        EXPECT_NEAR(seen.left, kept.left, x) << control.Name();
        EXPECT_NEAR(seen.top, kept.top, y) << control.Name();
        EXPECT_NEAR(seen.left + seen.width, kept.left + kept.width, x) << control.Name();
        EXPECT_NEAR(seen.top + seen.height, kept.top + kept.height, y) << control.Name();
    }

  private:
    std::unique_ptr<ToolkitDriver> driver_ = GetParam().make();
    std::unique_ptr<toolkit::Form> form_ = NewForm(kContractDesign);
};

}  // namespace ordalyn::contract
