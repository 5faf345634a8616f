// A settings file that somebody or something has damaged: the program starts, shows its log, and
// what it writes at its end can be read again.
#include <random>

#include "app/Program.h"
#include "support/windows/ProgramWindow.h"

namespace ordalyn {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

constexpr std::string_view kSettings = "C:\\Ordalyn\\Ordalyn.ini";

// One of each kind of value that the program writes.
const std::string kWhole =
    "[Common]\r\n"
    "TCSectionsNotRedirectedByDefault=Layout;Packer\r\n"
    "NumberOfRecentFiles=4\r\n"
    "LanguageFile=velmordane:\\a.lng\r\n"
    "[Ordalyn]\r\n"
    "ForegroundColor=-2147483640\r\n"
    "FontName=Arial\r\n"
    "FontSize=9\r\n"
    "ColumnsWidth=884,10019,3210\r\n"
    "ColumnHeadersPosition=2,3,1\r\n"
    "TwoPanels=1\r\n"
    "VSplitPosition=3000\r\n"
    "MainPosition=100,200,9000,7000\r\n"
    "MainWindowState=0\r\n"
    "FindOptions=0,1,1,0\r\n"
    "Find1=\"text\"\r\n"
    "LoggingID=1,2,-,3\r\n"
    "RecentFiles1=C:\\logs\\tc.log\r\n";

class DamagedSettings : public test::ProgramWindow {
  protected:
    // Starts the program on these settings, works with it and ends it.
    void Use(const std::string& bytes) {
        system.files.Set(kSettings, bytes);
        const auto ini = system.files.Get("C:\\tc\\wincmd.ini");
        StartAndWork();
        const bool twoPanels = Main().Menu("mnuViewTwoPanels").Checked();
        Main().UserClosed();
        program.reset();
        EXPECT_EQ(Kept("TwoPanels"), twoPanels ? "1" : "0");
        EXPECT_NE(Kept("MainPosition"), "(absent)");
        EXPECT_EQ(system.files.Get("C:\\tc\\wincmd.ini"), ini);
    }
    // As the next start reads it.
    std::string Kept(const char* key) {
        const mAppCommon common(system.services);
        return cProfile(system.services, common)
            .ReadValue(kOrdalynSection, key, "(absent)", kSettings)
            .value_or("");
    }
    void StartAndWork() {
        Start();
        EXPECT_TRUE(Main().Visible());
        EXPECT_EQ(Source().RowCount(), 1);
        Choose("mnuViewRefresh");
        Choose("mnuViewTwoPanels");
        EXPECT_EQ(Date().ListCount(), 3);
        EXPECT_THAT(tools.messages, IsEmpty());
    }
};

std::string RandomBytes(std::mt19937& random, std::size_t count) {
    std::string bytes(count, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random() & 0xFFU);
    return bytes;
}

TEST_F(DamagedSettings, AreCutOffAtAnyLength) {
    for (std::size_t length = 0; length <= kWhole.size(); ++length) {
        SCOPED_TRACE(length);
        Use(kWhole.substr(0, length));
    }
}

TEST_F(DamagedSettings, AreRandomBytes) {
    std::mt19937 random(1);
    for (int round = 0; round < 80; ++round) {
        SCOPED_TRACE(round);
        Use(RandomBytes(random, random() % 600));
    }
}

TEST_F(DamagedSettings, HaveSomeBytesThatAreRandom) {
    std::mt19937 random(2);
    for (int round = 0; round < 150; ++round) {
        SCOPED_TRACE(round);
        std::string bytes = kWhole;
        for (std::size_t count = 1 + random() % 20; count > 0; --count)
            bytes[random() % bytes.size()] = static_cast<char>(random() & 0xFFU);
        Use(bytes);
    }
}

TEST_F(DamagedSettings, BeginWithTheMarkOfAnotherEncoding) {
    std::mt19937 random(3);
    for (const char* mark : {"\xFF\xFE", "\xEF\xBB\xBF", "\xFE\xFF"})
        for (int round = 0; round < 10; ++round) {
            SCOPED_TRACE(mark);
            Use(mark + RandomBytes(random, random() % 100));
            Use(mark + kWhole.substr(0, random() % kWhole.size()));
        }
}

TEST_F(DamagedSettings, AreAFolder) {
    system.files.AddFolder(kSettings);
    for (int run = 0; run < 2; ++run) {
        StartAndWork();
        Main().UserClosed();
        program.reset();
        // That they could not be kept.
        EXPECT_THAT(tools.messages, SizeIs(1));
        tools.messages.clear();
    }
    EXPECT_THAT(system.files.List(kSettings, "*"), IsEmpty());
}

}  // namespace
}  // namespace ordalyn
