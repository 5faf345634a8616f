#include "toolkit/ListView.h"

#include <algorithm>
#include <limits>

#include "base/Errors.h"

namespace ordalyn::toolkit {

namespace {

ListView::Tags NoRows() {
    static const ListView::Tags none = std::make_shared<const std::vector<std::int32_t>>();
    return none;
}

}  // namespace

ListView::ListView(Toolkit& toolkit, std::string_view name, int index, Control& container,
                   const Rect& bounds)
    : Control(Kind::ListView, name, index),
      peer_(toolkit.CreateListView(*this, container.peer())),
      tags_(NoRows()) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
    SetBackColor(kWindowBackground);
    SetBorder(BorderStyle::FixedSingle);
}

void ListView::RequireRow(int row) const {
    if (row < 0 || row >= RowCount())
        throw SubscriptOutOfRange();
}

void ListView::RequireColumn(int column) const {
    if (column < 0 || column >= ColumnCount())
        throw SubscriptOutOfRange();
}

void ListView::AddColumn(std::string_view caption, Twips width, int field) {
    if (!(width >= 0))
        throw InvalidPropertyValue("column width of " + Name());
    columns_.push_back({std::string(caption), field});
    peer_->InsertColumn(ColumnCount() - 1, caption, width);
}

void ListView::RemoveLastColumn() {
    RequireColumn(ColumnCount() - 1);
    columns_.pop_back();
    peer_->RemoveColumn(ColumnCount());
}

const std::string& ListView::ColumnCaption(int column) const {
    RequireColumn(column);
    return columns_[static_cast<std::size_t>(column)].caption;
}

void ListView::SetColumnCaption(int column, std::string_view caption) {
    RequireColumn(column);
    columns_[static_cast<std::size_t>(column)].caption = caption;
    peer_->SetColumnCaption(column, caption);
}

Twips ListView::ColumnWidth(int column) const {
    RequireColumn(column);
    return peer_->ColumnWidth(column);
}

void ListView::SetColumnWidth(int column, Twips width) {
    RequireColumn(column);
    if (!(width >= 0))
        throw InvalidPropertyValue("column width of " + Name());
    peer_->SetColumnWidth(column, width);
}

int ListView::ColumnPosition(int column) const {
    RequireColumn(column);
    return peer_->ColumnPosition(column);
}

void ListView::SetColumnPosition(int column, int position) {
    RequireColumn(column);
    if (position < 0 || position >= ColumnCount())
        throw InvalidPropertyValue("column position of " + Name());
    peer_->SetColumnPosition(column, position);
}

void ListView::Fill(std::shared_ptr<const RowSource> source, Tags tags) {
    source_ = std::move(source);
    tags_ = std::move(tags);
    selectedRow_ = -1;
    anchor_ = -1;
    selected_.Clear();
    peer_->ResetRows(RowCount());
    peer_->ShowSelection();
}

void ListView::ReplaceRows(Tags tags, int selectedRow) {
    tags_ = std::move(tags);
    peer_->UpdateRows(RowCount());
    SelectRow(selectedRow >= 0 && selectedRow < RowCount() ? selectedRow : -1);
}

void ListView::GrowRows(std::shared_ptr<const RowSource> source, Tags tags, int firstChanged) {
    source_ = std::move(source);
    tags_ = std::move(tags);
    if (selectedRow_ >= RowCount())
        selectedRow_ = -1;
    if (anchor_ >= RowCount())
        anchor_ = -1;
    const RowRanges before = selected_;
    selected_.Remove(RowCount(), std::numeric_limits<int>::max());
    peer_->GrowRows(RowCount(), firstChanged);
    if (selected_ != before)
        peer_->ShowSelection();
}

void ListView::ReplaceRows(Tags tags, const RowRanges& selected, int selectedRow) {
    tags_ = std::move(tags);
    peer_->UpdateRows(RowCount());
    SelectRows(selected, selectedRow);
}

