#include "log/LogBytes.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "base/Text.h"

namespace ordalyn {

namespace {

constexpr std::size_t kUnitsBlock = std::size_t{64} * 1024;

char* PutUtf8(char32_t c, char* out) {
    const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
    const auto putTrail = [&put](char32_t bits) { put(0x80U | (bits & 0x3FU)); };
    if (c < 0x80) {
        put(c);
        return out;
    }
    if (c < 0x800) {
        put(0xC0U | (c >> 6U));
    } else if (c < 0x10000) {
        put(0xE0U | (c >> 12U));
        putTrail(c >> 6U);
    } else {
        put(0xF0U | (c >> 18U));
        putTrail(c >> 12U);
        putTrail(c >> 6U);
    }
    putTrail(c);
    return out;
}

}  // namespace

std::size_t LogBytes::Read(char* buffer, std::size_t capacity) {
    if (encoding_ == Encoding::Unknown)
        ReadMark();
    const bool wide =
        encoding_ == Encoding::Utf16LittleEndian || encoding_ == Encoding::Utf16BigEndian;
    return wide ? ReadUtf16(buffer, capacity) : ReadRaw(buffer, capacity);
}

void LogBytes::ReadMark() {
    // A file may give fewer bytes at a time than a mark has.
    while (startCount_ < kUtf8Mark.size()) {
        const std::size_t count =
            file_->Read(start_.data() + startCount_, start_.size() - startCount_);
        if (count == 0)
            break;
        startCount_ += count;
    }
    const std::string_view start(start_.data(), startCount_);
    std::size_t mark = 2;
    if (start.starts_with("\xFF\xFE")) {
        encoding_ = Encoding::Utf16LittleEndian;
    } else if (start.starts_with("\xFE\xFF")) {
        encoding_ = Encoding::Utf16BigEndian;
    } else if (start.starts_with(kUtf8Mark)) {
        encoding_ = Encoding::Utf8;
        mark = kUtf8Mark.size();
    } else {
        encoding_ = Encoding::Unmarked;
        mark = 0;
    }
    startCount_ -= mark;
    std::memmove(start_.data(), start_.data() + mark, startCount_);
}

std::size_t LogBytes::ReadRaw(char* buffer, std::size_t capacity) {
    if (startCount_ == 0)
        return file_->Read(buffer, capacity);
    std::memcpy(buffer, start_.data(), startCount_);
    return std::exchange(startCount_, 0);
}

std::size_t LogBytes::ReadUtf16(char* buffer, std::size_t capacity) {
    if (!units_)
        units_ = std::make_unique_for_overwrite<char[]>(kUnitsBlock);
    char* out = buffer;
    while (out == buffer) {
        // A unit of two bytes becomes three bytes at most, and so does what waits for its other
        // half.
        const std::size_t most = std::min(kUnitsBlock, (capacity - 6) / 3 * 2);
        const std::size_t count = ReadRaw(units_.get(), most);
        if (count == 0) {
            out = PutEnd(out);
            break;
        }
        for (std::size_t i = 0; i < count; ++i) {
            const auto byte = static_cast<unsigned char>(units_[i]);
            oddByte_ = !oddByte_;
            if (oddByte_) {
                firstByte_ = byte;
                continue;
            }
            const bool little = encoding_ == Encoding::Utf16LittleEndian;
            const char32_t low = little ? firstByte_ : byte;
            const char32_t high = little ? byte : firstByte_;
            out = PutUnit((high << 8U) | low, out);
        }
    }
    return static_cast<std::size_t>(out - buffer);
}

char* LogBytes::PutUnit(char32_t unit, char* out) {
    const bool low = unit >= 0xDC00 && unit <= 0xDFFF;
    if (highSurrogate_ != 0) {
        const char32_t high = std::exchange(highSurrogate_, 0);
        if (low)
            return PutUtf8(0x10000 + ((high - 0xD800) << 10U) + (unit - 0xDC00), out);
        out = PutUtf8(0xFFFD, out);
    }
    if (unit >= 0xD800 && unit <= 0xDBFF) {
        highSurrogate_ = unit;
        return out;
    }
    return PutUtf8(low ? 0xFFFD : unit, out);
}

char* LogBytes::PutEnd(char* out) {
    // Halves that wait at the end of the file are invalid parts.
    if (std::exchange(highSurrogate_, 0) != 0)
        out = PutUtf8(0xFFFD, out);
    if (std::exchange(oddByte_, false))
        out = PutUtf8(0xFFFD, out);
    return out;
}

}  // namespace ordalyn
