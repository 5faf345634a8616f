// INI files as text: the system's profile calls know bytes in the system code page, the files that
// are met hold more, and the calls open the file for each value. Here a file is opened once for all
// values, as ProfileFiles says, and its values are found by the calls' rules, as IniFile has them.
// How the file begins decides:
//  - a UTF-16 or UTF-8 mark: the whole file is in that;
//  - anything else, or no file yet: the system code page, in which a single name or value that
//    starts with a UTF-8 mark is UTF-8. What the code page cannot hold is written that way.
// What is not understood as a whole (UTF-16 in the other byte order, or with characters that are
// none) is left to the calls.
//
// A change reaches the file at once, as a new whole file that takes the old one's place: whatever
// happens, each entry has its old or its new value. A change to what the file says already leaves
// it alone. One that could not be written waits: it is read as if it had been written, and goes
// into the file with the next change to it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/IniFile.h"
#include "platform/Platform.h"
#include "platform/ProfileFiles.h"

namespace ordalyn::platform {

// All text is UTF-8 without marks. Sizes are in characters as in ProfileCalls: a value is cut to
// size - 1 characters, a list to size - 2. Nothing throws.
class ProfileText {
  public:
    explicit ProfileText(const Services& services);

    // The value without one pair of enclosing quotes, or `otherwise` when the entry is absent. With
    // a code page, that of the language whose texts the file has, a file without a mark is UTF-8
    // when all of it is and it has characters beyond ASCII, else in that code page.
    std::string ReadEntry(std::string_view section, std::string_view key,
                          std::string_view otherwise, std::string_view file, std::size_t size,
                          std::optional<unsigned> languageCodePage = std::nullopt);
    // The lists: each element is followed by a NUL character.
    std::string ReadKeyNames(std::string_view section, std::string_view file, std::size_t size);
    std::string ReadSection(std::string_view section, std::string_view file, std::size_t size);
    std::string ReadSectionNames(std::string_view file, std::size_t size);
    void WriteEntry(std::string_view section, std::string_view key, std::string_view value,
                    std::string_view file);
    void DeleteEntry(std::string_view section, std::string_view key, std::string_view file);
    void DeleteSection(std::string_view section, std::string_view file);

    // Tries again to write what waits for this file. Whether nothing waits any more.
    bool WriteWaiting(std::string_view file);
    // Drops what waits for it.
    void GiveUpWaiting(std::string_view file);

    // A look, as ProfileFiles says.
    void BeginLook() { files_.BeginLook(); }
    void EndLook() { files_.EndLook(); }
    // Changes in between are written together, at the end: all of them or none.
    void BeginChanges();
    void EndChanges();

  private:
    enum class Kind { CodePage, Utf16, Utf8 };

    static Kind KindOf(std::string_view bytes);
    // As a language file is read: without a mark it may be UTF-8.
    static Kind KindOfLanguage(ProfileFile& file);
    bool IsLeftToCalls(Kind kind, ProfileFile& file);
    ProfileFile& At(std::string_view path) { return UpToDate(files_.At(path)); }
    ProfileFile& Newest(std::string_view path) { return UpToDate(files_.Newest(path)); }
    ProfileFile& UpToDate(ProfileFile& file);

    IniFile Parse(Kind kind, std::string_view bytes);
    const IniFile& Parsed(Kind kind, ProfileFile& file);
    std::string BytesOf(Kind kind, const IniFile& content);

    void Make(const IniChange& change, std::string_view path);
    bool Write(std::string_view path, ProfileFile& file);
    void ShowWaiting(ProfileFile& file);
    bool Apply(Kind kind, const IniChange& change, IniFile& content);
    void MakeByCalls(Kind kind, const IniChange& change, std::string_view path);

    // Between the program's text and what stands in a file of that kind.
    std::string Encoded(Kind kind, std::string_view text);
    std::string EncodedValue(Kind kind, std::string_view value);
    std::string Decoded(Kind kind, std::string_view stored, unsigned codePage = CodePages::kSystem);
    std::string DecodedList(Kind kind, std::string_view stored, std::size_t size);

    ProfileCalls& CallsFor(Kind kind) { return kind == Kind::Utf16 ? unicode_ : ansi_; }

    ProfileCalls& ansi_;
    ProfileCalls& unicode_;
    CodePages& codePages_;
    ProfileFiles files_;
    int changing_ = 0;                  // one within another
    std::vector<std::string> toWrite_;  // paths, while changing
};

}  // namespace ordalyn::platform
