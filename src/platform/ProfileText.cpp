#include "platform/ProfileText.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Text.h"

namespace ordalyn::platform {

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kOtherUtf16Mark = "\xFE\xFF";
// The most bytes that a character takes in a file; buffers are sized for that and cut afterwards.
constexpr std::size_t kBytesPerCharacter = 4;

bool StartsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

bool StandsFor(const IniChange& change, const IniChange& other) {
    return change.key.has_value() == other.key.has_value() &&
           EqualsIgnoreCase(change.section, other.section) &&
           (!change.key || EqualsIgnoreCase(*change.key, *other.key));
}

std::string TextOfUtf16(std::string_view bytes) {
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2)
        units += static_cast<char16_t>(static_cast<unsigned char>(bytes[at]) |
                                       static_cast<unsigned char>(bytes[at + 1]) << 8);
    return Utf16ToUtf8(units);
}

std::string Utf16Of(std::string_view text) {
    std::string bytes;
    for (const char16_t unit : Utf8ToUtf16(text)) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
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
      files_(services.files) {}

ProfileText::Kind ProfileText::KindOf(std::string_view bytes) {
    if (StartsWith(bytes, kUtf16Mark))
        return Kind::Utf16;
    return StartsWith(bytes, kUtf8Mark) ? Kind::Utf8 : Kind::CodePage;
}

ProfileText::Kind ProfileText::KindOfLanguage(ProfileFile& file) {
    const Kind kind = KindOf(file.bytes);
    if (kind != Kind::CodePage)
        return kind;
    if (!file.isUtf8BeyondAscii)
        file.isUtf8BeyondAscii = IsUtf8BeyondAscii(file.bytes);
    return *file.isUtf8BeyondAscii ? Kind::Utf8 : Kind::CodePage;
}

bool ProfileText::IsLeftToCalls(Kind kind, ProfileFile& file) {
    if (kind != Kind::Utf16)
        return StartsWith(file.onDisk, kOtherUtf16Mark);
    if (!file.hasUtf16Only) {
        const std::string_view behindMark = std::string_view(file.onDisk).substr(kUtf16Mark.size());
        file.hasUtf16Only = Utf16Of(TextOfUtf16(behindMark)) == behindMark;
    }
    return !*file.hasUtf16Only;
}

ProfileFile& ProfileText::UpToDate(ProfileFile& file) {
    if (file.readAgain)
        ShowWaiting(file);
    return file;
}

IniFile ProfileText::Parse(Kind kind, std::string_view bytes) {
    if (kind == Kind::Utf16)
        return IniFile(TextOfUtf16(bytes.substr(kUtf16Mark.size())));
    if (kind == Kind::Utf8) {
        if (StartsWith(bytes, kUtf8Mark))
            bytes.remove_prefix(kUtf8Mark.size());
        return IniFile(bytes);
    }
    return IniFile(bytes, [this](std::string_view a, std::string_view b) {
        if (IsAscii(a) && IsAscii(b))
            return EqualsIgnoreCase(a, b);
        return EqualsIgnoreCase(Decoded(Kind::CodePage, a), Decoded(Kind::CodePage, b));
    });
}

const IniFile& ProfileText::Parsed(Kind kind, ProfileFile& file) {
    std::optional<IniFile>& parsed = kind == Kind::CodePage ? file.inCodePage : file.inUnicode;
    if (!parsed)
        parsed = Parse(kind, file.bytes);
    return *parsed;
}

std::string ProfileText::BytesOf(Kind kind, const IniFile& content) {
    if (kind == Kind::Utf16)
        return std::string(kUtf16Mark) + Utf16Of(content.Text());
    return std::string(kind == Kind::Utf8 ? kUtf8Mark : "") + content.Text();
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
    ProfileFile& home = At(file);
    const Kind kind = languageCodePage ? KindOfLanguage(home) : KindOf(home.bytes);
    const std::string storedSection = Encoded(kind, section);
    const std::string storedKey = Encoded(kind, key);
    if (!languageCodePage && IsLeftToCalls(kind, home))
        return Cut(Decoded(kind, CallsFor(kind).ReadEntry(storedSection, storedKey,
                                                          EncodedValue(kind, otherwise), file,
                                                          RoomFor(size))),
                   size, 1);
    const std::optional<std::string> value = Parsed(kind, home).Entry(storedSection, storedKey);
    return Cut(value ? Decoded(kind, *value, languageCodePage.value_or(CodePages::kSystem))
                     : IniFile::Otherwise(otherwise),
               size, 1);
}

std::string ProfileText::ReadKeyNames(std::string_view section, std::string_view file,
                                      std::size_t size) {
    ProfileFile& home = At(file);
    const Kind kind = KindOf(home.bytes);
    const std::string stored = Encoded(kind, section);
    return DecodedList(kind,
                       IsLeftToCalls(kind, home)
                           ? CallsFor(kind).ReadKeyNames(stored, file, RoomFor(size))
                           : Parsed(kind, home).KeyNames(stored),
                       size);
}

std::string ProfileText::ReadSection(std::string_view section, std::string_view file,
                                     std::size_t size) {
    ProfileFile& home = At(file);
    const Kind kind = KindOf(home.bytes);
    const std::string stored = Encoded(kind, section);
    return DecodedList(kind,
                       IsLeftToCalls(kind, home)
                           ? CallsFor(kind).ReadSection(stored, file, RoomFor(size))
                           : Parsed(kind, home).Section(stored),
                       size);
}

std::string ProfileText::ReadSectionNames(std::string_view file, std::size_t size) {
    ProfileFile& home = At(file);
    const Kind kind = KindOf(home.bytes);
    return DecodedList(kind,
                       IsLeftToCalls(kind, home)
                           ? CallsFor(kind).ReadSectionNames(file, RoomFor(size))
                           : Parsed(kind, home).SectionNames(),
                       size);
}

void ProfileText::WriteEntry(std::string_view section, std::string_view key, std::string_view value,
                             std::string_view file) {
    Make({std::string(section), std::string(key), std::string(value)}, file);
}

void ProfileText::DeleteEntry(std::string_view section, std::string_view key,
                              std::string_view file) {
    Make({std::string(section), std::string(key), std::nullopt}, file);
}

void ProfileText::DeleteSection(std::string_view section, std::string_view file) {
    Make({std::string(section), std::nullopt, std::nullopt}, file);
}

bool ProfileText::WriteWaiting(std::string_view file) {
    return files_.Known(file).waiting.empty() || Write(file, Newest(file));
}

void ProfileText::GiveUpWaiting(std::string_view file) {
    ProfileFile& home = files_.Known(file);
    home.waiting.clear();
    ShowWaiting(home);
}

void ProfileText::BeginChanges() {
    ++changing_;
    files_.BeginLook();
}

void ProfileText::EndChanges() {
    files_.EndLook();
    if (--changing_ > 0)
        return;
    for (const std::string& path : std::exchange(toWrite_, {}))
        WriteWaiting(path);
}

void ProfileText::Make(const IniChange& change, std::string_view path) {
    const bool begun = std::find(toWrite_.begin(), toWrite_.end(), path) != toWrite_.end();
    ProfileFile& file = begun ? At(path) : Newest(path);
    // What stood for the same entry before is outdated.
    std::vector<IniChange>& waiting = file.waiting;
    waiting.erase(
        std::remove_if(waiting.begin(), waiting.end(),
                       [&](const IniChange& earlier) { return StandsFor(change, earlier); }),
        waiting.end());
    waiting.push_back(change);
    if (changing_ == 0) {
        Write(path, file);
        return;
    }
    ShowWaiting(file);
    if (!begun)
        toWrite_.emplace_back(path);
}

// Writes what waits for the file, all of it or nothing.
bool ProfileText::Write(std::string_view path, ProfileFile& file) {
    const Kind kind = KindOf(file.onDisk);
    bool written = true;
    if (IsLeftToCalls(kind, file)) {
        for (const IniChange& change : file.waiting)
            MakeByCalls(kind, change, path);
    } else {
        IniFile content = Parse(kind, file.onDisk);
        bool changed = false;
        for (const IniChange& change : file.waiting)
            changed = Apply(kind, change, content) || changed;
        written = !changed || files_.Replace(path, file, BytesOf(kind, content));
    }
    if (written)
        file.waiting.clear();
    ShowWaiting(file);
    return written;
}

// Brings the bytes that are read up to date.
void ProfileText::ShowWaiting(ProfileFile& file) {
    file.readAgain = false;
    file.isUtf8BeyondAscii.reset();
    file.hasUtf16Only.reset();
    file.inCodePage.reset();
    file.inUnicode.reset();
    file.bytes = file.onDisk;
    const Kind kind = KindOf(file.onDisk);
    if (file.waiting.empty() || IsLeftToCalls(kind, file))
        return;
    IniFile content = Parse(kind, file.onDisk);
    for (const IniChange& change : file.waiting)
        Apply(kind, change, content);
    file.bytes = BytesOf(kind, content);
}

bool ProfileText::Apply(Kind kind, const IniChange& change, IniFile& content) {
    const std::string section = Encoded(kind, change.section);
    if (!change.key)
        return content.DeleteSection(section);
    const std::string key = Encoded(kind, *change.key);
    return change.value ? content.WriteEntry(section, key, EncodedValue(kind, *change.value))
                        : content.DeleteEntry(section, key);
}

void ProfileText::MakeByCalls(Kind kind, const IniChange& change, std::string_view path) {
    ProfileCalls& calls = CallsFor(kind);
    const std::string section = Encoded(kind, change.section);
    if (!change.key)
        calls.DeleteSection(section, path);
    else if (!change.value)
        calls.DeleteEntry(section, Encoded(kind, *change.key), path);
    else
        calls.WriteEntry(section, Encoded(kind, *change.key), EncodedValue(kind, *change.value),
                         path);
}

}  // namespace ordalyn::platform
