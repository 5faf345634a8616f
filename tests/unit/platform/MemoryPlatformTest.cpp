// The parts of the in-memory platform that no contract covers: what tests do to it.
#include "support/platform/MemoryPlatform.h"

#include <gtest/gtest.h>

#include "base/Errors.h"

namespace ordalyn::test {

TEST(MemoryPlatform, ReadingFailsAfterTheGivenNumberOfBytes) {
    MemoryFiles files;
    files.Set("C:\\a.log", "one\r\ntwo\r\n");
    files.FailReadingAfter("C:\\a.log", 5);
    const auto file = files.OpenForReading("C:\\a.log");
    char buffer[20];
    EXPECT_EQ(file->Read(buffer, sizeof buffer), 5U);
    EXPECT_THROW(file->Read(buffer, sizeof buffer), FileError);
    EXPECT_EQ(platform::ReadAllBytes(files, "C:\\a.log"), std::nullopt);
}

TEST(MemoryPlatform, AFileCanChangeRightBeforeItIsOpened) {
    MemoryFiles files;
    files.Set("C:\\a.log", "one");
    files.onOpen = [&](const std::string& path) { files.Append(path, "+"); };
    EXPECT_EQ(platform::ReadAllBytes(files, "c:/A.LOG"), "one+");
    EXPECT_EQ(platform::ReadAllBytes(files, "C:\\a.log"), "one++");
}

TEST(MemoryPlatform, PathsAreMadeFullFromTheCurrentFolder) {
    MemoryFiles files;
    files.SetCurrentFolder("D:\\logs\\old");
    EXPECT_EQ(files.FullPath("a.log"), "D:\\logs\\old\\a.log");
    EXPECT_EQ(files.FullPath("..\\a.log"), "D:\\logs\\a.log");
    EXPECT_EQ(files.FullPath("\\a.log"), "D:\\a.log");
    EXPECT_EQ(files.FullPath("C:\\x\\"), "C:\\x");
    EXPECT_EQ(files.FullPath("\\\\server\\share\\a.log"), "\\\\server\\share\\a.log");
}

TEST(MemoryPlatform, NetworkFilesWorkLikeOthers) {
    MemoryFiles files;
    files.Set("\\\\server\\share\\x.log", "text");
    EXPECT_TRUE(files.Exists("\\\\SERVER\\share\\x.log"));
    EXPECT_EQ(files.List("\\\\server\\share", "*.log").size(), 1U);
}

TEST(MemoryPlatform, LongDatesNameTheDayOfTheWeek) {
    MemoryLocale locale;
    EXPECT_EQ(locale.LongDate("01.03.2024"), "Friday, March 1, 2024");
    EXPECT_EQ(locale.LongDate("2024-02-29"), "Thursday, February 29, 2024");
    EXPECT_EQ(locale.LongDate("12/31/1999"), "Friday, December 31, 1999");
    EXPECT_EQ(locale.LongDate("01.03.2024 10:15:30"), "Friday, March 1, 2024");
    EXPECT_EQ(locale.LongDate("29.02.2023"), std::nullopt);
    EXPECT_EQ(locale.LongDate("31.04.2024"), std::nullopt);
    EXPECT_EQ(locale.LongDate("2024-13-01"), std::nullopt);
    EXPECT_EQ(locale.LongDate("01.03.2024x"), std::nullopt);
    EXPECT_EQ(locale.LongDate("10:15"), std::nullopt);
}

TEST(MemoryPlatform, DatesAreDaysOfTheCalendar) {
    MemoryLocale locale;
    EXPECT_EQ(locale.ReadDate("29.02.2024"), std::chrono::year(2024) / 2 / 29);
    EXPECT_EQ(locale.ReadDate("29.02.2023"), std::nullopt);
    EXPECT_EQ(locale.ReadDate("31.04.2024"), std::nullopt);
    EXPECT_EQ(locale.WeekdayName(std::chrono::Sunday), "Su");
    EXPECT_EQ(locale.MonthName(std::chrono::December), "December");
}

TEST(MemoryPlatform, TheCommandLineLosesBlanksAtItsEnds) {
    MemoryEnvironment environment;
    environment.commandLine = "  \"c:\\my logs\\tc.log\" ";
    EXPECT_EQ(environment.CommandLine(), "\"c:\\my logs\\tc.log\"");
}

TEST(MemoryPlatform, RemovedVariablesAreUndefined) {
    MemoryEnvironment environment;
    environment.SetVariable("TEMP", "C:\\Temp");
    EXPECT_EQ(environment.Variable("temp"), "C:\\Temp");
    environment.RemoveVariable("Temp");
    EXPECT_EQ(environment.Variable("temp"), "");
}

TEST(MemoryPlatform, OpenedTargetsAreRecorded) {
    MemoryPlatform system;
    system.services.shell.Open(7, platform::ShellTarget::HelpFile("C:\\Readme.chm"));
    ASSERT_EQ(system.shell.opened.size(), 1U);
    EXPECT_EQ(system.shell.opened[0].first, 7U);
    EXPECT_EQ(system.shell.opened[0].second, "C:\\Readme.chm");
}

TEST(MemoryPlatform, DialogsAreCancelledUnlessTheTestAnswers) {
    MemoryPlatform system;
    platform::Dialogs::OpenRequest request;
    request.title = "Open";
    EXPECT_EQ(system.services.dialogs.OpenFile(request), std::nullopt);
    system.dialogs.onOpenFile = [](const platform::Dialogs::OpenRequest& r) { return r.title; };
    EXPECT_EQ(system.services.dialogs.OpenFile(request), "Open");
    EXPECT_EQ(system.dialogs.openRequests.size(), 2U);

    std::uint32_t custom[16] = {};
    EXPECT_EQ(system.services.dialogs.ChooseColor({}, custom), std::nullopt);
    system.dialogs.onChooseColor = [](const auto&, std::uint32_t(&colors)[16]) {
        colors[3] = 5;
        return 9U;
    };
    EXPECT_EQ(system.services.dialogs.ChooseColor({}, custom), 9U);
    EXPECT_EQ(custom[3], 5U);

    EXPECT_FALSE(system.services.dialogs.ChooseFont({}).has_value());
    system.dialogs.onChooseFont = [](const auto&) {
        return platform::Dialogs::FontAnswer{"Tahoma", 90};
    };
    EXPECT_EQ(system.services.dialogs.ChooseFont({})->name, "Tahoma");
    EXPECT_EQ(system.services.dialogs.LibraryMajorVersion(), 6);
}

}  // namespace ordalyn::test
