// The remembered inputs of both dialogs.
#include "windows/common/InputHistory.h"

#include "support/windows/FindWindow.h"

namespace ordalyn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr toolkit::ControlDesign kBox[] = {
    {.kind = toolkit::Kind::ComboBox, .name = "cbo", .editable = true}};
constexpr toolkit::FormDesign kBoxForm = {
    .name = "frmBox", .tag = "", .clientSize = {2000, 400}, .style = {}, .controls = kBox};

class History : public FindFixture {
  protected:
    void Load(int most = 32) { history.LoadHistory(cbo, "Find", most); }
    void Add(std::string_view text, int most = 32) {
        cbo.UserEdited(text);
        history.AddToHistory(cbo, "Find", most);
    }
    bool Clear(toolkit::Answer answer) {
        tools.onMessage = [=](const ShownMessage&) { return answer; };
        return history.ClearHistory(cbo, "Find", 32, form);
    }
    std::vector<std::string> Items() const { return MemoryToolkit::Of(cbo).items; }

    toolkit::Form form{tools, kBoxForm};
    toolkit::ComboBox& cbo = form.Get<toolkit::ComboBox>("cbo");
    InputHistory history{profile, common, strings};
};

TEST_F(History, IsLoadedInTheOrderOfItsNumbersAndLeavesTheBoxEmpty) {
    Put("Find2", "two");
    Put("Find1", "one");
    Put("Filter1", "another history");
    cbo.SetText("typed");
    Load();
    EXPECT_THAT(Items(), ElementsAre("one", "two"));
    EXPECT_EQ(cbo.Text(), "");
}

TEST_F(History, MissingNumbersArePassedOver) {
    Put("Find3", "three");
    Put("Find32", "last");
    Put("Find33", "beyond");
    Load();
    EXPECT_THAT(Items(), ElementsAre("three", "last"));
}

TEST_F(History, AnEmptyEntryIsAnEmptyItem) {
    Put("Find1", "");
    Put("Find2", "b");
    Load();
    EXPECT_THAT(Items(), ElementsAre("", "b"));
}

TEST_F(History, WithoutASettingsFileIsEmpty) {
    Load();
    EXPECT_THAT(Items(), IsEmpty());
}

TEST_F(History, ANewTextGoesOnTopAndTheWholeListIsWrittenWithQuotes) {
    Add("first");
    Add("second");
    EXPECT_THAT(Items(), ElementsAre("second", "first"));
    EXPECT_TRUE(FileHolds("Find1=\"second\""));
    EXPECT_TRUE(FileHolds("Find2=\"first\""));
    EXPECT_EQ(cbo.Text(), "second");  // the box keeps what was typed
}

TEST_F(History, IsInTheFileBeforeAnythingElseHappens) {
    Add("abc");
    MemoryToolkit others;
    toolkit::Form next{others, kBoxForm};
    auto& box = next.Get<toolkit::ComboBox>("cbo");
    history.LoadHistory(box, "Find", 32);
    EXPECT_EQ(box.List(0), "abc");
}

TEST_F(History, BlanksAtTheEndsSurvive) {
    Add("  a b ");
    EXPECT_TRUE(FileHolds("Find1=\"  a b \""));
    cbo.Clear();
    Load();
    EXPECT_THAT(Items(), ElementsAre("  a b "));
}

TEST_F(History, TextOfEveryScriptSurvives) {
    Add("Übung — Копирование 日本");
    cbo.Clear();
    Load();
    EXPECT_THAT(Items(), ElementsAre("Übung — Копирование 日本"));
}

TEST_F(History, AnEqualTextInAnyCaseStaysWhereItIs) {
    Add("ABC");
    Add("other");
    Add("abc");
    EXPECT_THAT(Items(), ElementsAre("other", "ABC"));
    EXPECT_EQ(Stored("Find1"), "other");
    EXPECT_EQ(Stored("Find2"), "ABC");
}

TEST_F(History, AnEqualTextDoesNotRewriteTheList) {
    Add("abc");
    Put("Find1", "changed by hand");
    Add("ABC");
    EXPECT_EQ(Stored("Find1"), "changed by hand");
}

TEST_F(History, AnEmptyTextIsNotRemembered) {
    Add("");
    EXPECT_THAT(Items(), IsEmpty());
    EXPECT_EQ(Stored("Find1"), "(absent)");
}

TEST_F(History, ThirtyThreeTextsLoseTheOldest) {
    for (int i = 1; i <= 33; ++i)
        Add("text " + std::to_string(i));
    EXPECT_EQ(Items().size(), 32U);
    EXPECT_EQ(Stored("Find1"), "text 33");
    EXPECT_EQ(Stored("Find32"), "text 2");
    EXPECT_EQ(Stored("Find33"), "(absent)");
}

TEST_F(History, EntriesBehindTheListAreLeft) {
    Put("Find5", "by hand");
    Add("abc");
    EXPECT_EQ(Stored("Find1"), "abc");
    EXPECT_EQ(Stored("Find5"), "by hand");
}

TEST_F(History, ClearingAsksFirst) {
    Add("abc");
    EXPECT_FALSE(Clear(toolkit::Answer::No));
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(tools.messages[0].text, "Are you sure?");
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::Question);
    EXPECT_EQ(tools.messages[0].buttons, toolkit::MessageButtons::YesNo);
    EXPECT_EQ(tools.messages[0].owner, &form);
    EXPECT_THAT(Items(), ElementsAre("abc"));
    EXPECT_EQ(cbo.Text(), "abc");
    EXPECT_EQ(Stored("Find1"), "abc");
}

TEST_F(History, ClearingEmptiesListBoxAndFile) {
    for (int i = 0; i < 40; ++i)
        Put("Find" + std::to_string(i), "x");
    Put("Filter1", "stays");
    Load();
    EXPECT_TRUE(Clear(toolkit::Answer::Yes));
    EXPECT_THAT(Items(), IsEmpty());
    EXPECT_EQ(cbo.Text(), "");
    for (int i = 1; i <= 32; ++i)
        EXPECT_EQ(Stored("Find" + std::to_string(i)), "(absent)") << i;
    EXPECT_EQ(Stored("Find0"), "x");
    EXPECT_EQ(Stored("Find33"), "x");
    EXPECT_EQ(Stored("Filter1"), "stays");
}

}  // namespace
}  // namespace ordalyn::test
