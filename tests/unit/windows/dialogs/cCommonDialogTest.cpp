#include "windows/dialogs/cCommonDialog.h"

#include <gtest/gtest.h>

#include "base/Errors.h"
#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn {
namespace {

using platform::Dialogs;
using namespace std::string_view_literals;
using namespace std::string_literals;

constexpr platform::WindowHandle kOwner = 77;
constexpr std::int32_t kWindowText = -2147483640;

class CommonDialog : public testing::Test {
  protected:
    void Choose(const std::string& path) {
        system.dialogs.onOpenFile = [path](const Dialogs::OpenRequest&) { return path; };
    }
    void ChooseFont(const Dialogs::FontAnswer& answer) {
        system.dialogs.onChooseFont = [answer](const Dialogs::FontRequest&) { return answer; };
    }
    // The request of an open dialog that the user cancels.
    Dialogs::OpenRequest Opened(std::int32_t filter) {
        dialog.ShowOpenDialog(kOwner, "", "", filter);
        return system.dialogs.openRequests.back();
    }
    std::uint32_t InitialColor(std::int32_t color, std::string_view name) {
        dialog.ShowColorDialog(kOwner, color, name);
        return system.dialogs.colorRequests.back().initial;
    }
    void SetSystemColor(std::string_view value) {
        system.registry.SetString(test::MemoryRegistry::kCurrentUser, "Control Panel\\Colors",
                                  "WindowText", value);
    }

