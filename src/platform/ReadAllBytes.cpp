#include "base/Attempt.h"
#include "platform/Platform.h"

namespace ordalyn::platform {

std::optional<std::string> ReadAllBytes(Files& files, std::string_view path) {
    std::string bytes;
    const bool read = Attempt([&] {
        const std::unique_ptr<ReadableFile> file = files.OpenForReading(path);
        constexpr std::size_t kBlock = std::size_t{64} * 1024;
        for (;;) {
            const std::size_t before = bytes.size();
            bytes.resize(before + kBlock);
            const std::size_t count = file->Read(bytes.data() + before, kBlock);
            bytes.resize(before + count);
            if (count == 0)
                break;
        }
    });
    if (!read)
        return std::nullopt;
    return bytes;
}

void Files::Replace(std::string_view path, std::string_view bytes) {
    const std::unique_ptr<NewFile> file = BeginReplacing(path);
    file->Write(bytes);
    file->TakePlace();
}

}  // namespace ordalyn::platform
