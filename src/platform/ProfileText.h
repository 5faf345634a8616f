// INI files as text: the profile calls know bytes in the system code page, the files that are met
// hold more. Each operation looks at how the file begins:
//  - a UTF-16 mark: the calls' Unicode form;
//  - a UTF-8 mark: the whole file is UTF-8, which the calls misread; it is read and written here;
//  - anything else, or no file yet: the system code page, in which a single name or value that
//    starts with a UTF-8 mark is UTF-8. What the code page cannot hold is written that way.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/IniFile.h"
#include "platform/Platform.h"

namespace ordalyn::platform {

// All text is UTF-8 without marks. Sizes are in characters as in ProfileCalls: a value is cut to
// size - 1 characters, a list to size - 2. Nothing throws; what cannot be written is dropped.
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

  private:
    enum class Kind { CodePage, Utf16, Utf8 };
    Kind KindOf(std::string_view file);
    bool IsUtf8WithoutMark(std::string_view file);

    bool ReadsItself(Kind kind, unsigned codePage = CodePages::kSystem) const;
    IniFile Parse(Kind kind, std::string_view bytes);
    IniFile Load(Kind kind, std::string_view file);
    template <typename Change>
    void ChangeFile(Kind kind, std::string_view file, Change&& change);

    // Between the program's text and what stands in a file of that kind.
    std::string Encoded(Kind kind, std::string_view text);
    std::string EncodedValue(Kind kind, std::string_view value);
    std::string Decoded(Kind kind, std::string_view stored, unsigned codePage = CodePages::kSystem);
    std::string DecodedList(Kind kind, std::string_view stored, std::size_t size);

    ProfileCalls& CallsFor(Kind kind) { return kind == Kind::Utf16 ? unicode_ : ansi_; }

    ProfileCalls& ansi_;
    ProfileCalls& unicode_;
    CodePages& codePages_;
    Files& files_;
    // Whether every byte passes through the system code page unharmed, which is what lets UTF-8
    // travel through the calls. False where characters take several bytes.
    bool bytesSurvive_;
};

}  // namespace ordalyn::platform
