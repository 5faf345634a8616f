#include "settings/TextHistory.h"

#include "support/settings/SettingsFixture.h"

namespace ordalyn::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class StoredHistory : public SettingsFixture {
  protected:
    TextHistory history{profile, common};
};

TEST_F(StoredHistory, IsReadInTheOrderOfItsNumbers) {
    Put("Ordalyn", "Find2", "two");
    Put("Ordalyn", "Find1", "one");
    Put("Ordalyn", "Filter1", "another history");
    EXPECT_THAT(history.Read("Find", 32), ElementsAre("one", "two"));
}

TEST_F(StoredHistory, MissingNumbersArePassedOverUpToTheLast) {
    Put("Ordalyn", "Find3", "three");
    Put("Ordalyn", "Find4", "");
    Put("Ordalyn", "Find32", "last");
    Put("Ordalyn", "Find33", "beyond");
    EXPECT_THAT(history.Read("Find", 32), ElementsAre("three", "", "last"));
}

TEST_F(StoredHistory, IsWrittenFromOneOnWithQuotesThatKeepBlanks) {
    history.Write("Find", {" b ", "a"});
    EXPECT_THAT(system.files.Get(kOwnFile).value_or(""),
                HasSubstr("Find1=\" b \"\r\nFind2=\"a\"\r\n"));
    EXPECT_THAT(history.Read("Find", 32), ElementsAre(" b ", "a"));
}

TEST_F(StoredHistory, EntriesBehindTheLastItemStay) {
    Put("Ordalyn", "Find3", "by hand");
    history.Write("Find", {"a"});
    EXPECT_THAT(history.Read("Find", 32), ElementsAre("a", "by hand"));
}

TEST_F(StoredHistory, IsDeletedUpToItsLength) {
    for (const int number : {0, 1, 32, 33})
        Put("Ordalyn", "Find" + std::to_string(number), "x");
    history.Delete("Find", 32);
    EXPECT_THAT(history.Read("Find", 32), IsEmpty());
    EXPECT_EQ(Stored("Ordalyn", "Find0"), "x");
    EXPECT_EQ(Stored("Ordalyn", "Find33"), "x");
}

}  // namespace
}  // namespace ordalyn::test
