// The registry.
#include "contract/platform/Registries.h"
#include "contract/platform/Subject.h"

namespace ordalyn::contract {

namespace {

class RegistryContract : public PlatformContract {
  protected:
    platform::Registry& Registry() { return Services().registry; }
    std::string Key() { return System().RegistryKey(); }
    std::optional<platform::Registry::Value> Query(std::string_view name,
                                                   std::size_t size = kLargestValue) {
        return Registry().Query(kCurrentUser, Key(), name, size);
    }
    bool Set(std::string_view name, std::uint32_t type, std::string_view data) {
        return Registry().Set(kCurrentUser, Key(), name, {type, std::string(data)});
    }
};

}  // namespace

TEST_P(RegistryContract, AMissingKeyOrValueGivesNothing) {
    EXPECT_FALSE(Query("InstallDir").has_value());
    ASSERT_TRUE(Set("Other", kString, WithNul("x")));
    EXPECT_FALSE(Query("InstallDir").has_value());
}

TEST_P(RegistryContract, ATextComesBackWithItsNul) {
    ASSERT_TRUE(Set("InstallDir", kString, WithNul("c:\\totalcmd")));
    const auto value = Query("InstallDir");
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->type, kString);
    EXPECT_EQ(value->data, WithNul("c:\\totalcmd"));
}

TEST_P(RegistryContract, ATextWithoutNulIsGivenOne) {
    ASSERT_TRUE(Set("k", kString, "abc"));
    ASSERT_TRUE(Query("k").has_value());
    EXPECT_EQ(Query("k")->data, WithNul("abc"));
    ASSERT_TRUE(Set("k", kString, ""));
    ASSERT_TRUE(Query("k").has_value());
    EXPECT_EQ(Query("k")->data, "");
}

TEST_P(RegistryContract, ATextOfEveryScriptComesBack) {
    ASSERT_TRUE(Set("k", kExpandable, WithNul("%x%\\\xD0\x96\xE3\x82\xBD\xF0\x9F\x93\x81")));
    ASSERT_TRUE(Query("k").has_value());
    EXPECT_EQ(Query("k")->type, kExpandable);
    EXPECT_EQ(Query("k")->data, WithNul("%x%\\\xD0\x96\xE3\x82\xBD\xF0\x9F\x93\x81"));
}

TEST_P(RegistryContract, AnEmptyTextIsAValue) {
    ASSERT_TRUE(Set("k", kString, WithNul("")));
    ASSERT_TRUE(Query("k").has_value());
    EXPECT_EQ(Query("k")->data, WithNul(""));
}

TEST_P(RegistryContract, BytesAndNumbersComeBackAsTheyAre) {
    const std::string bytes("\x0A\xFF\0", 3);
    const std::string number("\xD2\x04\0\0", 4);
    ASSERT_TRUE(Set("b", kBinary, bytes));
    ASSERT_TRUE(Set("n", kNumber, number));
    ASSERT_TRUE(Query("b").has_value());
    EXPECT_EQ(Query("b")->type, kBinary);
    EXPECT_EQ(Query("b")->data, bytes);
    ASSERT_TRUE(Query("n").has_value());
    EXPECT_EQ(Query("n")->type, kNumber);
    EXPECT_EQ(Query("n")->data, number);
}

TEST_P(RegistryContract, NamesMatchIgnoringCase) {
    ASSERT_TRUE(Set("InstallDir", kString, WithNul("x")));
    EXPECT_TRUE(Query("INSTALLDIR").has_value());
    std::string key = Key();
    for (char& c : key)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    EXPECT_TRUE(Registry().Query(kCurrentUser, key, "installdir", kLargestValue).has_value());
}

TEST_P(RegistryContract, AValueLongerThanTheBufferGivesNothing) {
    ASSERT_TRUE(Set("t", kString, WithNul("\xD0\x96\xD0\x96\xD0\x96")));
    EXPECT_TRUE(Query("t", 4).has_value());
    EXPECT_FALSE(Query("t", 3).has_value());
    ASSERT_TRUE(Set("b", kBinary, "12345"));
    EXPECT_TRUE(Query("b", 5).has_value());
    EXPECT_FALSE(Query("b", 4).has_value());
}

TEST_P(RegistryContract, SettingReplacesValueAndType) {
    ASSERT_TRUE(Set("k", kString, WithNul("x")));
    ASSERT_TRUE(Set("K", kNumber, std::string("\1\0\0\0", 4)));
    ASSERT_TRUE(Query("k").has_value());
    EXPECT_EQ(Query("k")->type, kNumber);
}

TEST_P(RegistryContract, TheNamelessValueIsAValueLikeOthers) {
    ASSERT_TRUE(Set("", kString, WithNul("x")));
    ASSERT_TRUE(Query("").has_value());
    EXPECT_EQ(Query("")->data, WithNul("x"));
}

TEST_P(RegistryContract, AnUnknownRootFails) {
    for (const std::uint32_t root : {0U, 0x12345678U}) {
        EXPECT_FALSE(Registry().Query(root, Key(), "k", kLargestValue).has_value());
        EXPECT_FALSE(Registry().Set(root, Key(), "k", {kString, WithNul("x")}));
        EXPECT_FALSE(Registry().DeleteKey(root, Key()));
    }
}

TEST_P(RegistryContract, OnlyAKeyWithoutSubKeysIsDeleted) {
    ASSERT_TRUE(Registry().Set(kCurrentUser, Key() + "\\Sub", "k", {kString, WithNul("x")}));
    ASSERT_TRUE(Set("k", kString, WithNul("x")));
    EXPECT_FALSE(Registry().DeleteKey(kCurrentUser, Key()));
    EXPECT_TRUE(Query("k").has_value());
    EXPECT_TRUE(Registry().DeleteKey(kCurrentUser, Key() + "\\Sub"));
    EXPECT_TRUE(Registry().DeleteKey(kCurrentUser, Key()));
    EXPECT_FALSE(Query("k").has_value());
    EXPECT_FALSE(Registry().DeleteKey(kCurrentUser, Key()));
    EXPECT_FALSE(Registry().DeleteKey(kCurrentUser, ""));
}

INSTANTIATE_TEST_SUITE_P(, RegistryContract, AllSubjects(), KindName);

}  // namespace ordalyn::contract
