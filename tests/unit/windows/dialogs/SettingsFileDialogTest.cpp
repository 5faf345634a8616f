#include "windows/dialogs/SettingsFileDialog.h"

#include <gmock/gmock.h>

#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"
#include "support/toolkit/MemoryToolkit.h"
#include "windows/dialogs/cCommonDialog.h"

namespace ordalyn::test {
namespace {

using Outcome = SettingsFileQuestion::Outcome;
using platform::Dialogs;

constexpr toolkit::FormDesign kDesign = {
    "frmMain", "", {6000, 4000}, {}, std::span<const toolkit::ControlDesign>()};

class SettingsFile : public testing::Test {
  protected:
    SettingsFileQuestion::Answer Ask() { return question.AskForSettingsFile("c:\\totalcmd\\"); }
    static std::string Text(std::int32_t id) { return "text " + std::to_string(id); }

    MemoryPlatform system;
    MemoryToolkit kit;
    mAppCommon common{system.services};
    cRegistry registry{system.services, common};
    cCommonDialog dialog{system.services, common, registry, Text};
    toolkit::Form form{kit, kDesign};
    SettingsFileDialog question{kit, dialog, &form, Text};
};

TEST_F(SettingsFile, IsSaidToBeMissingInAMessage) {
    Ask();
    ASSERT_EQ(kit.messages.size(), 1U);
    const ShownMessage& message = kit.messages[0];
    EXPECT_EQ(message.text, "text 3046");
    EXPECT_EQ(message.title, "Ordalyn");
    EXPECT_EQ(message.icon, toolkit::MessageIcon::Exclamation);
    EXPECT_EQ(message.buttons, toolkit::MessageButtons::Ok);
    EXPECT_EQ(message.owner, &form);
}

TEST_F(SettingsFile, IsAskedForInTheOpenDialog) {
    Ask();
    ASSERT_EQ(system.dialogs.openRequests.size(), 1U);
    const Dialogs::OpenRequest& request = system.dialogs.openRequests[0];
    EXPECT_EQ(request.owner, form.Handle());
    EXPECT_EQ(request.initialFolder, "c:\\totalcmd\\");
    EXPECT_EQ(request.fileName, "Wincmd.ini");
    EXPECT_THAT(request.filter, testing::StartsWith("Wincmd.ini (*.ini)"));
    EXPECT_EQ(request.title, "text 1605");
    EXPECT_EQ(request.flags, 0x1088140EU);
}

TEST_F(SettingsFile, IsChosenWithoutAMessageByWhoeverWantsTo) {
    system.dialogs.onOpenFile = [](const auto&) { return "d:\\ini\\my.ini"; };
    const SettingsFileQuestion::Answer answer = question.ChooseSettingsFile("c:\\totalcmd\\");
    EXPECT_EQ(answer.outcome, Outcome::Chosen);
    EXPECT_EQ(answer.path, "d:\\ini\\my.ini");
    EXPECT_TRUE(kit.messages.empty());
    ASSERT_EQ(system.dialogs.openRequests.size(), 1U);
    EXPECT_EQ(system.dialogs.openRequests[0].initialFolder, "c:\\totalcmd\\");
    EXPECT_EQ(system.dialogs.openRequests[0].fileName, "Wincmd.ini");
}

TEST_F(SettingsFile, TheMessageComesBeforeTheDialog) {
    kit.onMessage = [&](const ShownMessage&) {
        EXPECT_TRUE(system.dialogs.openRequests.empty());
        return toolkit::Answer::Ok;
    };
    Ask();
    EXPECT_EQ(system.dialogs.openRequests.size(), 1U);
}

TEST_F(SettingsFile, TheChosenOneIsTheAnswer) {
    system.dialogs.onOpenFile = [](const Dialogs::OpenRequest&) { return "d:\\ini\\mine.ini"; };
    const auto answer = Ask();
    EXPECT_EQ(answer.outcome, Outcome::Chosen);
    EXPECT_EQ(answer.path, "d:\\ini\\mine.ini");
}

TEST_F(SettingsFile, AUserMayCancel) {
    EXPECT_EQ(Ask().outcome, Outcome::Cancelled);
}

TEST_F(SettingsFile, AProgramThatEndsBehindTheMessageShowsNoDialog) {
    kit.onMessage = [&](const ShownMessage&) {
        form.Unload();
        return toolkit::Answer::Ok;
    };
    EXPECT_EQ(Ask().outcome, Outcome::ProgramEnded);
    EXPECT_TRUE(system.dialogs.openRequests.empty());
}

TEST_F(SettingsFile, ADialogThatEndsWithTheProgramIsNotCancelledByTheUser) {
    system.dialogs.onOpenFile = [&](const Dialogs::OpenRequest&) {
        form.Unload();
        return std::optional<std::string>();
    };
    EXPECT_EQ(Ask().outcome, Outcome::ProgramEnded);
}

TEST_F(SettingsFile, WithoutAnOwnerTheDialogHasNone) {
    SettingsFileDialog alone(kit, dialog, nullptr, Text);
    EXPECT_EQ(alone.AskForSettingsFile("").outcome, Outcome::Cancelled);
    EXPECT_EQ(kit.messages.at(0).owner, nullptr);
    EXPECT_EQ(system.dialogs.openRequests.at(0).owner, 0U);
}

}  // namespace
}  // namespace ordalyn::test
