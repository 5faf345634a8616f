#include <gmock/gmock.h>

#include "support/toolkit/MemoryToolkit.h"
#include "support/windows/TestTexts.h"
#include "windows/main/frmXpStyleLoader.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;

TEST(StyleLoader, ShowsTheMainWindowFromOffEveryScreenAndIsNeverSeen) {
    MemoryToolkit tools;
    toolkit::Form main(tools, test::kOwnerDesign);
    const frmXpStyleLoader loader(tools, main);
    EXPECT_TRUE(main.Visible());
    EXPECT_FALSE(loader.Visible());
    EXPECT_EQ(loader.Left(), -20000);
    EXPECT_EQ(loader.Top(), -20000);
}

}  // namespace
}  // namespace ordalyn
