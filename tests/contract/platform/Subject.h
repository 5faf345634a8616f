// One realisation of the services under test, with what a test needs from the world around it.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace ordalyn::contract {

class Subject {
  public:
    virtual ~Subject() = default;
    virtual const platform::Services& Services() = 0;

    // The number of the system code page.
    virtual unsigned CodePage() = 0;

    // Whether it comes true within a time that nothing takes.
    virtual bool Eventually(const std::function<bool()>& isTrue) = 0;

    // An empty folder of this test's own, without a backslash at its end, and what other programs
    // do in it. Names are relative to it.
    virtual std::string Folder() = 0;
    std::string Path(std::string_view name) { return (Folder() + "\\").append(name); }
    virtual void SetBytes(std::string_view name, std::string_view bytes) = 0;
    virtual std::optional<std::string> Bytes(std::string_view name) = 0;
    virtual void Append(std::string_view name, std::string_view bytes) = 0;
    virtual void Rename(std::string_view from, std::string_view to) = 0;
    virtual void Delete(std::string_view name) = 0;
    virtual void AddFolder(std::string_view name) = 0;
    virtual void Hide(std::string_view name) = 0;
    virtual void WriteProtect(std::string_view name, bool isProtected) = 0;
    // Gives the file a date of long ago; whether it still has it.
    virtual void MakeOld(std::string_view name) = 0;
    virtual bool IsOld(std::string_view name) = 0;
    // Opens the file without sharing until the answer is destroyed.
    virtual std::shared_ptr<void> Lock(std::string_view name) = 0;
    // The folder becomes the current one until the answer is destroyed.
    virtual std::shared_ptr<void> EnterFolder() = 0;

    virtual void SetVariable(std::string_view name, std::string_view value) = 0;

    // A registry key below the current user's root that does not exist before the test.
    virtual std::string RegistryKey() = 0;

    virtual std::optional<std::string> ClipboardText() = 0;
    // Another program holds the clipboard until the answer is destroyed.
    virtual std::shared_ptr<void> HoldClipboard() = 0;

    // The first of March 2024 as this system writes it.
    virtual std::string ShortDate() = 0;
    virtual std::string LongDate() = 0;
    virtual std::chrono::weekday FirstWeekday() = 0;
};

struct SubjectKind {
    std::string name;
    std::unique_ptr<Subject> (*make)();
    friend void PrintTo(const SubjectKind& kind, std::ostream* out) { *out << kind.name; }
};

class PlatformContract : public ::testing::TestWithParam<SubjectKind> {
  protected:
    Subject& System() { return *subject_; }
    const platform::Services& Services() { return subject_->Services(); }

  private:
    std::unique_ptr<Subject> subject_ = GetParam().make();
};

inline std::string KindName(const ::testing::TestParamInfo<SubjectKind>& info) {
    return info.param.name;
}

std::unique_ptr<Subject> MakeMemory1252();
std::unique_ptr<Subject> MakeMemory1251();
std::unique_ptr<Subject> MakeMemory932();
std::unique_ptr<Subject> MakeWindows();

inline auto AllSubjects() {
    return ::testing::Values(
#ifdef _WIN32
        SubjectKind{"Windows", MakeWindows},
#endif
        SubjectKind{"Memory1252", MakeMemory1252}, SubjectKind{"Memory1251", MakeMemory1251},
        SubjectKind{"Memory932", MakeMemory932});
}

}  // namespace ordalyn::contract
