#include "hostconfig/cRegistry.h"

#include <gtest/gtest.h>

#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn {
namespace {

using test::MemoryRegistry;

constexpr std::uint32_t kUser = MemoryRegistry::kCurrentUser;
constexpr std::string_view kSubKey = "Software\\Ghisler\\Total Commander";
constexpr std::string_view kPath = "HKEY_CURRENT_USER\\Software\\Ghisler\\Total Commander";

class Registry : public testing::Test {
  protected:
    void Store(std::uint32_t type, std::string_view data) {
        system.registry.Set(kUser, kSubKey, "Value", {type, std::string(data)});
    }
    std::string Read() const { return registry.ReadValue(kPath, "Value"); }
    std::optional<platform::Registry::Value> Stored() {
        return system.registry.Query(kUser, kSubKey, "Value", 4096);
    }

    test::MemoryPlatform system;
    mAppCommon common{system.services};
    cRegistry registry{system.services, common};
};

std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values)
        bytes += static_cast<char>(value);
    return bytes;
}

TEST_F(Registry, ReadsAString) {
    system.registry.SetString(kUser, kSubKey, "InstallDir", "c:\\totalcmd");
    EXPECT_EQ(registry.ReadValue(kPath, "InstallDir"), "c:\\totalcmd");
    EXPECT_EQ(registry.ReadValue(kPath, "installdir"), "c:\\totalcmd");
}

TEST_F(Registry, AMissingKeyOrValueIsTheMarker) {
    EXPECT_EQ(Read(), common.NoValueMarker());
    Store(MemoryRegistry::kString, Bytes({'x', 0}));
    EXPECT_EQ(registry.ReadValue(kPath, "Other"), common.NoValueMarker());
    EXPECT_EQ(registry.ReadValue("HKEY_CURRENT_USER\\Software\\Other", "Value"),
              common.NoValueMarker());
}

TEST_F(Registry, AnEmptyStringIsTheEmptyText) {
    Store(MemoryRegistry::kString, Bytes({0}));
    EXPECT_EQ(Read(), "");
    Store(MemoryRegistry::kString, "");
    EXPECT_EQ(Read(), "");
}

TEST_F(Registry, RootNamesCountInAnyLetterCase) {
    Store(MemoryRegistry::kString, Bytes({'x', 0}));
    EXPECT_EQ(registry.ReadValue("hkey_current_USER\\Software\\Ghisler\\Total Commander", "Value"),
              "x");
}

TEST_F(Registry, EachRootNameStandsForItsHandle) {
    struct {
        std::string name;
        std::uint32_t handle;
    } const roots[] = {{"HKEY_CLASSES_ROOT", 0x80000000},
                       {"HKEY_CURRENT_USER", 0x80000001},
                       {"HKEY_LOCAL_MACHINE", 0x80000002},
                       {"HKEY_USERS", 0x80000003},
                       {"HKEY_CURRENT_CONFIG", 0x80000005}};
    for (const auto& root : roots) {
        system.registry.SetString(root.handle, "Key", "Value", root.name);
        EXPECT_EQ(registry.ReadValue(root.name + "\\Key", "Value"), root.name);
    }
}

// Says what it was asked and gives what a test wants. The system's registry knows fewer roots and
// sees to it that texts end in a NUL.
class RecordingRegistry : public platform::Registry {
  public:
    std::optional<Value> Query(std::uint32_t root, std::string_view subKey, std::string_view,
                               std::size_t size) override {
        askedRoot = root;
        askedSubKey = subKey;
        askedSize = size;
        return answer;
    }
    bool Set(std::uint32_t, std::string_view, std::string_view, const Value& value) override {
        stored = value;
        return true;
    }
    bool DeleteKey(std::uint32_t, std::string_view) override { return false; }

    std::optional<Value> answer;
    std::optional<Value> stored;
    std::uint32_t askedRoot = 1;
    std::string askedSubKey;
    std::size_t askedSize = 0;
};

class RegistryCalls : public testing::Test {
  protected:
    test::MemoryPlatform system;
    RecordingRegistry calls;
    platform::Services services = {system.ansiProfile, system.unicodeProfile, system.codePages,
                                   system.files,       system.environment,    system.locale,
                                   system.shell,       system.clipboard,      calls,
                                   system.dialogs};
    mAppCommon common{services};
    cRegistry registry{services, common};
};

