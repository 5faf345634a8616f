#include "windows/main/PanelColumns.h"

#include <algorithm>
#include <vector>

#include "base/Attempt.h"
#include "base/CheckedMath.h"
#include "base/Text.h"
#include "base/TextIds.h"

namespace ordalyn {

using toolkit::ListView;

namespace {

// By field.
constexpr TextId kCaptions[] = {text_id::kTime, text_id::kSource, text_id::kTarget};

// Digits can differ in their widths; none is wider.
constexpr std::string_view kWideTime = "88:88:88";
constexpr toolkit::Twips kBesideColumns = 375;  // the scroll bar and the borders
constexpr toolkit::Twips kLeastPath = 1500;

std::string WholeWidth(const ListView& list, int column) {
    return std::to_string(TruncateToLong(list.ColumnWidth(column)));
}

}  // namespace

std::string PanelColumns::Caption(EntryRows::Field field) const {
    return shared_.strings->GetInterfaceString(kCaptions[field]);
}

std::string PanelColumns::TargetCaption() const {
    return Caption(EntryRows::kTarget);
}

void PanelColumns::Add(ListView& list, EntryRows::Field field,
                       const std::vector<std::string>& widths) {
    const auto place = static_cast<std::size_t>(field);
    const std::string standard = Split(entry::ColumnsWidth.fallback, ',')[place];
    const std::string& width = place < widths.size() ? widths[place] : standard;
    const auto twips = [](const std::string& text) {
        const double number = LeadingNumber(text);
        static_cast<void>(RoundToLong(number));  // throws for a width beyond 32 bits
        return static_cast<toolkit::Twips>(number);
    };
    if (!Attempt([&] { list.AddColumn(Caption(field), twips(width), field); }))
        list.AddColumn(Caption(field), twips(standard), field);
}

void PanelColumns::Load() {
    const std::vector<std::string> widths =
        Split(shared_.settings->ReadEntry(entry::ColumnsWidth), ',');
    Add(source_, EntryRows::kTime, widths);
    Add(source_, EntryRows::kOperation, widths);
    if (!TwoPanels())
        Add(source_, EntryRows::kTarget, widths);
    Add(target_, EntryRows::kTarget, widths);
}

void PanelColumns::FitToPanels() {
    OtherEntry entry = entry::ColumnsWidth;
    entry.fallback = shared_.common.NoValueMarker();
    if (!shared_.common.IsNoValue(shared_.settings->ReadEntry(entry)))
        return;
    const toolkit::Twips time =
        std::max(source_.WidthFor(kWideTime), source_.WidthFor(Caption(EntryRows::kTime)));
    const int paths = TwoPanels() ? 1 : 2;
    const toolkit::Twips path = std::max(
        (source_.Width() - kBesideColumns - time) / static_cast<toolkit::Twips>(paths), kLeastPath);
    source_.SetColumnWidth(EntryRows::kTime, time);
    source_.SetColumnWidth(EntryRows::kOperation, path);
    if (!TwoPanels())
        source_.SetColumnWidth(EntryRows::kTarget, path);
    target_.SetColumnWidth(
        0, TwoPanels() ? std::max(target_.Width() - kBesideColumns, kLeastPath) : path);
}

void PanelColumns::LoadOrder() {
    std::vector<std::string> order =
        Split(shared_.settings->ReadEntry(entry::ColumnHeadersPosition), ',');
    if (order.size() < 3) {
        order.resize(2);
        order.emplace_back("3");
    }
    for (int column = 0; column < source_.ColumnCount(); ++column) {
        Attempt([&] {
            const double place = LeadingNumber(order[static_cast<std::size_t>(column)]);
            source_.SetColumnPosition(column, CheckedAdd(RoundToLong(place), -1));
        });
    }
}

void PanelColumns::SaveWidths() {
    shared_.settings->WriteEntry(
        entry::ColumnsWidth,
        Join({WholeWidth(source_, EntryRows::kTime), WholeWidth(source_, EntryRows::kOperation),
              TwoPanels() ? WholeWidth(target_, 0) : WholeWidth(source_, EntryRows::kTarget)},
             ","));
}

void PanelColumns::SaveOrder() {
    const auto place = [this](int column) {
        return std::to_string(source_.ColumnPosition(column) + 1);
    };
    shared_.settings->WriteEntry(entry::ColumnHeadersPosition,
                                 Join({place(0), place(1), TwoPanels() ? "3" : place(2)}, ","));
}

void PanelColumns::ShowCaptions() {
    source_.SetColumnCaption(EntryRows::kTime, Caption(EntryRows::kTime));
    source_.SetColumnCaption(EntryRows::kOperation, Caption(EntryRows::kOperation));
    if (!TwoPanels())
        source_.SetColumnCaption(EntryRows::kTarget, TargetCaption());
    target_.SetColumnCaption(0, TargetCaption());
}

}  // namespace ordalyn
