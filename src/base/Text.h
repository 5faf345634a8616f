// Text as the program knows it: UTF-8 in std::string and std::string_view. Comparison and search
// ignore letter case for every script, by simple case folding of code points, with the same result
// on every system. "Characters" are code points; a byte that is not part of valid UTF-8 counts as
// one character.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ordalyn {

// Case.
char32_t FoldCase(char32_t c);
std::string FoldCase(std::string_view text);
// All characters that fold to this one, which must be folded; it is the first of them.
std::vector<char32_t> CaseVariants(char32_t folded);
int CompareIgnoreCase(std::string_view a, std::string_view b);  // by folded code points; <0, 0, >0
bool EqualsIgnoreCase(std::string_view a, std::string_view b);
bool StartsWithIgnoreCase(std::string_view text, std::string_view prefix);

// Parts of a text, counted in characters. Asking for more than there is gives what there is.
std::size_t CharacterCount(std::string_view text);
std::string_view FirstCharacters(std::string_view text, std::size_t count);
std::string_view LastCharacters(std::string_view text, std::size_t count);
std::string_view WithoutFirstCharacter(std::string_view text);
std::string_view WithoutLastCharacter(std::string_view text);

// Blanks are U+0020 only; tabs and other white space stay.
std::string_view TrimBlanks(std::string_view text);

// Splits at every occurrence of the separator and keeps empty parts. An empty text gives no part.
std::vector<std::string> Split(std::string_view text, char separator);
std::string Join(const std::vector<std::string>& parts, std::string_view separator);

// Replaces every occurrence, found ignoring case; the replacement is not searched again.
std::string ReplaceIgnoreCase(std::string_view text, std::string_view what, std::string_view with);

// Numbers. ToLong is strict: the text (blanks around it apart) must be a decimal number; a fraction
// or exponent is rounded, halves to even. It throws TypeMismatch for anything else and Overflow
// outside 32 bits. LeadingNumber reads the number that the text begins with, blanks skipped, and is
// 0 when it begins with none.
std::int32_t ToLong(std::string_view text);
double LeadingNumber(std::string_view text);

// UTF-8 and UTF-16. Invalid sequences become U+FFFD, one for each maximal invalid part.
bool IsAscii(std::string_view text);
bool IsValidUtf8(std::string_view bytes);
// Whether it is UTF-8, not just ASCII, which every code page has in common.
bool IsUtf8BeyondAscii(std::string_view bytes);
std::string ToValidUtf8(std::string_view bytes);
std::u16string Utf8ToUtf16(std::string_view text);
std::string Utf16ToUtf8(std::u16string_view text);
void AppendUtf8(std::string& text, char32_t c);

inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

}  // namespace ordalyn