void ListView::ClearRows() {
    Fill(nullptr, NoRows());
}

int ListView::RowCount() const {
    return static_cast<int>(tags_->size());
}

std::int32_t ListView::Tag(int row) const {
    RequireRow(row);
    return (*tags_)[static_cast<std::size_t>(row)];
}

std::string_view ListView::Text(int row, int column) const {
    RequireRow(row);
    RequireColumn(column);
    return source_->Text((*tags_)[static_cast<std::size_t>(row)],
                         columns_[static_cast<std::size_t>(column)].field);
}

void ListView::SelectRow(int row) {
    if (row != -1)
        RequireRow(row);
    SelectRows(row < 0 ? RowRanges() : RowRanges(row, row + 1), row);
}

void ListView::SelectRows(const RowRanges& rows, int row) {
    if (row != -1)
        RequireRow(row);
    selectedRow_ = row;
    anchor_ = row;
    selected_ = rows;
    peer_->SelectRow(row);
    peer_->ShowSelection();
}

void ListView::EnsureVisible(int row) {
    RequireRow(row);
    peer_->EnsureVisible(row);
}

Rect ListView::RowOnScreen(int row) const {
    RequireRow(row);
    return peer_->RowOnScreen(row);
}

void ListView::SetMarkColor(Color color) {
    markColor_ = color;
    peer_->SetMarkColor(color);
}

bool ListView::IsMarked(int row) const {
    RequireRow(row);
    return source_->IsMarked((*tags_)[static_cast<std::size_t>(row)]);
}

void ListView::SetGridLines(bool shown) {
    gridLines_ = shown;
    peer_->SetGridLines(shown);
}

// What the user selects is selected when the events are raised, also in the window.
void ListView::UserSelected(int row, Choice choice) {
    if (row >= RowCount())
        return;  // the rows have changed since
    const RowRanges before = selected_;
    Choose(row, multiSelect_ ? choice : Choice::Only);
    if (selectedRow_ != row)
        peer_->SelectRow(selectedRow_);
    if (selected_ != before) {
        peer_->ShowSelection();
        SelectionChanged.Raise();
    }
    // Who was notified of that may have selected something else.
    if (row >= 0 && selectedRow_ >= 0)
        ItemClick.Raise(selectedRow_);
}

void ListView::Choose(int row, Choice choice) {
    selectedRow_ = row;
    const bool extends = choice == Choice::Extend || choice == Choice::ExtendMore;
    if (row >= 0 && extends && anchor_ >= 0 && anchor_ < RowCount()) {
        if (choice == Choice::Extend)
            selected_.Clear();
        selected_.Add(std::min(anchor_, row), std::max(anchor_, row) + 1);
        return;
    }
    anchor_ = row;
    if (row >= 0 && choice == Choice::Keep && selected_.Contains(row))
        return;
    if (row >= 0 && choice == Choice::Toggle) {
        if (selected_.Contains(row))
            selected_.Remove(row, row + 1);
        else
            selected_.Add(row, row + 1);
        selectedRow_ = selected_.Nearest(row);
        return;
    }
    selected_ = row < 0 ? RowRanges() : RowRanges(row, row + 1);
}

bool ListView::UserSelectedAll() {
    if (!multiSelect_)
        return false;
    const RowRanges all(0, RowCount());
    if (selected_ == all)
        return true;
    const bool none = selectedRow_ < 0;
    selected_ = all;
    if (none) {
        selectedRow_ = 0;
        anchor_ = 0;
        peer_->SelectRow(0);
    }
    peer_->ShowSelection();
    SelectionChanged.Raise();
    if (none && selectedRow_ >= 0)
        ItemClick.Raise(selectedRow_);
    return true;
}

bool ListView::UserActivated(int row) {
    if (!RowActivated || row < 0 || row >= RowCount())
        return false;
    RowActivated.Raise(row);
    return true;
}

}  // namespace ordalyn::toolkit
