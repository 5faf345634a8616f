#include "search/FailedEntries.h"

#include <gmock/gmock.h>

#include <random>
#include <string>

#include "base/Errors.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;

OperationReader Reader() {
    return OperationReader({{OperationKind::Copy, "Kopieren"},
                            {OperationKind::Copy, "Copy"},
                            {OperationKind::DeleteFolder, "Ordner l\xC3\xB6schen"},
                            {OperationKind::ProgramStart, "Program start"}});
}

TEST(FailedEntries, AreThoseWithAnOutcome) {
    const OperationReader reader = Reader();
    EntryLists entries;
    for (const char* source : {"10:00:00: Copy: C:\\a ", "10:00:00: Copy(Error: Disk full): C:\\a ",
                               "10:00:00: Copy: Skipped: C:\\a ", "10:00:00: Copy C:\\a ",
                               "10:00:00: Program start: me@here", "; Copy: Skipped: C:\\a",
                               "10:00:00: Kopieren: Fehler: Lesefehler: \\\\\\FTP\\a ",
                               "10:00:00: Ordner l\xC3\xB6schen: C:\\a", "no time"})
        entries.Add({"1", source, ""});
    EXPECT_THAT(EntriesThatFailed(entries, {0, 1, 2, 3, 4, 5, 6, 7, 8}, reader),
                ElementsAre(1, 2, 6));
    EXPECT_THAT(EntriesThatFailed(entries, {0, 2, 8}, reader), ElementsAre(2));
    EXPECT_THROW(EntriesThatFailed(entries, {5000}, reader), SubscriptOutOfRange);
}

// The quick look says no more than reading does.
TEST(FailedEntries, AreThoseThatReadingSaysWhateverTheLine) {
    const OperationReader reader = Reader();
    const std::vector<std::string> parts = {
        "Copy",  "Kopieren", "Ordner l\xC3\xB6schen", "Odd", ": ", ":", " ", "(",   ")",
        "Error", "C:\\a",    "\\\\server\\x",         "7",   "",   "x", "-", "C:\\"};
    std::mt19937 random(11);
    int failed = 0;
    for (int i = 0; i < 20'000; ++i) {
        std::string source = random() % 8 == 0 ? "" : "10:00:00: ";
        for (auto part = random() % 8; part > 0; --part)
            source += parts[random() % parts.size()];
        const bool read = reader.Read(source, "").Failed();
        ASSERT_EQ(HasFailed(reader, source, ""), read) << source;
        failed += read ? 1 : 0;
    }
    EXPECT_GT(failed, 300);
}

}  // namespace
}  // namespace ordalyn
