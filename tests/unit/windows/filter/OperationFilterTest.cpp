// What an operation word of the menu lets pass, beside words that begin with it.
#include "support/windows/FindWindow.h"

namespace ordalyn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OperationFilter : public FindWindow {
  protected:
    OperationFilter() {
        Load({
            "01.03.2024 10:15:30: Delete C:\\a.txt",                               // 0
            "01.03.2024 10:15:31: DeleteFolder C:\\old",                           // 1
            "01.03.2024 10:15:32: DELETE: Failed: C:\\b.txt",                      // 2
            "01.03.2024 10:15:33: DELETEFOLDER: Delete failed: C:\\DeleteFolder",  // 3
            "01.03.2024 10:15:34: Copy C:\\a.txt -> D:\\a: b: Delete",             // 4
            "01.03.2024 10:15:35: Copy: Skipped: Delete.txt",                      // 5
        });
    }
    void Choose(std::string_view word) {
        commands.ShowFilterDialog();
        tools.DoLaterWork();
        const auto& menu = Toolbar1.ButtonAt(1).menu;
        for (std::size_t i = 0; i < menu.size(); ++i)
            if (menu[i].text == word)
                return Toolbar1.UserChoseMenuEntry(0, static_cast<int>(i));
        ADD_FAILURE() << word;
    }
    void UseLanguageFile(std::string_view lines) {
        system.ansiProfile.WriteEntry("Configuration", "LanguageIni", "WCMD.LNG", kCommanderIni);
        system.files.Set("C:\\tc\\Language\\WCMD.LNG", lines);
    }
};

TEST_F(OperationFilter, AWordDoesNotBringTheOperationThatBeginsWithIt) {
    Choose("Delete");
    EXPECT_THAT(Rows(), ElementsAre(0, 2));
    Choose("DeleteFolder");
    EXPECT_THAT(Rows(), ElementsAre(1, 3));
}

TEST_F(OperationFilter, TurnedRoundItLeavesTheOtherOperations) {
    cboContains.UserSelected(1);
    Choose("Delete");
    EXPECT_THAT(Rows(), ElementsAre(1, 3, 4, 5));
}

TEST_F(OperationFilter, WordsThatTheMenuDoesNotOfferTellOperationsApartToo) {
    Put("LoggingID", "1806");
    Choose("Delete");
    EXPECT_THAT(Rows(), ElementsAre(0, 2));
}

TEST_F(OperationFilter, AWordWithABlankIsToldFromItsBeginning) {
    UseLanguageFile("1806=\"Sil\"\r\n1807=\"Sil Dizin\"\r\n");
    Load({"01.03.2024 10:15:30: Sil C:\\a", "01.03.2024 10:15:31: Sil Dizin C:\\b"});
    Choose("Sil");
    EXPECT_THAT(Rows(), ElementsAre(0));
    Choose("Sil Dizin");
    EXPECT_THAT(Rows(), ElementsAre(1));
}

TEST_F(OperationFilter, ATypedTextStaysAPieceOfText) {
    Choose("Delete");
    Filter(": delete");
    EXPECT_THAT(Rows(), ElementsAre(0, 1, 2, 3, 5));
    Choose("Copy");
    Toolbar1.UserClickedButton(2);
    EXPECT_EQ(Rows().size(), 6U);
}

TEST_F(OperationFilter, AnOutcomeStaysAPieceOfText) {
    Put("LoggingID", "1806,1901");
    Choose("Delete");
    Choose("Failed");
    EXPECT_THAT(Rows(), ElementsAre(2, 3));
}

TEST_F(OperationFilter, InTargetsThereIsNoOperation) {
    cboSource.UserSelected(1);
    Choose("Delete");
    EXPECT_THAT(Rows(), ElementsAre(4));
    Choose("DeleteFolder");
    EXPECT_THAT(Rows(), IsEmpty());
}

}  // namespace
}  // namespace ordalyn::test
