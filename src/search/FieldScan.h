// FieldScan: which of the entries hold a text in one of their fields.
//
// The fields of entries that were read one after the other stand one after the other in memory,
// with little between them. So they are not looked at one by one but as one long text, which takes
// a fraction of the time; only where that holds the text is it asked whose field that is.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "lists/cStringArray.h"
#include "search/TextSearcher.h"

namespace ordalyn {

class FieldScan {
  public:
    // With `wholeWord` the text must have a blank, or an end of the field, on both sides.
    FieldScan(const cStringArray& fields, std::string_view wanted, bool wholeWord)
        : fields_(fields),
          wholeWord_(wholeWord),
          empty_(wanted.empty()),
          searcher_(wanted),
          wordSearcher_(" " + std::string(wanted) + " ") {}

    // Goes through the entries entryAt(0) to entryAt(count - 1) and calls found(n), n ascending,
    // for each whose field holds the text, until it returns true. Returns whether it did. Throws
    // SubscriptOutOfRange for an entry outside the list's storage; found may have been called for
    // entries before it by then, but need not.
    template <typename EntryAt, typename Found>
    bool Run(std::int32_t count, const EntryAt& entryAt, const Found& found) {
        std::int32_t next = 0;
        while (next < count) {
            next = Gather(next, count, entryAt);
            if (Look(found))
                return true;
        }
        return false;
    }

  private:
    // Fields that stand in a row.
    struct Field {
        const char* start;
        const char* end;
        std::int32_t number;
    };
    static constexpr std::size_t kMostFields = 512;
    static constexpr std::ptrdiff_t kWidestGap = 512;

    // Takes up the fields from this number on as long as each follows the one before closely.
    // Returns the number of the first that was not taken up.
    template <typename EntryAt>
    std::int32_t Gather(std::int32_t number, std::int32_t count, const EntryAt& entryAt) {
        count_ = 0;
        TextPosition first{};
        const char* end = nullptr;
        for (; number < count && count_ < kMostFields; ++number) {
            const TextPosition position = fields_.Position(entryAt(number));
            const std::string_view text = fields_.TextAt(position);
            if (text.empty() && !empty_)
                continue;  // holds nothing
            if (count_ == 0)
                first = position;
            else if (!TextStore::InOneBlock(first, position) || text.data() < end ||
                     text.data() - end > kWidestGap)
                break;
            end = text.data() + text.size();
            row_[count_++] = {text.data(), end, number};
        }
        return number;
    }

    template <typename Found>
    bool Look(const Found& found) {
        if (count_ == 0)
            return false;
        const std::string_view run(row_[0].start,
                                   static_cast<std::size_t>(row_[count_ - 1].end - row_[0].start));
        return count_ > 1 && searcher_.FindsAllIn(run) ? LookThrough(run, found)
                                                       : LookOneByOne(found);
    }

    template <typename Found>
    bool LookThrough(std::string_view run, const Found& found) {
        std::size_t field = 0;
        std::size_t from = 0;
        while (const auto place = searcher_.FindIn(run, from)) {
            const char* const start = run.data() + place->start;
            const char* const end = run.data() + place->end;
            from = place->start + 1;
            while (row_[field].end < end && field + 1 < count_)
                ++field;
            // Else it stands between two fields, or reaches out of one.
            const bool inside = row_[field].start <= start && end <= row_[field].end;
            if (!inside || !IsWanted(row_[field], start, end))
                continue;
            if (found(row_[field].number))
                return true;
            from = static_cast<std::size_t>(row_[field].end - run.data());
        }
        return false;
    }

    template <typename Found>
    bool LookOneByOne(const Found& found) {
        for (std::size_t field = 0; field < count_; ++field) {
            const Field& f = row_[field];
            const std::string_view text(f.start, static_cast<std::size_t>(f.end - f.start));
            if (Holds(text) && found(f.number))
                return true;
        }
        return false;
    }

    bool IsWanted(const Field& field, const char* start, const char* end) const {
        return !wholeWord_ ||
               ((start == field.start || start[-1] == ' ') && (end == field.end || *end == ' '));
    }
    bool Holds(std::string_view text) {
        if (!wholeWord_)
            return searcher_.FoundIn(text);
        padded_.assign(1, ' ').append(text).push_back(' ');
        return wordSearcher_.FoundIn(padded_);
    }

    const cStringArray& fields_;
    bool wholeWord_;
    bool empty_;
    TextSearcher searcher_;
    TextSearcher wordSearcher_;
    std::string padded_;
    std::array<Field, kMostFields> row_;
    std::size_t count_ = 0;
};

}  // namespace ordalyn
