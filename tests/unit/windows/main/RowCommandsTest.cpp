// Copy Rows and Save Shown Rows As, in the whole program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/windows/MemoryProgram.h"
#include "windows/main/frmMain.h"

namespace ordalyn {
namespace {

using namespace std::string_literals;
using testing::HasSubstr;
using testing::IsEmpty;
using toolkit::Choice;

constexpr toolkit::Modifiers kControl{.control = true};
constexpr toolkit::Modifiers kControlShift{.shift = true, .control = true};
constexpr const char* kMark = "\xEF\xBB\xBF";
constexpr const char* kHeader = "Date\tTime\tOperation\tSource\tTarget\r\n";
constexpr const char* kFirst = "01.03.2024\t10:15:30\tCopy\tC:\\a.txt\tD:\\a.txt\r\n";
constexpr const char* kSecond = "01.03.2024\t10:15:31\tDelete\tC:\\b.txt\t\r\n";
constexpr const char* kThird = "02.03.2024\t11:00:00\tMove\tC:\\c\tD:\\Ordner \xC3\xBC\r\n";

class RowCommandsTest : public testing::Test, protected test::MemoryProgram {
  protected:
    RowCommandsTest() { system.files.AddFolder("E:\\out"); }
    void StartOnAllDates() {
        Start();
        Date().UserSelected(0);
    }
    void AnswerWith(const std::string& path, int filter = 0) {
        system.dialogs.onSaveFile = [=](const auto&) {
            return platform::Dialogs::SaveAnswer{path, filter};
        };
    }
    void Save() { tools.Press(Main(), 'S', kControl); }
    void CopyRows() { tools.Press(Main(), 'R', kControlShift); }
    std::string File(const char* path) { return system.files.Get(path).value_or("(none)"); }
    std::string LastMessage() { return tools.messages.empty() ? "" : tools.messages.back().text; }
};

TEST_F(RowCommandsTest, TheSelectedRowsAreCopiedInTheirOrder) {
    StartOnAllDates();
    Source().UserSelected(2);
    Source().UserSelected(0, Choice::Toggle);
    CopyRows();
    EXPECT_EQ(system.clipboard.text, std::string(kFirst) + kThird);
    tools.PressIn(Main(), Target(), 'A', kControl);
    Choose("mnuContextCopyRows");
    EXPECT_EQ(system.clipboard.text, std::string(kFirst) + kSecond + kThird);
}

TEST_F(RowCommandsTest, TheOtherCommandsCopyTheRowThatWasChosenLast) {
    StartOnAllDates();
    Source().UserSelected(0);
    Source().UserSelected(2, Choice::Extend);
    Choose("mnuContextCopySource");
    EXPECT_EQ(system.clipboard.text, "Move C:\\c ");
}

TEST_F(RowCommandsTest, WithoutASelectedRowNothingIsCopied) {
    StartOnAllDates();
    Source().UserSelected(-1);
    system.clipboard.text = "before";
    CopyRows();
    EXPECT_EQ(system.clipboard.text, "before");
}

TEST_F(RowCommandsTest, AllShownRowsAreSavedBelowTheNamesOfTheColumns) {
    StartOnAllDates();
    AnswerWith("E:\\out\\rows.txt");
    Save();
    EXPECT_EQ(File("E:\\out\\rows.txt"), std::string(kMark) + kHeader + kFirst + kSecond + kThird);
    EXPECT_THAT(tools.messages, IsEmpty());
    const auto& request = system.dialogs.saveRequests.back();
    EXPECT_EQ(request.fileName, "tc");
    EXPECT_EQ(request.title, "Save shown rows as");
    EXPECT_EQ(request.filter,
              "Text separated by tabs (*.txt)\0*.txt\0Comma-separated values (*.csv)\0*.csv\0"s);
    EXPECT_EQ(request.flags & 0x2U, 0x2U) << "asks before it overwrites";
    EXPECT_EQ(request.owner, Main().Handle());
}

TEST_F(RowCommandsTest, OnlyTheChosenDayIsSaved) {
    StartOnAllDates();
    Date().UserSelected(2);
    AnswerWith("E:\\out\\rows.tsv", 1);
    Save();
    EXPECT_EQ(File("E:\\out\\rows.tsv"), std::string(kMark) + kHeader + kThird);
}

TEST_F(RowCommandsTest, TheExtensionSaysTheFormAndWithoutOneTheTypeThatWasChosen) {
    StartOnAllDates();
    const std::string commas = std::string(kMark) + "Date,Time,Operation,Source,Target\r\n";
    AnswerWith("E:\\out\\rows.CSV");
    Save();
    EXPECT_THAT(File("E:\\out\\rows.CSV"), testing::StartsWith(commas));
    AnswerWith("E:\\out\\rows.dat", 1);
    Save();
    EXPECT_THAT(File("E:\\out\\rows.dat"), testing::StartsWith(commas));
    AnswerWith("E:\\out\\rows.TXT", 1);
    Save();
    EXPECT_THAT(File("E:\\out\\rows.TXT"), HasSubstr(kHeader));
}

TEST_F(RowCommandsTest, ACancelledDialogWritesNothing) {
    StartOnAllDates();
    Save();
    EXPECT_EQ(system.dialogs.saveRequests.size(), 1U);
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(RowCommandsTest, WhatFailsIsToldAndLeavesTheOldFile) {
    StartOnAllDates();
    AnswerWith("E:\\out\\rows.txt");
    system.files.Set("E:\\out\\rows.txt", "old");
    system.files.roomOnDisk = 100;
    Save();
    EXPECT_EQ(LastMessage(),
              "The rows could not be saved in this file:\r\nE:\\out\\rows.txt\r\n\r\n"
              "There is not enough room on the drive.");
    system.files.roomOnDisk.reset();
    system.files.Lock("E:\\out\\rows.txt");
    Save();
    EXPECT_THAT(LastMessage(), HasSubstr("Another program is using the file."));
    system.files.Lock("E:\\out\\rows.txt", false);
    system.files.ProtectFolder("E:\\out");
    Save();
    EXPECT_THAT(LastMessage(), HasSubstr("You have no right to write there."));
    AnswerWith("E:\\none\\rows.txt");
    Save();
    EXPECT_EQ(LastMessage(), "The rows could not be saved in this file:\r\nE:\\none\\rows.txt");
    EXPECT_EQ(tools.messages.size(), 4U);
    EXPECT_EQ(File("E:\\out\\rows.txt"), "old");
    EXPECT_TRUE(Main().Enabled());
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
}

TEST_F(RowCommandsTest, NoLogIsOverwritten) {
    SetIni("LogFile=C:\\logs\\tc.log\r\nLogRotateLimit=1000\r\nLogKeepCount=3");
    SetLog("C:\\logs\\tc.1.log", {"01.02.2024 10:15:30: Copy C:\\x -> D:\\x"});
    SetLog("C:\\other\\old.log", {"01.01.2024 10:15:30: Copy C:\\y -> D:\\y"});
    Start();
    for (const char* log : {"C:\\logs\\TC.log", "C:\\logs\\tc.1.log"}) {
        const std::string before = File(log);
        AnswerWith(log);
        Save();
        EXPECT_EQ(File(log), before);
        EXPECT_EQ(LastMessage(),
                  "This file is one of the file manager's logs and stays as it is. "
                  "Choose another name:\r\n" +
                      std::string(log));
    }
    Main().FilesDropped.Raise({"C:\\other\\old.log"});
    AnswerWith("C:\\other\\OLD.log");
    Save();
    EXPECT_EQ(tools.messages.size(), 3U);
    AnswerWith("C:\\other\\new.log");
    Save();
    EXPECT_EQ(tools.messages.size(), 3U);
    EXPECT_THAT(File("C:\\other\\new.log"), HasSubstr("C:\\y"));
}

TEST_F(RowCommandsTest, ALogUnderAnotherNameIsKnownByWhatItIs) {
    StartOnAllDates();
    system.files.StopClock();
    // As a hard link, or the same folder under another drive.
    SetLog("C:\\logs\\tc.log", {"01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt"});
    SetLog("E:\\out\\tc.log", {"01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt"});
    AnswerWith("E:\\out\\tc.log");
    Save();
    EXPECT_THAT(LastMessage(), HasSubstr("one of the file manager's logs"));
}

TEST_F(RowCommandsTest, TheProgressShowsForManyRowsOnly) {
    const auto captions = [&] {
        int shown = 0;
        tools.onDoEvents = [&] { ++shown; };
        Save();
        tools.onDoEvents = nullptr;
        return shown;
    };
    StartOnAllDates();
    AnswerWith("E:\\out\\rows.txt");
    EXPECT_EQ(captions(), 0);
    std::string bytes;
    for (int i = 0; i < 100'000; ++i)
        bytes += "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt\r\n";
    system.files.Set("C:\\logs\\many.log", bytes);
    Main().FilesDropped.Raise({"C:\\logs\\many.log"});
    bool enabled = true;
    std::string caption;
    tools.onDoEvents = [&] {
        enabled = Main().Enabled();
        caption = tools.FormNamed("frmProgress").Caption();
    };
    Save();
    EXPECT_FALSE(enabled) << "nothing can be begun meanwhile";
    EXPECT_EQ(caption, "  Saving... Please wait.");
    EXPECT_TRUE(Main().Enabled());
    const std::string saved = File("E:\\out\\rows.txt");
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 100'001);
    EXPECT_TRUE(saved.ends_with(kFirst));
}

}  // namespace
}  // namespace ordalyn
