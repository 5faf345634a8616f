// ListView: a report list that asks for its texts instead of holding them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/Control.h"
#include "toolkit/RowRanges.h"

namespace ordalyn::toolkit {

// A mark's colour that follows the background.
inline constexpr Color kReadableRed = -1;

// Where the texts of rows come from. A row is known by its tag; a column shows one of the source's
// fields. The text stays valid as long as the source lives. Nothing throws: a tag that the source
// does not know has empty texts.
class RowSource {
  public:
    virtual ~RowSource() = default;
    virtual std::string_view Text(std::int32_t tag, int field) const = 0;
    // Whether the row is one of those that have a colour of their own.
    virtual bool IsMarked(std::int32_t /*tag*/) const { return false; }
};

// What the user does with a row, by mouse or keyboard.
enum class Choice {
    Only,        // selects it and no other
    Extend,      // selects from the row that was chosen last to this one (Shift)
    Toggle,      // selects it as well, or no longer (Ctrl)
    ExtendMore,  // as Extend, beside what is selected (Ctrl and Shift)
    Keep         // comes to it; when it is one of several that are selected, all of them stay
};

// Rows and columns are 0-based here; row -1 is none. One row is the selected one, at most: the one
// that keys go on from. With SetMultiSelect others can be selected beside it. Selecting by code
// raises nothing; ItemClick is raised when the user selects a row, with mouse or keyboard, or
// clicks the one that is selected. Indices outside throw SubscriptOutOfRange.
class ListView : public Control {
  public:
    // Row tags; shared, so that two lists can show the same rows.
    using Tags = std::shared_ptr<const std::vector<std::int32_t>>;

    ListView(Toolkit& toolkit, std::string_view name, int index, Control& container,
             const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }

    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    // `field` says which text of the row source the column shows.
    void AddColumn(std::string_view caption, Twips width, int field);
    void RemoveLastColumn();
    const std::string& ColumnCaption(int column) const;
    void SetColumnCaption(int column, std::string_view caption);
    Twips ColumnWidth(int column) const;
    void SetColumnWidth(int column, Twips width);  // InvalidPropertyValue below 0
    // Of a column in which this text can be seen whole, in the list's font.
    Twips WidthFor(std::string_view text) const { return peer_->WidthFor(text); }
    int ColumnPosition(int column) const;  // 0-based place on the screen
    void SetColumnPosition(int column, int position);

    // Shows these rows: nothing selected, scrolled to the top. The list keeps the source alive.
    void Fill(std::shared_ptr<const RowSource> source, Tags tags);
    // Shows fewer or more rows of the same source and selects the row with this place number when
    // there is one, otherwise nothing. Raises nothing.
    void ReplaceRows(Tags tags, int selectedRow);
    // Shows the rows from this one on anew, of which there may be more than before, with a source
    // that has the same texts for the rows in front of it. These, the selection and what is
    // scrolled to stay as they are. Raises nothing.
    void GrowRows(std::shared_ptr<const RowSource> source, Tags tags, int firstChanged);
    // The same with several, of which selectedRow is one.
    void ReplaceRows(Tags tags, const RowRanges& selected, int selectedRow);
    void ClearRows();
    int RowCount() const;
    std::int32_t Tag(int row) const;
    std::string_view Text(int row, int column) const;
    const Tags& RowTags() const { return tags_; }
    const std::shared_ptr<const RowSource>& Source() const { return source_; }

    int SelectedRow() const { return selectedRow_; }
    void SelectRow(int row);  // -1 for none

    // Several rows, in order of place; SelectedRow is always one of them.
    void SetMultiSelect(bool several) { multiSelect_ = several; }
    bool MultiSelect() const { return multiSelect_; }
    const RowRanges& SelectedRows() const { return selected_; }
    // `row` is to be one of them, and -1 when there are none.
    void SelectRows(const RowRanges& rows, int row);

    void EnsureVisible(int row);
    Rect RowOnScreen(int row) const;  // what can be seen of it
    void SetGridLines(bool shown);
    bool GridLines() const { return gridLines_; }
    // The text colour of the marked rows; kReadableRed as long as none was chosen. With high
    // contrast, and while they are selected, they look like the others.
    void SetMarkColor(Color color);
    Color MarkColor() const { return markColor_; }
    bool IsMarked(int row) const;
    void FlattenColumnHeaders() { peer_->FlattenColumnHeaders(); }

    Event<int> ItemClick;
    // A row was double clicked, or Enter was pressed with the focus in the list: what is to happen
    // with it is to happen. As long as nobody listens Enter is the form's.
    Event<int> RowActivated;
    // The user has selected other rows, or none; raised before ItemClick.
    Event<> SelectionChanged;
    // For the peer and for FormKeyboard: what the user has done with a row; -1 is the place beside
    // all rows.
    void UserSelected(int row, Choice choice = Choice::Only);
    bool UserSelectedAll();       // Ctrl+A; whether the key was used
    bool UserActivated(int row);  // whether that is of any use

  private:
    struct Column {
        std::string caption;
        int field;
    };
    void RequireRow(int row) const;
    void RequireColumn(int column) const;
    void Choose(int row, Choice choice);
    std::unique_ptr<ListViewPeer> peer_;
    std::vector<Column> columns_;
    std::shared_ptr<const RowSource> source_;
    Tags tags_;
    int selectedRow_ = -1;
    RowRanges selected_;
    int anchor_ = -1;  // where Shift selects from
    bool multiSelect_ = false;
    bool gridLines_ = false;
    Color markColor_ = kReadableRed;
};

}  // namespace ordalyn::toolkit
