// The program's accessor for the registry, on each registry: what programs store is what it tells.
#include <array>
#include <utility>

#include "contract/platform/Registries.h"
#include "contract/platform/Subject.h"
#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn::contract {

namespace {

class RegistryAccessorContract : public PlatformContract {
  protected:
    std::string Place(std::string_view root = "HKEY_CURRENT_USER") {
        return std::string(root) + "\\" + System().RegistryKey();
    }
    // What another program stores, and how it reads.
    std::string ReadBack(std::uint32_t type, std::string_view data) {
        EXPECT_TRUE(Services().registry.Set(kCurrentUser, System().RegistryKey(), "k",
                                            {type, std::string(data)}));
        return accessor_.ReadValue(Place(), "k");
    }
    std::string ReadBackNumber(std::uint32_t number) {
        std::string bytes;
        for (unsigned shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>((number >> shift) & 0xFFU);
        return ReadBack(kNumber, bytes);
    }
    std::optional<platform::Registry::Value> Stored(std::string_view name) {
        return Services().registry.Query(kCurrentUser, System().RegistryKey(), name, kLargestValue);
    }
    const cRegistry& Accessor() const { return accessor_; }
    const std::string& Marker() const { return marker_; }

  private:
    mAppCommon common_{Services()};
    cRegistry accessor_{Services(), common_};
    std::string marker_ = common_.NoValueMarker();
};

}  // namespace

TEST_P(RegistryAccessorContract, TextsAreReadWithoutTheNulAtTheirEnd) {
    EXPECT_EQ(ReadBack(kString, WithNul("c:\\totalcmd")), "c:\\totalcmd");
    EXPECT_EQ(ReadBack(kString, "c:\\totalcmd"), "c:\\totalcmd");
    // Whoever reads decides about variables.
    EXPECT_EQ(ReadBack(kExpandable, WithNul("%TEMP%\\x")), "%TEMP%\\x");
    EXPECT_EQ(ReadBack(kString, WithNul("\xD0\x96\xE3\x82\xBD\xF0\x9F\x93\x81")),
              "\xD0\x96\xE3\x82\xBD\xF0\x9F\x93\x81");
}

TEST_P(RegistryAccessorContract, AnEmptyTextIsNotTheMarker) {
    EXPECT_EQ(ReadBack(kString, WithNul("")), "");
    EXPECT_EQ(ReadBack(kString, ""), "");
    EXPECT_EQ(ReadBack(kExpandable, WithNul("")), "");
}

TEST_P(RegistryAccessorContract, BytesAreTwoUpperCaseDigitsEach) {
    EXPECT_EQ(ReadBack(kBinary, "\x0A\xFF"), "0AFF");
    EXPECT_EQ(ReadBack(kBinary, std::string_view("\0\x10\x9B", 3)), "00109B");
    EXPECT_EQ(ReadBack(kBinary, ""), "");
}

// The cut behind the third character is meant to be there.
TEST_P(RegistryAccessorContract, OfANumberThreeCharactersAreRead) {
    constexpr std::array<std::pair<std::uint32_t, const char*>, 7> kNumbers = {
        {{0, "000"},
         {7, "007"},
         {42, "042"},
         {999, "999"},
         {1234, "123"},
         {65535, "655"},
         {0xFFFFFFFF, "429"}}};
    for (const auto& [number, text] : kNumbers)
        EXPECT_EQ(ReadBackNumber(number), text) << number;
}

TEST_P(RegistryAccessorContract, AMissingKeyOrValueIsTheMarker) {
    EXPECT_EQ(Accessor().ReadValue(Place(), "k"), Marker());
    ReadBack(kString, WithNul("x"));
    EXPECT_EQ(Accessor().ReadValue(Place(), "other"), Marker());
    EXPECT_EQ(Accessor().ReadValue(Place() + "\\Below", "k"), Marker());
}

TEST_P(RegistryAccessorContract, RootNamesCountInAnyLetterCaseAndOnlyInFull) {
    ReadBack(kString, WithNul("x"));
    for (const char* root : {"hkey_current_user", "HKEY_CURRENT_USER", "Hkey_Current_User"})
        EXPECT_EQ(Accessor().ReadValue(Place(root), "k"), "x") << root;
    for (const char* root : {"HKCU", "HKEY_LOCAL_MACHINE", "HKEY_CURRENT_USERS", ""})
        EXPECT_EQ(Accessor().ReadValue(Place(root), "k"), Marker()) << root;
}

TEST_P(RegistryAccessorContract, AValueThatTheBufferCannotHoldIsTheMarker) {
    EXPECT_EQ(ReadBack(kString, WithNul(std::string(2047, 'x'))), std::string(2047, 'x'));
    EXPECT_EQ(ReadBack(kString, WithNul(std::string(2048, 'x'))), Marker());
    EXPECT_EQ(ReadBack(kBinary, std::string(2048, '\x5A')).size(), 2 * 2048U);
    EXPECT_EQ(ReadBack(kBinary, std::string(2049, '\x5A')), Marker());
}

TEST_P(RegistryAccessorContract, WhatIsWrittenIsStoredAsTextOrNumber) {
    Accessor().WriteValue(Place("hkey_current_user"), "t", "c:\\totalcmd", cRegistry::REG_SZ);
    ASSERT_TRUE(Stored("t").has_value());
    EXPECT_EQ(Stored("t")->type, kString);
    EXPECT_EQ(Stored("t")->data, WithNul("c:\\totalcmd"));
    EXPECT_EQ(Accessor().ReadValue(Place(), "t"), "c:\\totalcmd");
    Accessor().WriteValue(Place(), "n", 65535, cRegistry::REG_DWORD);
    ASSERT_TRUE(Stored("n").has_value());
    EXPECT_EQ(Stored("n")->type, kNumber);
    EXPECT_EQ(Stored("n")->data, std::string("\xFF\xFF\0\0", 4));
    EXPECT_EQ(Accessor().ReadValue(Place(), "n"), "655");
    // Whatever else the type says, it is a text.
    Accessor().WriteValue(Place(), "b", "0AFF", cRegistry::REG_BINARY);
    ASSERT_TRUE(Stored("b").has_value());
    EXPECT_EQ(Stored("b")->type, kString);
    EXPECT_EQ(Accessor().ReadValue(Place(), "b"), "0AFF");
}

TEST_P(RegistryAccessorContract, OnlyAKeyWithoutSubKeysIsDeleted) {
    ReadBack(kString, WithNul("x"));
    Accessor().WriteValue(Place() + "\\Below", "k", "y", cRegistry::REG_SZ);
    EXPECT_EQ(Accessor().Deletekey(Place()), "");
    EXPECT_EQ(Accessor().ReadValue(Place(), "k"), "x");
    EXPECT_EQ(Accessor().Deletekey(Place() + "\\Below"), "");
    EXPECT_EQ(Accessor().Deletekey(Place()), "");
    EXPECT_EQ(Accessor().ReadValue(Place(), "k"), Marker());
    EXPECT_EQ(Accessor().Deletekey(Place()), "");
}

INSTANTIATE_TEST_SUITE_P(, RegistryAccessorContract, AllSubjects(), KindName);

}  // namespace ordalyn::contract
