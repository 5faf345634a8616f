// SimpleLines: what the lines of a log file are, said as simply as possible: the whole file at
// once, one byte after the other. The real reader is compared with it.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "platform/Platform.h"

namespace ordalyn::test {

inline std::string Utf16BytesToUtf8(std::string_view bytes, bool littleEndian) {
    std::u16string units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        units +=
            static_cast<char16_t>(littleEndian ? first | (second << 8) : second | (first << 8));
    }
    return Utf16ToUtf8(units) + (bytes.size() % 2 == 1 ? "\xEF\xBF\xBD" : "");
}

inline std::vector<std::string> SimpleLines(std::string_view file, platform::CodePages& codePages) {
    std::string bytes(file);
    bool marked = true;
    if (file.starts_with("\xFF\xFE"))
        bytes = Utf16BytesToUtf8(file.substr(2), true);
    else if (file.starts_with("\xFE\xFF"))
        bytes = Utf16BytesToUtf8(file.substr(2), false);
    else if (file.starts_with(kUtf8Mark))
        bytes = file.substr(3);
    else
        marked = false;

    std::vector<std::string> lines;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
        std::string line = bytes.substr(at, end - at);
        at = end + (bytes.compare(end, 2, "\r\n") == 0 ? 2 : 1);
        while (line.starts_with(kUtf8Mark))
            line = line.substr(3);
        if (!IsAscii(line)) {
            if (marked)
                line = ToValidUtf8(line);
            else if (!IsValidUtf8(line))
                line = codePages.ToUtf8(line, platform::CodePages::kSystem);
        }
        lines.push_back(line);
    }
    return lines;
}

}  // namespace ordalyn::test
