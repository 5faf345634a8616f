// The text of an INI file, read and changed the way the system's profile calls do it, for files
// that these calls cannot read and for systems that have none. The text's encoding is the caller's
// affair, as long as it contains ASCII as such.
//
// What changing a text does to the rest of it is the system's way too: blanks around names and
// values, text behind a section header and empty lines go, comment lines and everything else stay
// in their order, and every line ends in CR LF. A change that changes nothing leaves the text as it
// is.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ordalyn::platform {

class IniFile {
  public:
    using SameName = std::function<bool(std::string_view, std::string_view)>;

    // `sameName` compares section and key names; without it they are UTF-8 compared ignoring case.
    explicit IniFile(std::string_view text, SameName sameName = {});

    // The value of the first entry of that name, without one pair of enclosing quotes. Of sections
    // that bear the same name only the first counts. Blanks around the names asked for do not
    // count.
    std::optional<std::string> Entry(std::string_view section, std::string_view key) const;
    // What stands in for an absent entry: the default without blanks at its end and without one
    // pair of enclosing quotes.
    static std::string Otherwise(std::string_view text);

    // The lists, each element followed by a NUL character. Comment lines are left out; lines
    // without "=" are no keys, but stand among a section's entries.
    std::string KeyNames(std::string_view section) const;
    std::string Section(std::string_view section) const;  // name=value, quotes kept
    std::string SectionNames() const;

    // Each returns whether the text has changed. A new key goes to the end of its section, a new
    // section to the end of the text. An entry is deleted from the first section of that name that
    // holds one.
    bool WriteEntry(std::string_view section, std::string_view key, std::string_view value);
    bool DeleteEntry(std::string_view section, std::string_view key);
    bool DeleteSection(std::string_view section);

    std::string Text() const;

    // What fits into a buffer of `size` characters: a value leaves room for its terminating NUL, a
    // list for two of them and may lose part of its last element.
    template <typename Text>
    static Text CutValue(const Text& value, std::size_t size) {
        return value.substr(0, size > 1 ? size - 1 : 0);
    }
    template <typename Text>
    static Text CutList(const Text& list, std::size_t size) {
        return list.substr(0, size > 2 ? size - 2 : 0);
    }

  private:
    struct Line {
        std::string name;
        std::optional<std::string> value;  // nothing for a line without "="
        bool IsComment() const { return !name.empty() && name.front() == ';'; }
    };
    struct SectionLines {
        std::string name;  // empty for what stands before the first header
        std::vector<Line> lines;
    };

    void AddLine(std::string_view text);
    const SectionLines* FindSection(std::string_view name) const;
    const Line* FindLine(std::string_view section, std::string_view key) const;

    SameName sameName_;
    std::string unchanged_;  // the text as given, while it is not changed
    bool changed_ = false;
    std::vector<SectionLines> sections_;
};

}  // namespace ordalyn::platform
