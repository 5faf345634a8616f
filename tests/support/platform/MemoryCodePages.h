// Code pages without a system: the single-byte Windows code pages in full and of code page 932 the
// kana and a few characters whose second byte is troublesome.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::test {

class MemoryCodePages : public platform::CodePages {
  public:
    unsigned systemCodePage = 1252;

    std::string ToUtf8(std::string_view bytes, unsigned codePage) override;
    std::optional<std::string> FromUtf8(std::string_view text, unsigned codePage) override;
    unsigned OfCharacterSet(std::int32_t characterSet) override;

    // As the system converts where nobody asks about losses: a question mark for what is missing.
    std::string FromUtf8Lossy(std::string_view text, unsigned codePage) const;

  private:
    unsigned Resolve(unsigned codePage) const;
};

}  // namespace ordalyn::test
