#include "hostconfig/LanguageFileText.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/Text.h"

namespace ordalyn {

namespace {

constexpr std::string_view kCodePageKey = "codepage=";
constexpr double kGreatestCodePage = 65535;
constexpr unsigned kUtf8CodePage = 65001;

class TextInMemory : public platform::ReadableFile {
  public:
    explicit TextInMemory(std::string bytes) : bytes_(std::move(bytes)) {}
    std::size_t Read(char* buffer, std::size_t capacity) override {
        const std::size_t count = bytes_.copy(buffer, capacity, read_);
        read_ += count;
        return count;
    }

  private:
    std::string bytes_;
    std::size_t read_ = 0;
};

std::string BytesOf(platform::Files& files, std::string_view path) {
    constexpr std::size_t kBlock = 65536;
    const std::unique_ptr<platform::ReadableFile> file = files.OpenForReading(path);
    std::string bytes;
    std::string block(kBlock, '\0');
    while (const std::size_t count = file->Read(block.data(), block.size()))
        bytes.append(block, 0, count);
    return bytes;
}

bool IsMarked(std::string_view bytes) {
    return bytes.starts_with(kUtf8Mark) || bytes.starts_with("\xFF\xFE") ||
           bytes.starts_with("\xFE\xFF");
}

// The key and the number are ASCII in every code page.
unsigned NamedCodePage(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
        const std::string_view line = TrimBlanks(bytes.substr(0, end));
        const std::string_view key = line.substr(0, kCodePageKey.size());
        if (IsValidUtf8(key) && EqualsIgnoreCase(key, kCodePageKey)) {
            const double number = LeadingNumber(line.substr(kCodePageKey.size()));
            return number > 0 && number <= kGreatestCodePage ? static_cast<unsigned>(number)
                                                             : platform::CodePages::kSystem;
        }
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return platform::CodePages::kSystem;
}

std::string Utf8Of(std::string_view bytes, platform::CodePages& codePages) {
    if (IsUtf8BeyondAscii(bytes))
        return std::string(bytes);
    const unsigned codePage = NamedCodePage(bytes);
    return codePage == kUtf8CodePage ? ToValidUtf8(bytes) : codePages.ToUtf8(bytes, codePage);
}

}  // namespace

std::unique_ptr<platform::ReadableFile> OpenLanguageFile(platform::Files& files,
                                                         platform::CodePages& codePages,
                                                         std::string_view path) {
    std::string bytes = BytesOf(files, path);
    if (!IsMarked(bytes))
        bytes = std::string(kUtf8Mark).append(Utf8Of(bytes, codePages));
    return std::make_unique<TextInMemory>(std::move(bytes));
}

}  // namespace ordalyn
