#include "unit/win32/languages/TextFit.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>
#include <utility>

#include "win32/common/WideText.h"
#include "win32/controls/Window.h"
#include "win32/forms/Win32Toolkit.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;

// What Windows' own parts of a control take of its width, in pixels at 96 DPI.
constexpr int kButtonEdges = 2 * 5;         // the border and a little air
constexpr int kToggleBox = 13 + 5;          // the box or circle and the gap behind it
constexpr int kFrameCorners = 2 * 10;       // the line left and right of the caption
constexpr int kTabEdges = 2 * 8;            // of each tab
constexpr int kComboArrow = 17 + 2 * 4;     // the arrow button and the borders
constexpr int kHeaderEdges = 2 * 6;         // of each column header
constexpr int kPanelEdges = 2 * 4;          // of each panel of the status bar
constexpr int kDialogCaption = 22 + 46;     // icon and close button
constexpr int kToolWindowCaption = 4 + 26;  // a small close button

// The width of an average Latin letter and the height of a line of the fonts on Windows: the dialog
// font has 9 points there, lists are shown in an older font of 8.
constexpr double kDialogLetter = 6.7, kDialogLine = 15, kDialogEm = 12;
constexpr double kListLetter = 6.0, kListLine = 13, kListEm = 11;

HWND WindowOf(const Control& control) {
    return dynamic_cast<const win32::Window&>(control.peer()).handle();
}

bool TakesNoRoom(wchar_t c) {
    return c == L'\u200E' || c == L'\u200F';
}

// As wide as the font is high; a line can end behind each of them.
bool IsIdeograph(wchar_t c) {
    return c >= 0x2E80 && c < 0xD800;
}

// What is drawn of a caption: "&" only marks the access key.
std::wstring Drawn(std::string_view caption) {
    const std::wstring text = win32::WideForDisplay(caption);
    std::wstring drawn;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'&' && ++i == text.size())
            break;
        drawn += text[i];
    }
    return drawn;
}

class Letters {
  public:
    Letters(HFONT font, bool dialogFont, int dpi) {
        const double enlarged = dpi / 96.0;
        before_ = SelectObject(dc_, font != nullptr ? font : GetStockObject(DEFAULT_GUI_FONT));
        const std::wstring latin = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
        letter_ = (dialogFont ? kDialogLetter : kListLetter) * enlarged;
        em_ = (dialogFont ? kDialogEm : kListEm) * enlarged;
        factor_ = std::max(1.0, letter_ * static_cast<double>(latin.size()) / Measured(latin));
        TEXTMETRICW metrics = {};
        GetTextMetricsW(dc_, &metrics);
        line_ =
            std::max<double>(metrics.tmHeight, (dialogFont ? kDialogLine : kListLine) * enlarged);
    }
    ~Letters() {
        SelectObject(dc_, before_);
        DeleteDC(dc_);
    }
    Letters(const Letters&) = delete;
    Letters& operator=(const Letters&) = delete;

    double LineHeight() const { return line_; }

    double Width(const std::wstring& text) const {
        std::vector<WORD> glyphs(text.size());
        GetGlyphIndicesW(dc_, text.c_str(), static_cast<int>(text.size()), glyphs.data(),
                         GGI_MARK_NONEXISTING_GLYPHS);
        constexpr WORD kMissing = 0xFFFF;
        double width = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (TakesNoRoom(text[i]))
                continue;
            if (IsIdeograph(text[i]))
                width += em_;
            else if (glyphs[i] == kMissing)
                width += letter_;
            else
                width += factor_ * Measured(text.substr(i, 1));
        }
        return width;
    }

    // The lines that a text takes when it is broken like a label's; 0 when a word is too long.
    int Lines(const std::wstring& text, double room) const {
        int lines = 1;
        std::wstring line;
        for (const std::wstring& piece : Pieces(text)) {
            const std::wstring word = piece.substr(0, piece.find_last_not_of(L' ') + 1);
            if (Width(word) > room)
                return 0;
            if (Width(line + word) > room) {
                ++lines;
                line.clear();
            }
            line += piece;
        }
        return lines;
    }

  private:
    double Measured(const std::wstring& text) const {
        SIZE size = {};
        GetTextExtentPoint32W(dc_, text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx;
    }
    // Words with the blanks behind them.
    static std::vector<std::wstring> Pieces(const std::wstring& text) {
        std::vector<std::wstring> pieces(1);
        for (const wchar_t c : text) {
            pieces.back() += c;
            if (c == L' ' || IsIdeograph(c))
                pieces.emplace_back();
        }
        if (pieces.back().empty())
            pieces.pop_back();
        return pieces;
    }

    HDC dc_ = CreateCompatibleDC(nullptr);
    HGDIOBJ before_;
    double letter_ = 0, em_ = 0, factor_ = 1, line_ = 0;
};

