#include "platform/ProfileText.h"

#include <array>
#include <memory>
#include <optional>
#include <utility>

#include "base/Attempt.h"
#include "base/Text.h"

namespace ordalyn::platform {

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
// The most bytes that a character takes in a file; buffers are sized for that and cut afterwards.
constexpr std::size_t kBytesPerCharacter = 4;

bool StartsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

bool EveryByteSurvives(CodePages& codePages) {
    std::string bytes;
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        bytes += static_cast<char>(byte);
    return codePages.FromUtf8(codePages.ToUtf8(bytes, CodePages::kSystem), CodePages::kSystem) ==
           bytes;
}

std::string Cut(std::string_view text, std::size_t size, std::size_t reserved) {
    return std::string(FirstCharacters(text, size > reserved ? size - reserved : 0));
}

std::size_t RoomFor(std::size_t size) {
    return size * kBytesPerCharacter + kUtf8Mark.size();
}

}  // namespace

ProfileText::ProfileText(const Services& services)
    : ansi_(services.ansiProfile),
      unicode_(services.unicodeProfile),
      codePages_(services.codePages),
      files_(services.files),
      bytesSurvive_(EveryByteSurvives(services.codePages)) {}

ProfileText::Kind ProfileText::KindOf(std::string_view file) {
    std::array<char, kUtf8Mark.size()> start{};
    std::size_t count = 0;
    Attempt([&] {
        const std::unique_ptr<ReadableFile> opened = files_.OpenForReading(file);
        while (count < start.size()) {
            const std::size_t more = opened->Read(start.data() + count, start.size() - count);
            if (more == 0)
                break;
            count += more;
        }
    });
    const std::string_view bytes(start.data(), count);
    if (StartsWith(bytes, kUtf16Mark))
        return Kind::Utf16;
    return StartsWith(bytes, kUtf8Mark) ? Kind::Utf8 : Kind::CodePage;
}

bool ProfileText::IsUtf8WithoutMark(std::string_view file) {
    return IsUtf8BeyondAscii(ReadAllBytes(files_, file).value_or(""));
}

bool ProfileText::ReadsItself(Kind kind, unsigned codePage) const {
    // The calls take a file's bytes through the system code page and drop what is a blank there,
    // which may be part of a letter in another one.
    return kind == Kind::Utf8 ||
           (kind == Kind::CodePage && (!bytesSurvive_ || codePage != CodePages::kSystem));
}

IniFile ProfileText::Parse(Kind kind, std::string_view bytes) {
    if (kind == Kind::Utf8) {
        if (StartsWith(bytes, kUtf8Mark))
            bytes.remove_prefix(kUtf8Mark.size());
        return IniFile(bytes);
    }
    return IniFile(bytes, [this](std::string_view a, std::string_view b) {
        return EqualsIgnoreCase(Decoded(Kind::CodePage, a), Decoded(Kind::CodePage, b));
    });
}

IniFile ProfileText::Load(Kind kind, std::string_view file) {
    return Parse(kind, ReadAllBytes(files_, file).value_or(""));
}

template <typename Change>
void ProfileText::ChangeFile(Kind kind, std::string_view file, Change&& change) {
    const std::optional<std::string> bytes = ReadAllBytes(files_, file);
    // A file that is there but cannot be read now must not be taken for an empty one.
    if (!bytes && files_.Exists(file))
        return;
    IniFile content = Parse(kind, bytes.value_or(""));
    if (!change(content))
        return;
    const std::string mark(kind == Kind::Utf8 ? kUtf8Mark : "");
    Attempt([&] { files_.Replace(file, mark + content.Text()); });
}

std::string ProfileText::Encoded(Kind kind, std::string_view text) {
    if (kind != Kind::CodePage)
        return std::string(text);
    std::optional<std::string> bytes = codePages_.FromUtf8(text, CodePages::kSystem);
    // Bytes that happen to look like the mark would be taken for it.
    if (bytes && !StartsWith(*bytes, kUtf8Mark))
        return *std::move(bytes);
    return std::string(kUtf8Mark).append(text);
}

std::string ProfileText::EncodedValue(Kind kind, std::string_view value) {
    std::string whole = Encoded(kind, value);
    const bool quoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
    if (!quoted || !StartsWith(whole, kUtf8Mark))
        return whole;
    // The mark goes behind the quote: the calls take off the quotes only when they come first.
    return "\"" + std::string(kUtf8Mark).append(value.substr(1));
}

