// The registry's two views: programs of either width find their keys of the machine apart.
#include "contract/platform/Subject.h"
#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"
#include "win32/common/WideText.h"

namespace ordalyn::contract {

namespace {

constexpr const wchar_t* kKey = L"Software\\OrdalynContract";
constexpr const char* kPlace = "HKEY_LOCAL_MACHINE\\Software\\OrdalynContract";
constexpr REGSAM kWide = KEY_WOW64_64KEY, kNarrow = KEY_WOW64_32KEY;
constexpr REGSAM kOwn = sizeof(void*) == 8 ? kWide : kNarrow;
constexpr REGSAM kOther = sizeof(void*) == 8 ? kNarrow : kWide;

class RegistryViewsOnWindows : public testing::Test {
  protected:
    RegistryViewsOnWindows() { DeleteBoth(); }
    ~RegistryViewsOnWindows() override { DeleteBoth(); }

    // Stores a text as a program of that width does. False: this user may not.
    static bool Store(REGSAM view, std::string_view name, std::string_view text) {
        HKEY key = nullptr;
        if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, nullptr, 0, KEY_SET_VALUE | view, nullptr,
                            &key, nullptr) != ERROR_SUCCESS)
            return false;
        const std::wstring wide = win32::ToWide(text);
        EXPECT_EQ(RegSetValueExW(key, win32::ToWide(name).c_str(), 0, REG_SZ,
                                 reinterpret_cast<const BYTE*>(wide.c_str()),
                                 static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
        RegCloseKey(key);
        return true;
    }
    static bool HasKey(REGSAM view) {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, KEY_QUERY_VALUE | view, &key) !=
            ERROR_SUCCESS)
            return false;
        RegCloseKey(key);
        return true;
    }
    std::string Read(std::string_view name) const { return accessor_.ReadValue(kPlace, name); }
    const std::string& Marker() const { return marker_; }

  private:
    static void DeleteBoth() {
        for (const REGSAM view : {kWide, kNarrow})
            RegDeleteKeyExW(HKEY_LOCAL_MACHINE, kKey, view, 0);
    }

    std::unique_ptr<Subject> system_ = MakeWindows();
    mAppCommon common_{system_->Services()};
    cRegistry accessor_{system_->Services(), common_};
    std::string marker_ = common_.NoValueMarker();
};

}  // namespace

TEST_F(RegistryViewsOnWindows, AKeyOfAProgramOfTheOtherWidthIsFound) {
    EXPECT_EQ(Read("InstallDir"), Marker());
    if (!Store(kOther, "InstallDir", "c:\\other"))
        GTEST_SKIP() << "this user may not write keys of the machine";
    if (HasKey(kOwn))
        GTEST_SKIP() << "this system has one view only";
    EXPECT_EQ(Read("InstallDir"), "c:\\other");
}

TEST_F(RegistryViewsOnWindows, TheOwnViewComesFirst) {
    if (!Store(kOwn, "InstallDir", "c:\\own"))
        GTEST_SKIP() << "this user may not write keys of the machine";
    if (HasKey(kOther))
        GTEST_SKIP() << "this system has one view only";
    EXPECT_EQ(Read("InstallDir"), "c:\\own");
    ASSERT_TRUE(Store(kOther, "InstallDir", "c:\\other"));
    EXPECT_EQ(Read("InstallDir"), "c:\\own");
    // Each value is looked for by itself.
    ASSERT_TRUE(Store(kOther, "IniFileName", "c:\\other.ini"));
    EXPECT_EQ(Read("IniFileName"), "c:\\other.ini");
}

}  // namespace ordalyn::contract