class Finder {
  public:
    Finder(const Form& form, int dpi) : form_(form), dpi_(dpi) {}

    std::vector<std::string> Find() {
        for (const auto& control : form_.Controls())
            Look(*control);
        LookAtTitle();
        return found_;
    }

  private:
    double Pixels(double at96) const { return at96 * dpi_ / 96; }
    static SIZE Inside(const Control& control) {
        RECT client = {};
        GetClientRect(WindowOf(control), &client);
        return {client.right, client.bottom};
    }
    const Letters& LettersOf(const Control& control) {
        return LettersOf(WindowOf(control), control.Font().name.empty());
    }
    const Letters& LettersOf(HWND window, bool dialogFont) {
        const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
        return letters_.try_emplace({font, dialogFont}, font, dialogFont, dpi_).first->second;
    }

    void Report(const Control& control, std::string_view text, const std::string& what) {
        const std::string index =
            control.Index() < 0 ? "" : "(" + std::to_string(control.Index()) + ")";
        found_.push_back(form_.Name() + "." + control.Name() + index + " \"" + std::string(text) +
                         "\": " + what);
    }
    void Require(const Control& control, std::string_view text, double room, bool caption) {
        const std::wstring drawn = caption ? Drawn(text) : win32::WideForDisplay(text);
        const double width = LettersOf(control).Width(drawn);
        if (width > room)
            Report(control, text,
                   std::to_string(std::lround(std::ceil(width))) + " pixels in " +
                       std::to_string(std::lround(std::floor(room))));
    }

    void Look(const Control& control) {
        const double inside = Inside(control).cx;
        switch (control.ControlKind()) {
            case Kind::Label:
                return LookAtLabel(control);
            case Kind::CommandButton:
                return LookAtCaption(control, inside - Pixels(kButtonEdges));
            case Kind::CheckBox:
            case Kind::OptionButton:
                return LookAtCaption(control, inside - Pixels(kToggleBox));
            case Kind::Frame:
                return LookAtCaption(control, inside - Pixels(kFrameCorners));
            case Kind::ComboBox:
                return LookAtItems(static_cast<const ComboBox&>(control), inside);
            case Kind::TabStrip:
                return LookAtTabs(static_cast<const TabStrip&>(control), inside);
            case Kind::ListView:
                return LookAtColumns(static_cast<const ListView&>(control));
            case Kind::StatusBar:
                return LookAtPanels(static_cast<const StatusBar&>(control));
            default:
                return;
        }
    }