    test::MemoryPlatform system;
    mAppCommon common{system.services};
    cRegistry registry{system.services, common};
    cCommonDialog dialog{system.services, common, registry, [](std::int32_t id) {
                             return id == 1605 ? std::string(
                                                     "\xC3\x96"
                                                     "ffnen")
                                               : std::string("?");
                         }};
};

TEST_F(CommonDialog, SavePassesWhatTheCallerSaysAndStartsInTheLastFolder) {
    Choose("D:\\logs\\a.log");
    dialog.ShowOpenDialog(kOwner);
    dialog.ShowSaveDialog(kOwner, "rows", "Save", "Text\0*.txt\0"sv);
    const Dialogs::OpenRequest& request = system.dialogs.saveRequests.back();
    EXPECT_EQ(request.owner, kOwner);
    EXPECT_EQ(request.initialFolder, "D:\\logs\\");
    EXPECT_EQ(request.fileName, "rows");
    EXPECT_EQ(request.title, "Save");
    EXPECT_EQ(request.filter, "Text\0*.txt\0"sv);
    EXPECT_EQ(request.flags, 0x88880EU);
    EXPECT_EQ(request.recordSize, 88U);
    EXPECT_FALSE(dialog.Confirmed);
    EXPECT_EQ(dialog.FileName, "D:\\logs\\a.log");
}

TEST_F(CommonDialog, SaveLeavesPathAndChosenType) {
    system.dialogs.onSaveFile = [](const auto&) {
        return Dialogs::SaveAnswer{"E:\\out\\rows.csv\0more"s, 1};
    };
    dialog.ShowSaveDialog(kOwner, "", "", "");
    EXPECT_TRUE(dialog.Confirmed);
    EXPECT_EQ(dialog.FileName, "E:\\out\\rows.csv");
    EXPECT_EQ(dialog.FilterIndex, 1);
    EXPECT_EQ(Opened(0).initialFolder, "E:\\out\\");
}

TEST_F(CommonDialog, OpenPassesWhatTheCallerSays) {
    dialog.ShowOpenDialog(kOwner, "C:\\tc\\", "Wincmd.ini", 1, "Where is it?", true);
    const Dialogs::OpenRequest& request = system.dialogs.openRequests.back();
    EXPECT_EQ(request.owner, kOwner);
    EXPECT_EQ(request.initialFolder, "C:\\tc\\");
    EXPECT_EQ(request.fileName, "Wincmd.ini");
    EXPECT_EQ(request.title, "Where is it?");
}

TEST_F(CommonDialog, TheFileNameHas768MoreCharactersOfRoom) {
    dialog.ShowOpenDialog(kOwner, "", "Wincmd.ini");
    EXPECT_EQ(system.dialogs.openRequests.back().bufferSize, 778U);
    dialog.ShowOpenDialog(kOwner);
    EXPECT_EQ(system.dialogs.openRequests.back().bufferSize, 768U);
    dialog.ShowOpenDialog(kOwner, "", "\xD0\x96.log");
    EXPECT_EQ(system.dialogs.openRequests.back().bufferSize, 773U);
}

TEST_F(CommonDialog, OpenWithoutATitleBearsTheInterfaceText) {
    dialog.ShowOpenDialog(kOwner);
    EXPECT_EQ(system.dialogs.openRequests.back().title,
              "\xC3\x96"
              "ffnen");
}

TEST_F(CommonDialog, EachFilterEndsWithAllFiles) {
    EXPECT_EQ(Opened(0).filter, "All Files (*.*)\0*.*\0"sv);
    EXPECT_EQ(Opened(1).filter, "Wincmd.ini (*.ini)\0*.ini\0All Files (*.*)\0*.*\0"sv);
    EXPECT_EQ(Opened(2).filter, "Language File (*.lng)\0*.lng\0All Files (*.*)\0*.*\0"sv);
    EXPECT_EQ(Opened(3).filter, "TC Log File(*.log)\0*.log\0All Files (*.*)\0*.*\0"sv);
}

TEST_F(CommonDialog, TheFirstFilterIsTheDefault) {
    dialog.ShowOpenDialog(kOwner);
    EXPECT_EQ(system.dialogs.openRequests.back().filter, "All Files (*.*)\0*.*\0"sv);
}

TEST_F(CommonDialog, AFilterThatDoesNotExistIsAnIndexError) {
    EXPECT_THROW(dialog.ShowOpenDialog(kOwner, "", "", 4), SubscriptOutOfRange);
    EXPECT_THROW(dialog.ShowOpenDialog(kOwner, "", "", -1), SubscriptOutOfRange);
    EXPECT_TRUE(system.dialogs.openRequests.empty());
}

TEST_F(CommonDialog, OpenFlags) {
    dialog.ShowOpenDialog(kOwner);
    EXPECT_EQ(system.dialogs.openRequests.back().flags, 0x1088040EU);
    dialog.ShowOpenDialog(kOwner, "", "", 0, "", true);
    EXPECT_EQ(system.dialogs.openRequests.back().flags, 0x1088140EU);
}

TEST_F(CommonDialog, TheRecordGrowsWithVersionFive) {
    for (const auto& [version, size] :
         {std::pair{0, 76U}, std::pair{4, 76U}, std::pair{5, 88U}, std::pair{6, 88U}}) {
        system.dialogs.libraryMajorVersion = version;
        EXPECT_EQ(Opened(0).recordSize, size) << version;
    }
}

TEST_F(CommonDialog, TheChosenFileIsTheResult) {
    Choose("D:\\Logs\\tc.log");
    dialog.ShowOpenDialog(kOwner);
    EXPECT_TRUE(dialog.Confirmed);
    EXPECT_EQ(dialog.FileName, "D:\\Logs\\tc.log");
}

TEST_F(CommonDialog, TheFileNameEndsAtTheFirstNul) {
    Choose("D:\\Logs\\tc.log\0rest"s);
    dialog.ShowOpenDialog(kOwner);
    EXPECT_EQ(dialog.FileName, "D:\\Logs\\tc.log");
}

TEST_F(CommonDialog, AnEmptyAnswerConfirmsTheFormerFile) {
    Choose("D:\\Logs\\tc.log");
    dialog.ShowOpenDialog(kOwner);
    Choose("");
    dialog.ShowOpenDialog(kOwner);
    EXPECT_TRUE(dialog.Confirmed);
    EXPECT_EQ(dialog.FileName, "D:\\Logs\\tc.log");
}

TEST_F(CommonDialog, OpenStartsInTheFolderOfTheLastChosenFile) {
    EXPECT_EQ(Opened(0).initialFolder, "");
    Choose("D:\\Logs\\tc.log");
    dialog.ShowOpenDialog(kOwner);
    EXPECT_EQ(Opened(0).initialFolder, "D:\\Logs\\");
    dialog.ShowOpenDialog(kOwner, "E:\\");
    EXPECT_EQ(system.dialogs.openRequests.back().initialFolder, "E:\\");
}

TEST_F(CommonDialog, ACancelledOpenRemembersNoFolder) {
    Choose("D:\\Logs\\tc.log");
    dialog.ShowOpenDialog(kOwner);
    system.dialogs.onOpenFile = nullptr;
    dialog.ShowOpenDialog(kOwner, "E:\\other\\");
    EXPECT_EQ(Opened(0).initialFolder, "D:\\Logs\\");
}

TEST_F(CommonDialog, BeforeAnyChoiceTheColourIsBlackAndNothingIsConfirmed) {
    EXPECT_EQ(dialog.Color, 0);
    EXPECT_FALSE(dialog.Confirmed);
}

TEST_F(CommonDialog, CancellingLeavesEveryResult) {
    dialog.FileName = "C:\\a.log";
    dialog.Color = 123;
    dialog.FontName = "Tahoma";
    dialog.FontScript = 204;
    dialog.FontSize = 11;
    dialog.FontStyle = 5;
    for (int i = 0; i < 3; ++i) {
        dialog.Confirmed = true;
        if (i == 0)
            dialog.ShowOpenDialog(kOwner);
        else if (i == 1)
            dialog.ShowColorDialog(kOwner, 1);
        else
            dialog.ShowFontDialog(kOwner);
        EXPECT_FALSE(dialog.Confirmed) << i;
        EXPECT_EQ(dialog.FileName, "C:\\a.log");
        EXPECT_EQ(dialog.Color, 123);
        EXPECT_EQ(dialog.FontName, "Tahoma");
        EXPECT_EQ(dialog.FontScript, 204);
        EXPECT_EQ(dialog.FontSize, 11);
        EXPECT_EQ(dialog.FontStyle, 5);
    }
}

TEST_F(CommonDialog, ASystemColorStartsAsTheUsersSettingsSay) {
    SetSystemColor("255 128 1");
    EXPECT_EQ(InitialColor(kWindowText, "WindowText"), 0x000180FFU);
}

TEST_F(CommonDialog, AnyNumberOfBlanksStandsBetweenThePartsOfAColor) {
    SetSystemColor("  255   128 1 ");
    EXPECT_EQ(InitialColor(kWindowText, "WindowText"), 0x000180FFU);
}

TEST_F(CommonDialog, PartsOfAColorThatAreTooLargeAreFull) {
    SetSystemColor("300 0 16");
    EXPECT_EQ(InitialColor(kWindowText, "WindowText"), 0x001000FFU);
}

TEST_F(CommonDialog, ASystemColorThatIsNotSetStartsAsItIs) {
    EXPECT_EQ(InitialColor(kWindowText, "WindowText"), 0x80000008U);
}

TEST_F(CommonDialog, ASystemColorThatIsNoColorStartsAsItIs) {
    for (const char* value : {"", "255 128", "red green blue", "1 2 -3"}) {
        SetSystemColor(value);
        EXPECT_EQ(InitialColor(kWindowText, "WindowText"), 0x80000008U) << value;
    }
}

TEST_F(CommonDialog, OnlyASystemColorWithANameIsLookedUp) {
    SetSystemColor("255 128 1");
    EXPECT_EQ(InitialColor(0x00112233, "WindowText"), 0x00112233U);
    // A key of the registry can have a value without a name.
    system.registry.SetString(test::MemoryRegistry::kCurrentUser, "Control Panel\\Colors", "",
                              "1 2 3");
    EXPECT_EQ(InitialColor(kWindowText, ""), 0x80000008U);
}

TEST_F(CommonDialog, ColorDialogRequest) {
    dialog.ShowColorDialog(kOwner, 5);
    EXPECT_EQ(system.dialogs.colorRequests.back().owner, kOwner);
    EXPECT_EQ(system.dialogs.colorRequests.back().flags, 385U);
}

TEST_F(CommonDialog, TheChosenColorIsTheResult) {
    system.dialogs.onChooseColor = [](const Dialogs::ColorRequest&, std::uint32_t(&)[16]) {
        return std::optional<std::uint32_t>(0x00332211);
    };
    dialog.ShowColorDialog(kOwner, 0);
    EXPECT_TRUE(dialog.Confirmed);
    EXPECT_EQ(dialog.Color, 0x00332211);
}

TEST_F(CommonDialog, CustomColorsAreKeptEvenWhenTheDialogIsCancelled) {
    std::vector<std::uint32_t> seen;
    system.dialogs.onChooseColor = [&](const Dialogs::ColorRequest&, std::uint32_t(&colors)[16]) {
        seen.push_back(colors[15]);
        colors[15] += 9;
        return seen.size() == 1 ? std::nullopt : std::optional<std::uint32_t>(1);
    };
    for (int i = 0; i < 3; ++i)
        dialog.ShowColorDialog(kOwner, 0);
    EXPECT_EQ(seen, (std::vector<std::uint32_t>{0, 9, 18}));
}

TEST_F(CommonDialog, FontDialogRequest) {
    dialog.FontName = "Courier New";
    dialog.FontSize = 11;
    dialog.FontScript = 204;
    dialog.FontStyle = cCommonDialog::kBold | cCommonDialog::kUnderline;
    dialog.ShowFontDialog(kOwner);
    const Dialogs::FontRequest& request = system.dialogs.fontRequests.back();
    EXPECT_EQ(request.owner, kOwner);
    EXPECT_EQ(request.name, "Courier New");
    EXPECT_EQ(request.size, 11.0);
    EXPECT_EQ(request.characterSet, 204);
    EXPECT_EQ(request.weight, 700);
    EXPECT_FALSE(request.italic);
    EXPECT_FALSE(request.strikethrough);
    EXPECT_TRUE(request.underline);
    EXPECT_EQ(request.flags, 74049U);
    EXPECT_EQ(request.minimum, 8);
    EXPECT_EQ(request.maximum, 72);
    EXPECT_EQ(request.color, 0U);
}

TEST_F(CommonDialog, FontStylesThatAreNotBold) {
    dialog.FontStyle = cCommonDialog::kItalic | cCommonDialog::kStrikethrough;
    dialog.ShowFontDialog(kOwner);
    const Dialogs::FontRequest& request = system.dialogs.fontRequests.back();
    EXPECT_EQ(request.weight, 400);
    EXPECT_TRUE(request.italic);
    EXPECT_TRUE(request.strikethrough);
    EXPECT_FALSE(request.underline);
}

TEST_F(CommonDialog, AFaceNameHasAtMost31Characters) {
    dialog.FontName = "\xC3\xA4" + std::string(40, 'x');
    dialog.ShowFontDialog(kOwner);
    EXPECT_EQ(system.dialogs.fontRequests.back().name, "\xC3\xA4" + std::string(30, 'x'));
}

TEST_F(CommonDialog, TheChosenFontIsTheResult) {
    dialog.FontStyle = cCommonDialog::kStrikethrough;
    ChooseFont({"Tahoma\0rest"s, 120, 161, 700, true, false, true});
    dialog.ShowFontDialog(kOwner);
    EXPECT_TRUE(dialog.Confirmed);
    EXPECT_EQ(dialog.FontName, "Tahoma");
    EXPECT_EQ(dialog.FontSize, 12);
    EXPECT_EQ(dialog.FontScript, 161);
    EXPECT_EQ(dialog.FontStyle, 1 + 2 + 8);
    ChooseFont({"Tahoma", 120, 161, 400, false, true, false});
    dialog.ShowFontDialog(kOwner);
    EXPECT_EQ(dialog.FontStyle, 4);
}

TEST_F(CommonDialog, OnlyTheWeight700IsBold) {
    for (const int weight : {900, 800, 701, 699, 600, 400}) {
        dialog.FontStyle = cCommonDialog::kBold;
        ChooseFont({"Arial", 80, 1, weight, false, false, false});
        dialog.ShowFontDialog(kOwner);
        EXPECT_EQ(dialog.FontStyle, 0) << weight;
    }
}

TEST_F(CommonDialog, SizesAreRoundedToWholePoints) {
    for (const auto& [tenths, points] :
         {std::pair{82, 8}, std::pair{88, 9}, std::pair{97, 10}, std::pair{105, 10},
          std::pair{115, 12}, std::pair{720, 72}}) {
        ChooseFont({"Arial", tenths, 1, 400, false, false, false});
        dialog.ShowFontDialog(kOwner);
        EXPECT_EQ(dialog.FontSize, points) << tenths;
    }
}

}  // namespace
}  // namespace ordalyn