TEST_F(RegistryCalls, OnlyTheFirstBackslashSplitsAPath) {
    registry.ReadValue("HKEY_DYN_DATA\\a\\b\\\\c\\", "Value");
    EXPECT_EQ(calls.askedRoot, 0x80000006U);
    EXPECT_EQ(calls.askedSubKey, "a\\b\\\\c\\");
}

TEST_F(RegistryCalls, APathWithoutABackslashIsAllRoot) {
    registry.ReadValue("HKEY_CURRENT_USER", "Value");
    EXPECT_EQ(calls.askedRoot, kUser);
    EXPECT_EQ(calls.askedSubKey, "");
}

TEST_F(RegistryCalls, OtherRootNamesAreTheNullHandle) {
    for (const char* path : {"HKCU\\Software", "HKLM\\Software", "HKEY_PERFORMANCE_DATA\\Software",
                             "\\Software", "", " HKEY_CURRENT_USER\\Software"}) {
        calls.askedRoot = 1;
        EXPECT_EQ(registry.ReadValue(path, "Value"), common.NoValueMarker());
        EXPECT_EQ(calls.askedRoot, 0U) << path;
    }
}

TEST_F(RegistryCalls, TheBufferHas2048Characters) {
    registry.ReadValue(kPath, "Value");
    EXPECT_EQ(calls.askedSize, 2048U);
}

TEST_F(Registry, AValueThatIsLongerThanTheBufferIsTheMarker) {
    Store(MemoryRegistry::kString, std::string(2047, 'x') + '\0');
    EXPECT_EQ(Read(), std::string(2047, 'x'));
    Store(MemoryRegistry::kString, std::string(2048, 'x') + '\0');
    EXPECT_EQ(Read(), common.NoValueMarker());
}

TEST_F(Registry, LengthsAreInCharacters) {
    Store(MemoryRegistry::kString, "C:\\\xD0\x96" + Bytes({0}));
    EXPECT_EQ(Read(), "C:\\\xD0\x96");
}

// The last character goes whatever it is.
TEST_F(RegistryCalls, AStringWithoutItsNulLosesItsLastCharacter) {
    calls.answer = {cRegistry::REG_SZ, "C:\\\xD0\x96"};
    EXPECT_EQ(registry.ReadValue(kPath, "Value"), "C:\\");
}

TEST_F(Registry, BinaryIsTwoHexadecimalDigitsForEachByte) {
    Store(MemoryRegistry::kBinary, Bytes({0x0A, 0xFF}));
    EXPECT_EQ(Read(), "0AFF");
    Store(MemoryRegistry::kBinary, Bytes({0, 0x10, 0x9B}));
    EXPECT_EQ(Read(), "00109B");
    Store(MemoryRegistry::kBinary, "");
    EXPECT_EQ(Read(), "");
}

