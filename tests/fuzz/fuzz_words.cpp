// Any bytes as the LoggingID of the program's settings and as a language file of the file manager:
// what is offered are words of that file, or the English ones, in the order of LoggingID.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Require.h"
#include "base/Text.h"
#include "hostconfig/OperationWords.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"

using namespace ordalyn;
using fuzz::Require;

namespace {

void CheckItems(const std::vector<OperationWord>& items) {
    for (const OperationWord& item : items) {
        Require(IsValidUtf8(item.text), "a word is UTF-8");
        if (item.key.empty()) {
            Require(item.text == "-", "only a separator has no key");
            continue;
        }
        Require(item.key.front() == 'k', "a key says that it is one");
        OperationWords::IsOperation(item.key);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t cut = std::min(bytes.find('\n'), bytes.size());
    test::MemoryPlatform system;
    system.files.AddFolder("C:\\Ordalyn");
    system.files.Set("C:\\Ordalyn\\Ordalyn.ini",
                     "[Ordalyn]\r\nLoggingID=" + std::string(bytes.substr(0, cut)) + "\r\n");
    system.files.Set("C:\\tc\\Language\\WCMD.LNG",
                     cut < bytes.size() ? bytes.substr(cut + 1) : std::string_view());
    system.files.Set("C:\\tc\\wincmd.ini", "[Configuration]\r\nLanguageIni=WCMD.LNG\r\n");
    mAppCommon common(system.services);
    common.SetCommanderIni("C:\\tc\\wincmd.ini");
    common.SetCommanderFolder("C:\\tc\\");
    cProfile profile(system.services, common);
    OperationWords words({common, profile, system.files, system.codePages});

    const std::vector<OperationWord> items = words.LoadOperationKeywords();
    CheckItems(items);
    const std::vector<std::string> operations = words.Operations();
    for (const std::string& operation : operations)
        Require(IsValidUtf8(operation), "an operation is UTF-8");
    Require(words.LoadOperationKeywords() == items && words.Operations() == operations,
            "a second look gives the same");
    const auto separators = [](const std::vector<OperationWord>& list) {
        return std::count_if(list.begin(), list.end(),
                             [](const OperationWord& item) { return item.key.empty(); });
    };
    const auto english = words.LoadDefaultKeywords();
    CheckItems(english);
    Require(items.empty() || separators(items) == separators(english),
            "separators stand where LoggingID has them, whatever the words");
    return 0;
}
