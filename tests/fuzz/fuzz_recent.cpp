// Any sequence of uses of the list of recent files: it holds what a plain list says, before and
// after it has been kept and read again.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Choices.h"
#include "Require.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "settings/cRecentFiles.h"
#include "support/platform/MemoryPlatform.h"

using namespace ordalyn;
using fuzz::Require;

namespace {

constexpr std::string_view kFile = "C:\\Ordalyn\\Ordalyn.ini";
constexpr int kMost = 4;
const std::string kPaths[] = {"C:\\a.log",  "D:\\\xC3\x84.log",  "C:\\logs\\tc.log",
                              "\\\\pc\\x",  "E:\\%TEMP%\\1.log", "C:\\\xD0\x96\\\xE4\xB8\xAD.log",
                              "F:\\x y.log"};

// The files, latest first.
using Model = std::vector<std::string>;

void Compare(const cRecentFiles& list, const Model& model) {
    for (int i = 1; i <= kMost; ++i) {
        const bool expected = i <= static_cast<int>(model.size());
        Require(list.Occupied(i) == expected, "as many files as expected, without a gap");
        if (expected)
            Require(list.ListItems(i) == model[static_cast<std::size_t>(i - 1)], "in their order");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Choices choices(data, size);
    test::MemoryPlatform system;
    system.files.AddFolder("C:\\Ordalyn");
    const mAppCommon common(system.services);
    cProfile profile(system.services, common);
    cRecentFiles list(profile, common);
    list.Setup(kMost);
    Model model;
    const auto toFront = [&](const std::string& path) {
        model.erase(std::remove(model.begin(), model.end(), path), model.end());
        model.insert(model.begin(), path);
        if (model.size() > kMost)
            model.pop_back();
    };
    while (choices.Left()) {
        const int which = model.empty() ? 0 : choices.Of(static_cast<int>(model.size()));
        switch (choices.Of(6)) {
            case 0:
                list.RemoveAllFiles();
                model.clear();
                break;
            case 1:
                if (!model.empty()) {
                    list.RemoveFile(which + 1, true);
                    model.erase(model.begin() + which);
                }
                break;
            case 2:
                if (!model.empty()) {
                    list.PutAsFirstItem(which + 1);
                    toFront(std::string(model[static_cast<std::size_t>(which)]));
                }
                break;
            case 3: {
                list.SaveList(kFile, "Ordalyn", "RecentFiles");
                list.Setup(kMost);
                list.ReadList(kFile, "Ordalyn", "RecentFiles");
                for (std::string& path : model)
                    path = common.ExpandPath(path);
                break;
            }
            default: {
                const std::string& path =
                    kPaths[static_cast<std::size_t>(choices.Of(std::size(kPaths)))];
                list.AddFile(path);
                toFront(path);
            }
        }
        Compare(list, model);
    }
    return 0;
}