    void LookAtLabel(const Control& label) {
        if (label.Caption().empty())
            return;
        const Letters& letters = LettersOf(label);
        const SIZE inside = Inside(label);
        const int lines = letters.Lines(Drawn(label.Caption()), inside.cx);
        if (lines == 0)
            Report(label, label.Caption(), "a word is too long");
        else if (lines * letters.LineHeight() > inside.cy + 1)  // a label's edges are rounded
            Report(label, label.Caption(),
                   std::to_string(lines) + " lines in " + std::to_string(inside.cy) + " pixels");
    }
    void LookAtCaption(const Control& control, double room) {
        if (control.Caption().empty())
            return;
        if (control.ControlKind() != Kind::Frame &&
            LettersOf(control).LineHeight() > Inside(control).cy + 1)
            Report(control, control.Caption(), "not high enough");
        Require(control, control.Caption(), room, true);
    }
    void LookAtItems(const ComboBox& box, double inside) {
        for (int i = 0; i < box.ListCount(); ++i)
            Require(box, box.List(i), inside - Pixels(kComboArrow), false);
    }
    void LookAtTabs(const TabStrip& strip, double inside) {
        double used = 0;
        const Letters& letters = LettersOf(strip);
        std::string all;
        for (int number = 1; number <= strip.TabCount(); ++number) {
            const std::string& caption = strip.TabAt(number).caption;
            used += letters.Width(Drawn(caption)) + Pixels(kTabEdges);
            all += (all.empty() ? "" : " | ") + caption;
        }
        if (used > inside)
            Report(strip, all, std::to_string(std::lround(used)) + " pixels");
    }
    void LookAtColumns(const ListView& list) {
        for (int column = 0; column < list.ColumnCount(); ++column)
            Require(list, list.ColumnCaption(column),
                    Pixels(list.ColumnWidth(column) / 15 - kHeaderEdges), false);
    }
    void LookAtPanels(const StatusBar& bar) {
        for (int number = 1; number <= bar.PanelCount(); ++number) {
            RECT panel = {};
            SendMessageW(WindowOf(bar), SB_GETRECT, static_cast<WPARAM>(number - 1),
                         reinterpret_cast<LPARAM>(&panel));
            Require(bar, bar.PanelText(number), panel.right - panel.left - Pixels(kPanelEdges),
                    false);
        }
    }
    // Windows draws titles in the dialog font, too. A window that can be resized shows the way to a
    // file, which is as long as it is.
    void LookAtTitle() {
        if (form_.Style().resizable)
            return;
        const Control& first = *form_.Controls().front();
        const double width =
            LettersOf(WindowOf(first), true).Width(win32::WideForDisplay(form_.Caption()));
        const double room = Inside(form_).cx -
                            Pixels(form_.Style().toolWindow ? kToolWindowCaption : kDialogCaption);
        if (width > room)
            found_.push_back(form_.Name() + " \"" + form_.Caption() +
                             "\": " + std::to_string(std::lround(std::ceil(width))) +
                             " pixels in the title");
    }

    const Form& form_;
    int dpi_;
    std::map<std::pair<HFONT, bool>, Letters> letters_;
    std::vector<std::string> found_;
};

// The pages of a tab strip lie over it and over each other on purpose.
bool StandsAlone(const Control& control) {
    const Kind kind = control.ControlKind();
    return control.Visible() && kind != Kind::PictureBox && kind != Kind::TabStrip;
}

RECT InContainer(const Control& control) {
    RECT rect = {};
    GetWindowRect(WindowOf(control), &rect);
    MapWindowPoints(nullptr, GetAncestor(WindowOf(control), GA_PARENT),
                    reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

}  // namespace

Toolkit& ToolkitAt(int dpi) {
    static win32::Win32Toolkit normal(GetModuleHandleW(nullptr), win32::Scale(96, 96));
    static win32::Win32Toolkit large(GetModuleHandleW(nullptr), win32::Scale(144, 144));
    return dpi == 96 ? normal : large;
}

std::vector<std::string> TextsThatDoNotFit(const Form& form, int dpi) {
    return Finder(form, dpi).Find();
}

std::vector<std::string> ControlsThatCollide(const Form& form) {
    std::vector<std::string> found;
    const auto& controls = form.Controls();
    for (auto control = controls.begin(); control != controls.end(); ++control) {
        if (!StandsAlone(**control))
            continue;
        const RECT place = InContainer(**control);
        RECT inside = {};
        GetClientRect(GetAncestor(WindowOf(**control), GA_PARENT), &inside);
        if (place.left < 0 || place.top < 0 || place.right > inside.right ||
            place.bottom > inside.bottom)
            found.push_back(form.Name() + "." + (*control)->Name() + " is not inside");
        for (auto other = controls.begin(); other != control; ++other) {
            if (!StandsAlone(**other) || (*other)->Container() != (*control)->Container())
                continue;
            const RECT otherPlace = InContainer(**other);
            RECT common = {};
            if (IntersectRect(&common, &place, &otherPlace))
                found.push_back(form.Name() + "." + (*control)->Name() + " lies over " +
                                (*other)->Name());
        }
    }
    return found;
}

}  // namespace ordalyn::test
