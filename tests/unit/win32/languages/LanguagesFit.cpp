// Every text of every interface language in the real windows of the program: none is cut off.
#include <gmock/gmock.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <tuple>

#include "base/Text.h"
#include "support/platform/MemoryPlatform.h"
#include "unit/win32/languages/TextFit.h"
#include "windows/about/frmAbout.h"
#include "windows/calendar/frmCalendar.h"
#include "windows/common/SharedObjects.h"
#include "windows/history/frmHistory.h"
#include "windows/main/FindCommands.h"
#include "windows/main/frmMain.h"
#include "windows/options/frmOptions.h"
#include "windows/panels/DayPanels.h"
#include "windows/progress/frmProgress.h"

namespace ordalyn::test {
namespace {

using testing::IsEmpty;

const std::string kBuiltIn = "English";

std::filesystem::path LanguageFolder() {
    return ORDALYN_SOURCE_DIR "/languages";
}

std::vector<std::string> Languages() {
    std::vector<std::string> languages = {kBuiltIn};
    for (const auto& file : std::filesystem::directory_iterator(LanguageFolder()))
        languages.push_back(file.path().stem().string());
    return languages;
}

struct InstalledPlatform : MemoryPlatform {
    InstalledPlatform() { files.AddFolder("C:\\Ordalyn"); }
};

// The program in memory; its windows are real.
class ProgramAt {
  public:
    explicit ProgramAt(int dpi) : shared(system.services, ToolkitAt(dpi)) {}

    std::string Text(std::int32_t id) const { return shared.strings->GetInterfaceString(id); }
    // As a choice in the options does it. What the program keeps is not made anew: that takes long.
    void Use(const std::string& language) {
        constexpr std::string_view kFile = "C:\\Ordalyn\\Languages\\used.lng";
        shared.settings->UseDefaultLanguage = language == kBuiltIn ? 1 : 0;
        shared.settings->LanguageFile = kFile;
        std::ifstream file(LanguageFolder() / (language + ".lng"), std::ios::binary);
        system.files.Set(kFile, std::string(std::istreambuf_iterator<char>(file), {}));
        shared.language->ApplyLanguage(main);
        SourceListView.SetColumnCaption(0, Text(4000));
        SourceListView.SetColumnCaption(1, Text(4001));
        TargetListView.SetColumnCaption(0, Text(4002));
        StatusBar1.SetPanelText(1, ReplaceIgnoreCase(Text(4010), "%i", "10000000"));
        cboDate.Clear();
        cboDate.AddItem(Text(4005));
        cboFiles.Clear();
        cboFiles.AddItem(Text(4006));
        commands.LanguageChanged();
        commands.LoadFilterInterface();
    }

    InstalledPlatform system;
    SharedObjects shared;
    frmMain main{shared};
    toolkit::ComboBox& cboDate = main.Get<toolkit::ComboBox>("cboDate");
    toolkit::ComboBox& cboFiles = main.Get<toolkit::ComboBox>("cboFiles");
    toolkit::ListView& SourceListView = main.Get<toolkit::ListView>("SourceListView");
    toolkit::ListView& TargetListView = main.Get<toolkit::ListView>("TargetListView");
    toolkit::StatusBar& StatusBar1 = main.Get<toolkit::StatusBar>("StatusBar1");
    EntryLists entries;
    FilterChoice filter;
    DayPanels panels{{main, cboDate, SourceListView, TargetListView, StatusBar1,
                      main.Menu("mnuContext"), main.Menu("mnuContextCopyTarget")},
                     entries,
                     filter,
                     *shared.settings,
                     system.locale,
                     shared.Texts()};
    FindCommands commands{shared, main, entries, panels, filter};
};

class LanguagesFit : public testing::TestWithParam<std::tuple<std::string, int>> {
  protected:
    static void TearDownTestSuite() { programs.clear(); }

    void ExpectFit(const toolkit::Form& form) {
        EXPECT_THAT(TextsThatDoNotFit(form, dpi), IsEmpty());
        if (&form != &program.main) {  // which arranges itself
            EXPECT_THAT(ControlsThatCollide(form), IsEmpty());
        }
    }

    const std::string language = std::get<0>(GetParam());
    const int dpi = std::get<1>(GetParam());
    static inline std::map<int, ProgramAt> programs;
    ProgramAt& program = programs.try_emplace(dpi, dpi).first->second;
};
INSTANTIATE_TEST_SUITE_P(Of, LanguagesFit,
                         testing::Combine(testing::ValuesIn(Languages()), testing::Values(96, 144)),
                         [](const auto& used) {
                             std::string name =
                                 std::get<0>(used.param) + std::to_string(std::get<1>(used.param));
                             std::erase_if(name,
                                           [](unsigned char c) { return std::isalnum(c) == 0; });
                             return name;
                         });

TEST(Languages, AreFound) {
    EXPECT_GT(Languages().size(), 2U);
}

TEST_P(LanguagesFit, TextsAndControls) {
    program.Use(language);
    SharedObjects& shared = program.shared;
    toolkit::Toolkit& tools = shared.toolkit;
    const Texts texts = shared.FormTexts();
    // The language is really in use.
    EXPECT_EQ(program.Text(1009) == "Cancel", language == kBuiltIn);
    EXPECT_EQ(program.main.RightToLeft(), language == "Hebrew");
    ExpectFit(program.main);

    const frmAbout about(tools, program.system.shell, texts);
    ExpectFit(about);

    frmProgress progress(tools, texts, [] {});
    progress.SetCaption("  " + program.Text(3250));
    progress.MakeCompact();
    ExpectFit(progress);
    progress.MakeTall("TOTALCMD.LOG");
    ExpectFit(progress);

    const frmOptions options(tools, {.texts = texts,
                                     .settings = *shared.settings,
                                     .commonDialog = *shared.commonDialog,
                                     .programFolder = shared.common.ProgramFolder(),
                                     .isNoValue = [](const std::string&) { return false; },
                                     .applySettings = [] {},
                                     .applyNewDateFormat = [](std::int32_t) {},
                                     .refreshMainWindow = [] {}});
    ExpectFit(options);

    // With all that it can have: several lives, and logs that have not been read.
    EntryLists entries;
    for (int i = 0; i < 12; ++i)
        entries.Add({"15.03.2024", R"(12:02:45: Delete: D:\a.txt)", {}});
    const OperationReader reader({{OperationKind::Delete, "Delete"}});
    frmHistory history(tools, {.settings = *shared.settings,
                               .strings = *shared.strings,
                               .language = *shared.language,
                               .entries = entries,
                               .reader = [&]() -> const OperationReader& { return reader; },
                               .shownDate = [](std::string_view date) { return std::string(date); },
                               .olderLogsAreLeft = [] { return true; }});
    for (const char* path : {"a.txt", R"(D:\b.txt)", R"(D:\a.txt)"}) {
        history.ShowPath(path, kNoEntry);
        ExpectFit(history);
    }

    ExpectFit(program.commands.FindDialog());
    ExpectFit(program.commands.FilterDialog());

    CalendarDays days([](std::string_view) { return std::nullopt; },
                      [](std::int32_t) { return false; });
    EntryLists undated;
    undated.Add({"", "10:00:00: Copy", ""});
    days.Count(undated, DayIndex());
    const frmCalendar calendar(tools, {.texts = texts,
                                       .settings = *shared.settings,
                                       .locale = program.system.locale,
                                       .days = days,
                                       .chosenDay = [] { return std::nullopt; },
                                       .chooseDay = [](std::int32_t) {}});
    ExpectFit(calendar);
}

}  // namespace
}  // namespace ordalyn::test
