// EntryLists: the log in memory. Four parallel lists, one element of each for an entry: the file
// that it was read from (name only), its date, source and target fields. Element i of each belongs
// to entry i; only EntryFiles is shorter once lines that were appended to a log have been read.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "lists/cStringArray.h"
#include "log/LogLine.h"

namespace ordalyn {

class EntryLists {
  public:
    EntryLists();

    const cStringArray& EntryFiles() const { return files_; }
    const cStringArray& EntryDates() const { return dates_; }
    const cStringArray& EntrySources() const { return sources_; }
    const cStringArray& EntryTargets() const { return targets_; }

    // Whether any entry has a date.
    bool HasDates() const;
    // The name of the file that the entry was read from; empty when EntryFiles does not say.
    std::string_view FileOf(std::int32_t entry) const;

    // The name of the file that the entries come from that are added from now on.
    void SetFile(std::string_view name);
    // Appends an entry. The fields may lie anywhere; they are copied unless they lie in memory that
    // the text store has lent. Throws Overflow.
    void Add(const LogLine& fields) {
        files_.AddStored(file_);
        AddWithoutFile(fields);
    }
    // The same without an element of EntryFiles.
    void AddWithoutFile(const LogLine& fields) {
        dates_.AddItem(fields.date);
        sources_.AddStored(texts_->Add(fields.source));
        targets_.AddStored(texts_->Add(fields.target));
    }

    // Puts other fields in the last entry's place; there must be one. Its file stays.
    void ReplaceLast(const LogLine& fields);

    // Where the texts of the lists are, so that a file can be read into their memory.
    TextStore& Texts() { return *texts_; }

    // Names what has been read: another name stands for another log, the same one for a log that
    // may have grown. Only compared.
    std::weak_ptr<const void> Log() const { return texts_; }

    // Exchanges everything with other lists, at no cost for any entry.
    void Swap(EntryLists& other) noexcept;
    // Empties the four lists. Snapshots keep what they show.
    void Clear();
    // Gives the spare slots of EntryDates, EntrySources and EntryTargets back, not those of
    // EntryFiles. Throws SubscriptOutOfRange when there are no entries.
    void FreeExtraItems();

  private:
    std::shared_ptr<TextStore> texts_ = std::make_shared<TextStore>();
    std::string fileName_;
    TextPosition file_{};
    cStringArray files_{texts_};
    cStringArray dates_{texts_};
    cStringArray sources_{texts_};
    cStringArray targets_{texts_};
};

}  // namespace ordalyn
