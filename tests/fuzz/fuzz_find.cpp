// Any bytes as a text and what is looked for in it: the search agrees with folding both and
// comparing them. The needle is taken from the text, in other letter case, as often as it is not.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Require.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "search/FieldScan.h"
#include "search/TextSearcher.h"
#include "support/search/FoldAndCompare.h"

using namespace ordalyn;
using fuzz::Require;

namespace {

// Every character as another one that folds to the same, where there is one.
std::string InOtherCase(std::string_view text, std::size_t choice) {
    std::string other;
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCharacter c = DecodeUtf8(text, at);
        if (c.valid) {
            const auto variants = CaseVariants(FoldCase(c.value));
            AppendUtf8(other, variants[choice++ % variants.size()]);
        } else {
            other += text[at];
        }
        at += c.valid ? c.length : 1;
    }
    return other;
}

void Check(std::string_view text, std::string_view needle) {
    Require(TextSearcher(needle).FoundIn(text) == test::ContainsFolded(text, needle),
            "found exactly when the folded text contains the folded needle");
}

// The same for several fields that stand side by side: the bytes cut at every line feed.
void CheckFields(std::string_view bytes, std::string_view needle, bool wholeWord) {
    cStringArray fields;
    for (const std::string& field : Split(bytes, '\n'))
        fields.AddItem(field);
    const std::string blank = wholeWord ? " " : "";
    std::int32_t next = 0;
    const auto skipTo = [&](std::int32_t end) {
        for (; next < end; ++next)
            Require(!test::ContainsFolded(blank + std::string(fields.List(next)) + blank,
                                          blank + std::string(needle) + blank),
                    "a field that holds the needle is found");
    };
    FieldScan(fields, needle, wholeWord)
        .Run(
            fields.ListCount() + 1, [](std::int32_t entry) { return entry; },
            [&](std::int32_t entry) {
                skipTo(entry);
                Require(test::ContainsFolded(blank + std::string(fields.List(entry)) + blank,
                                             blank + std::string(needle) + blank),
                        "a field that is found holds the needle");
                ++next;
                return false;
            });
    skipTo(fields.ListCount() + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3)
        return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(data + 3), size - 3);
    const std::size_t start = bytes.empty() ? 0 : data[0] % bytes.size();
    const std::string_view part = bytes.substr(start, data[1] % 32);
    Check(bytes, part);
    Check(bytes, InOtherCase(part, data[2]));
    Check(bytes.substr(0, start), bytes.substr(start));
    Check(InOtherCase(bytes, data[2]), part);
    CheckFields(bytes, part, false);
    CheckFields(bytes, InOtherCase(part, data[2]), true);
    return 0;
}
