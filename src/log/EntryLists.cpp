#include "log/EntryLists.h"

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