TEST_F(Registry, OfANumberTheFirstThreeCharactersAreRead) {
    Store(MemoryRegistry::kNumber, Bytes({5, 0, 0, 0}));
    EXPECT_EQ(Read(), "005");
    Store(MemoryRegistry::kNumber, Bytes({7, 0, 0, 0}));
    EXPECT_EQ(Read(), "007");
    Store(MemoryRegistry::kNumber, Bytes({42, 0, 0, 0}));
    EXPECT_EQ(Read(), "042");
    Store(MemoryRegistry::kNumber, Bytes({0xD2, 4, 0, 0}));
    EXPECT_EQ(Read(), "123");
    Store(MemoryRegistry::kNumber, Bytes({0xFF, 0xFF, 0, 0}));
    EXPECT_EQ(Read(), "655");
    Store(MemoryRegistry::kNumber, Bytes({0xFF, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(Read(), "429");
    Store(MemoryRegistry::kNumber, Bytes({0, 0, 0, 1}));
    EXPECT_EQ(Read(), "167");
    Store(MemoryRegistry::kNumber, "");
    EXPECT_EQ(Read(), "");
}

TEST_F(Registry, OtherTypesAreReadLikeStrings) {
    Store(2, "%TEMP%\\x" + Bytes({0}));
    EXPECT_EQ(Read(), "%TEMP%\\x");
    Store(2, "%TEMP%\\\xD0\x96" + Bytes({0}));
    EXPECT_EQ(Read(), "%TEMP%\\\xD0\x96");
    Store(7, Bytes({'a', 0, 'b', 0, 0}));
    EXPECT_EQ(Read(), Bytes({'a', 0, 'b', 0}));
    // Bytes that the system does not call text are in its code page.
    Store(0, "L\xF6we" + Bytes({0}));
    EXPECT_EQ(Read(), "L\xC3\xB6we");
    Store(0, "");
    EXPECT_EQ(Read(), "");
}

TEST_F(Registry, AStringIsWrittenWithItsNul) {
    registry.WriteValue(kPath, "Value", "text", cRegistry::REG_SZ);
    EXPECT_EQ(Stored()->type, MemoryRegistry::kString);
    EXPECT_EQ(Stored()->data, Bytes({'t', 'e', 'x', 't', 0}));
    EXPECT_EQ(Read(), "text");
    registry.WriteValue(kPath, "Value", -12, cRegistry::REG_SZ);
    EXPECT_EQ(Read(), "-12");
}

TEST_F(Registry, ANumberIsWrittenAsFourBytes) {
    registry.WriteValue(kPath, "Value", 1234, cRegistry::REG_DWORD);
    EXPECT_EQ(Stored()->type, MemoryRegistry::kNumber);
    EXPECT_EQ(Stored()->data, Bytes({0xD2, 4, 0, 0}));
    registry.WriteValue(kPath, "Value", "-2", cRegistry::REG_DWORD);
    EXPECT_EQ(Stored()->data, Bytes({0xFE, 0xFF, 0xFF, 0xFF}));
}

TEST_F(Registry, ATextThatIsNoNumberIsWrittenAsZero) {
    registry.WriteValue(kPath, "Value", "many", cRegistry::REG_DWORD);
    EXPECT_EQ(Stored()->type, MemoryRegistry::kNumber);
    EXPECT_EQ(Stored()->data, Bytes({0, 0, 0, 0}));
}

TEST_F(RegistryCalls, EveryOtherTypeIsWrittenAsAStringWithoutNul) {
    for (const std::uint32_t type : {cRegistry::REG_BINARY, 2U, 7U, 0U}) {
        calls.stored.reset();
        registry.WriteValue(kPath, "Value", "text", type);
        ASSERT_TRUE(calls.stored);
        EXPECT_EQ(calls.stored->type, cRegistry::REG_SZ) << type;
        EXPECT_EQ(calls.stored->data, "text") << type;
    }
    registry.WriteValue(kPath, "Value", "text", cRegistry::REG_SZ);
    EXPECT_EQ(calls.stored->data, Bytes({'t', 'e', 'x', 't', 0}));
}

TEST_F(Registry, WritingBelowAnUnknownRootDoesNothing) {
    registry.WriteValue("HKCU\\Software", "Value", "text", cRegistry::REG_SZ);
    EXPECT_FALSE(system.registry.HasKey(0, "Software"));
    EXPECT_FALSE(system.registry.HasKey(kUser, "Software"));
}

TEST_F(Registry, DeletingAKeyAnswersAnEmptyText) {
    Store(MemoryRegistry::kString, Bytes({'x', 0}));
    EXPECT_EQ(registry.Deletekey(kPath), "");
    EXPECT_FALSE(system.registry.HasKey(kUser, kSubKey));
    EXPECT_EQ(registry.Deletekey(kPath), "");
    EXPECT_EQ(registry.Deletekey("HKCU\\Software"), "");
}

TEST_F(Registry, AKeyWithSubKeysIsNotDeleted) {
    Store(MemoryRegistry::kString, Bytes({'x', 0}));
    EXPECT_EQ(registry.Deletekey("HKEY_CURRENT_USER\\Software\\Ghisler"), "");
    EXPECT_EQ(Read(), "x");
}

}  // namespace
}  // namespace ordalyn
