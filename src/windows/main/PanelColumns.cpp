#include "windows/main/PanelColumns.h"

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
