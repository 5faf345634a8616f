#include "log/EntryLists.h"

#include <utility>

namespace ordalyn {

namespace {

constexpr std::int32_t kEntryGrowthStep = 2000;

}  // namespace

EntryLists::EntryLists() {
    for (cStringArray* list : {&files_, &dates_, &sources_, &targets_})
        list->InitialCount(kEntryGrowthStep);
}

void EntryLists::SetFile(std::string_view name) {
    fileName_ = name;
    file_ = texts_->Add(name);
}

bool EntryLists::HasDates() const {
    for (std::int32_t i = 0; i <= dates_.ListCount(); ++i)
        if (dates_.Position(i) != TextPosition{})
            return true;
    return false;
}

std::string_view EntryLists::FileOf(std::int32_t entry) const {
    return entry >= 0 && entry <= files_.ListCount() ? files_.List(entry) : std::string_view();
}

void EntryLists::ReplaceLast(const LogLine& fields) {
    dates_.ReplaceLast(fields.date);
    sources_.ReplaceLast(fields.source);
    targets_.ReplaceLast(fields.target);
}

void EntryLists::Swap(EntryLists& other) noexcept {
    std::swap(texts_, other.texts_);
    std::swap(fileName_, other.fileName_);
    std::swap(file_, other.file_);
    files_.Swap(other.files_);
    dates_.Swap(other.dates_);
    sources_.Swap(other.sources_);
    targets_.Swap(other.targets_);
}

void EntryLists::Clear() {
    texts_ = std::make_shared<TextStore>();
    for (cStringArray* list : {&files_, &dates_, &sources_, &targets_})
        list->Clear(texts_);
    file_ = texts_->Add(fileName_);
}

void EntryLists::FreeExtraItems() {
    dates_.FreeExtraItems();
    sources_.FreeExtraItems();
    targets_.FreeExtraItems();
}

}  // namespace ordalyn
