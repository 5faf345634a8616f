// RowRanges: which rows of a list are selected, as ranges, so that a million of them cost no more
// than one.
#pragma once

#include <vector>

namespace ordalyn::toolkit {

class RowRanges {
  public:
    // Rows from `first` up to, not including, `end`.
    struct Range {
        int first, end;
        bool operator==(const Range&) const = default;
    };

    RowRanges() = default;
    RowRanges(int first, int end) { Add(first, end); }

    bool Empty() const { return ranges_.empty(); }
    int Count() const;
    bool Contains(int row) const;
    // Ascending; none touches another.
    const std::vector<Range>& Ranges() const { return ranges_; }
    // The first from this row on; -1 when there is none.
    int From(int row) const;
    // The row that is nearest to this one, the one below it when two are; -1 when there is none.
    int Nearest(int row) const;

    // Ranges without a row change nothing.
    void Add(int first, int end);
    void Remove(int first, int end);
    void Clear() { ranges_.clear(); }

    // Calls `visit` for each row, ascending.
    template <typename Visit>
    void ForEach(Visit&& visit) const {
        for (const Range& range : ranges_)
            for (int row = range.first; row < range.end; ++row)
                visit(row);
    }

    bool operator==(const RowRanges&) const = default;

  private:
    std::vector<Range> ranges_;
};

}  // namespace ordalyn::toolkit