std::string ProfileText::Decoded(Kind kind, std::string_view stored, unsigned codePage) {
    if (StartsWith(stored, kUtf8Mark))
        return ToValidUtf8(stored.substr(kUtf8Mark.size()));
    if (kind == Kind::CodePage)
        return codePages_.ToUtf8(stored, codePage);
    return ToValidUtf8(stored);
}

std::string ProfileText::DecodedList(Kind kind, std::string_view stored, std::size_t size) {
    std::string list;
    while (!stored.empty()) {
        const std::size_t end = stored.find('\0');
        const std::string_view element = stored.substr(0, end);
        const std::size_t equals = element.find('=');
        list += Decoded(kind, element.substr(0, equals));
        if (equals != std::string_view::npos)
            list += "=" + Decoded(kind, element.substr(equals + 1));
        if (end == std::string_view::npos)
            break;
        list += '\0';
        stored.remove_prefix(end + 1);
    }
    return Cut(list, size, 2);
}

std::string ProfileText::ReadEntry(std::string_view section, std::string_view key,
                                   std::string_view otherwise, std::string_view file,
                                   std::size_t size, std::optional<unsigned> languageCodePage) {
    Kind kind = KindOf(file);
    if (languageCodePage && kind == Kind::CodePage && IsUtf8WithoutMark(file))
        kind = Kind::Utf8;
    const unsigned codePage = languageCodePage.value_or(CodePages::kSystem);
    const std::string storedSection = Encoded(kind, section);
    const std::string storedKey = Encoded(kind, key);
    if (ReadsItself(kind, codePage)) {
        const std::optional<std::string> value = Load(kind, file).Entry(storedSection, storedKey);
        return Cut(value ? Decoded(kind, *value, codePage) : IniFile::Otherwise(otherwise), size,
                   1);
    }
    return Cut(
        Decoded(kind, CallsFor(kind).ReadEntry(storedSection, storedKey,
                                               EncodedValue(kind, otherwise), file, RoomFor(size))),
        size, 1);
}

std::string ProfileText::ReadKeyNames(std::string_view section, std::string_view file,
                                      std::size_t size) {
    const Kind kind = KindOf(file);
    const std::string stored = Encoded(kind, section);
    return DecodedList(kind,
                       ReadsItself(kind) ? Load(kind, file).KeyNames(stored)
                                         : CallsFor(kind).ReadKeyNames(stored, file, RoomFor(size)),
                       size);
}

std::string ProfileText::ReadSection(std::string_view section, std::string_view file,
                                     std::size_t size) {
    const Kind kind = KindOf(file);
    const std::string stored = Encoded(kind, section);
    return DecodedList(kind,
                       ReadsItself(kind) ? Load(kind, file).Section(stored)
                                         : CallsFor(kind).ReadSection(stored, file, RoomFor(size)),
                       size);
}

std::string ProfileText::ReadSectionNames(std::string_view file, std::size_t size) {
    const Kind kind = KindOf(file);
    return DecodedList(kind,
                       ReadsItself(kind) ? Load(kind, file).SectionNames()
                                         : CallsFor(kind).ReadSectionNames(file, RoomFor(size)),
                       size);
}

void ProfileText::WriteEntry(std::string_view section, std::string_view key, std::string_view value,
                             std::string_view file) {
    const Kind kind = KindOf(file);
    const std::string storedSection = Encoded(kind, section);
    const std::string storedKey = Encoded(kind, key);
    const std::string storedValue = EncodedValue(kind, value);
    if (!ReadsItself(kind)) {
        CallsFor(kind).WriteEntry(storedSection, storedKey, storedValue, file);
        return;
    }
    ChangeFile(kind, file, [&](IniFile& content) {
        return content.WriteEntry(storedSection, storedKey, storedValue);
    });
}

void ProfileText::DeleteEntry(std::string_view section, std::string_view key,
                              std::string_view file) {
    const Kind kind = KindOf(file);
    const std::string storedSection = Encoded(kind, section);
    const std::string storedKey = Encoded(kind, key);
    if (!ReadsItself(kind)) {
        CallsFor(kind).DeleteEntry(storedSection, storedKey, file);
        return;
    }
    ChangeFile(kind, file,
               [&](IniFile& content) { return content.DeleteEntry(storedSection, storedKey); });
}

void ProfileText::DeleteSection(std::string_view section, std::string_view file) {
    const Kind kind = KindOf(file);
    const std::string stored = Encoded(kind, section);
    if (!ReadsItself(kind)) {
        CallsFor(kind).DeleteSection(stored, file);
        return;
    }
    ChangeFile(kind, file, [&](IniFile& content) { return content.DeleteSection(stored); });
}

}  // namespace ordalyn::platform
