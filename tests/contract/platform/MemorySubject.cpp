#include "contract/platform/Subject.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn::contract {

namespace {

class MemorySubject : public Subject {
  public:
    explicit MemorySubject(unsigned codePage) {
        system_.codePages.systemCodePage = codePage;
        system_.files.AddFolder(kFolder);
    }
    const platform::Services& Services() override { return system_.services; }
    unsigned CodePage() override { return system_.codePages.systemCodePage; }

    bool Eventually(const std::function<bool()>& isTrue) override { return isTrue(); }
    std::string Folder() override { return kFolder; }
    void SetBytes(std::string_view name, std::string_view bytes) override {
        system_.files.Set(Path(name), bytes);
    }
    std::optional<std::string> Bytes(std::string_view name) override {
        return system_.files.Get(Path(name));
    }
    void Append(std::string_view name, std::string_view bytes) override {
        system_.files.Append(Path(name), bytes);
    }
    void Rename(std::string_view from, std::string_view to) override {
        system_.files.Rename(Path(from), Path(to));
    }
    void Delete(std::string_view name) override { system_.files.Delete(Path(name)); }
    void AddFolder(std::string_view name) override { system_.files.AddFolder(Path(name)); }
    void Hide(std::string_view name) override { EXPECT_TRUE(Bytes(name).has_value()); }
    void WriteProtect(std::string_view name, bool isProtected) override {
        system_.files.FailWriting(Path(name), isProtected);
    }
    // There are no dates in memory.
    void MakeOld(std::string_view name) override { EXPECT_TRUE(Bytes(name).has_value()); }
    bool IsOld(std::string_view name) override { return Bytes(name).has_value(); }
    std::shared_ptr<void> Lock(std::string_view name) override {
        system_.files.Lock(Path(name));
        return {nullptr, [this, path = Path(name)](void*) { system_.files.Lock(path, false); }};
    }
    std::shared_ptr<void> EnterFolder() override {
        system_.files.SetCurrentFolder(kFolder);
        return {nullptr, [this](void*) { system_.files.SetCurrentFolder("C:\\"); }};
    }

    void SetVariable(std::string_view name, std::string_view value) override {
        system_.environment.SetVariable(name, value);
    }
    std::string RegistryKey() override { return "Software\\OrdalynContract"; }
    std::optional<std::string> ClipboardText() override { return system_.clipboard.text; }
    std::shared_ptr<void> HoldClipboard() override {
        system_.clipboard.heldByAnother = true;
        return {nullptr, [this](void*) { system_.clipboard.heldByAnother = false; }};
    }
    std::string ShortDate() override { return "01.03.2024"; }
    std::chrono::weekday FirstWeekday() override { return system_.locale.firstWeekday; }
    std::string LongDate() override { return "Friday, March 1, 2024"; }

  private:
    static constexpr const char* kFolder = "C:\\Contract";
    test::MemoryPlatform system_;
};

}  // namespace

std::unique_ptr<Subject> MakeMemory1252() {
    return std::make_unique<MemorySubject>(1252U);
}
std::unique_ptr<Subject> MakeMemory1251() {
    return std::make_unique<MemorySubject>(1251U);
}
std::unique_ptr<Subject> MakeMemory932() {
    return std::make_unique<MemorySubject>(932U);
}

}  // namespace ordalyn::contract
