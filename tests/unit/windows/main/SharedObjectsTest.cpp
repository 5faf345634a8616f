// The order in which the shared objects come and go. None of them does anything then that others
// could see, so it is told by the memory that they live in.
#include "windows/common/SharedObjects.h"

#include "support/windows/ProgramWindow.h"
#include "unit/windows/main/MemoryWatch.h"

namespace ordalyn {
namespace {

using test::MemoryWatch;
using test::ProgramWindow;

struct Block {
    const char* name;
    const void* memory;
};

void ExpectOrder(const std::vector<Block>& blocks, std::size_t (*timeOf)(const void*)) {
    std::size_t before = 0;
    for (const Block& block : blocks) {
        EXPECT_GT(timeOf(block.memory), before) << block.name;
        before = timeOf(block.memory);
    }
}

class SharedObjectsOrder : public ProgramWindow {
  protected:
    std::vector<Block> InOrderOfRelease() {
        const SharedObjects& shared = program->Shared();
        return {{"recentFiles", shared.recentFiles.get()},
                {"commonDialog", shared.commonDialog.get()},
                {"registry", shared.registry.get()},
                {"profile", shared.profile.get()},
                {"defaultStrings", shared.defaultStrings.get()}};
    }
};

TEST_F(SharedObjectsOrder, TheyAreMadeInAFixedOrder) {
    const MemoryWatch watch;
    const SharedObjects shared(system.services, tools);
    ExpectOrder({{"registry", shared.registry.get()},
                 {"commonDialog", shared.commonDialog.get()},
                 {"profile", shared.profile.get()},
                 {"defaultStrings", shared.defaultStrings.get()},
                 {"recentFiles", shared.recentFiles.get()}},
                MemoryWatch::Taken);
}

TEST_F(SharedObjectsOrder, TheyAreMadeBeforeTheMainWindow) {
    const MemoryWatch watch;
    program = std::make_unique<Program>(system.services, tools);
    ExpectOrder({{"recentFiles", program->Shared().recentFiles.get()}, {"main window", &Main()}},
                MemoryWatch::Taken);
}

TEST_F(SharedObjectsOrder, TheyAreReleasedInAnotherOrder) {
    program = std::make_unique<Program>(system.services, tools);
    const std::vector<Block> blocks = InOrderOfRelease();
    const MemoryWatch watch;
    program.reset();
    ExpectOrder(blocks, MemoryWatch::GivenBack);
}

TEST_F(SharedObjectsOrder, TheyOutliveTheMainWindow) {
    Start();
    std::vector<Block> blocks = InOrderOfRelease();
    blocks.insert(blocks.begin(), {"main window", &Main()});
    Main().UserClosed();
    const MemoryWatch watch;
    program.reset();
    ExpectOrder(blocks, MemoryWatch::GivenBack);
}

}  // namespace
}  // namespace ordalyn
