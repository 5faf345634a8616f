// The standard dialogs and the shell, which need a user: a thread of the test plays one.
#include <gmock/gmock.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include "contract/platform/Subject.h"
#include "win32/common/WideText.h"

namespace ordalyn::contract {

namespace {

constexpr int kPollMilliseconds = 20;
constexpr int kPolls = 500;

// Waits for a dialog of this process to be shown and presses one of its buttons.
class Presser {
  public:
    explicit Presser(int button) : thread_([this, button] { Press(button); }) {}
    ~Presser() {
        done_ = true;
        thread_.join();
    }
    Presser(const Presser&) = delete;
    Presser& operator=(const Presser&) = delete;
    bool SawDialog() const { return sawDialog_; }
    // The window that the dialog lay above and kept from input.
    HWND Owner() const { return owner_; }

  private:
    static BOOL CALLBACK IsOurDialog(HWND window, LPARAM found) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        wchar_t name[20] = L"";
        GetClassNameW(window, name, 20);
        if (process != GetCurrentProcessId() || !IsWindowVisible(window) ||
            std::wstring(name) != L"#32770")
            return TRUE;
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    }
    void Press(int button) {
        // Pressed again until the dialog is gone: it may not be ready for the first time.
        for (int poll = 0; poll < kPolls && !done_; ++poll) {
            HWND dialog = nullptr;
            EnumWindows(IsOurDialog, reinterpret_cast<LPARAM>(&dialog));
            if (dialog != nullptr) {
                sawDialog_ = true;
                const HWND owner = GetWindow(dialog, GW_OWNER);
                if (owner != nullptr && !IsWindowEnabled(owner))
                    owner_ = owner;
                // What refuses that button must not keep the test waiting for ever.
                const int pressed = poll < kPolls / 5 ? button : IDCANCEL;
                PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(pressed), 0);
            }
            Sleep(kPollMilliseconds);
        }
    }
    std::atomic<bool> done_{false};
    std::atomic<bool> sawDialog_{false};
    std::atomic<HWND> owner_{nullptr};
    std::thread thread_;
};

// The default value of a key below HKEY_CLASSES_ROOT.
std::wstring Class(const wchar_t* key) {
    wchar_t value[MAX_PATH] = {};
    LONG size = sizeof value;
    return RegQueryValueW(HKEY_CLASSES_ROOT, key, value, &size) == ERROR_SUCCESS ? value : L"";
}

void SetClass(const wchar_t* key, const std::wstring& value) {
    ASSERT_EQ(RegSetValueW(HKEY_CLASSES_ROOT, key, REG_SZ, value.c_str(), 0), ERROR_SUCCESS);
}

class ClassOfHelpFiles {
  public:
    explicit ClassOfHelpFiles(const wchar_t* now) : before_(Class(L".chm")) {
        SetClass(L".chm", now);
    }
    ~ClassOfHelpFiles() { SetClass(L".chm", before_); }
    ClassOfHelpFiles(const ClassOfHelpFiles&) = delete;
    ClassOfHelpFiles& operator=(const ClassOfHelpFiles&) = delete;

  private:
    std::wstring before_;
};

// Windows' viewer of help files is away for a moment.
class NoHelpViewer {
  public:
    NoHelpViewer() {
        wchar_t folder[MAX_PATH] = {};
        GetSystemWindowsDirectoryW(folder, MAX_PATH);
        place_ = std::wstring(folder) + L"\\hh.exe";
        away_ = place_ + L".away";
        EXPECT_NE(MoveFileW(place_.c_str(), away_.c_str()), FALSE);
    }
    ~NoHelpViewer() { MoveFileW(away_.c_str(), place_.c_str()); }
    NoHelpViewer(const NoHelpViewer&) = delete;
    NoHelpViewer& operator=(const NoHelpViewer&) = delete;

  private:
    std::wstring place_, away_;
};

int CALLBACK TakeTrueType(const LOGFONTW* font, const TEXTMETRICW*, DWORD type, LPARAM found) {
    if (!(type & TRUETYPE_FONTTYPE) || font->lfFaceName[0] == L'@')
        return 1;
    *reinterpret_cast<std::wstring*>(found) = font->lfFaceName;
    return 0;
}

// A scalable font that is installed here.
std::string InstalledFont() {
    std::wstring name;
    LOGFONTW any{};
    any.lfCharSet = ANSI_CHARSET;
    const HDC screen = GetDC(nullptr);
    EnumFontFamiliesExW(screen, &any, TakeTrueType, reinterpret_cast<LPARAM>(&name), 0);
    ReleaseDC(nullptr, screen);
    return win32::FromWide(name);
}

class OwnerWindow {
  public:
    OwnerWindow() = default;
    ~OwnerWindow() { DestroyWindow(window_); }
    OwnerWindow(const OwnerWindow&) = delete;
    OwnerWindow& operator=(const OwnerWindow&) = delete;
    HWND Window() const { return window_; }
    platform::WindowHandle Handle() const {
        return reinterpret_cast<platform::WindowHandle>(window_);
    }

  private:
    HWND window_ = CreateWindowExW(0, L"STATIC", L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                   300, 200, nullptr, nullptr, nullptr, nullptr);
};

class DialogsOnWindows : public testing::Test {
  protected:
    static platform::Dialogs::FontRequest FontRequest() {
        platform::Dialogs::FontRequest request;
        request.name = InstalledFont();
        request.size = 10;
        request.weight = 700;
        request.italic = true;
        request.underline = true;
        request.characterSet = 0;
        request.flags = 74049;
        request.minimum = 8;
        request.maximum = 72;
        return request;
    }
    void ExpectOpenedWithItsProgram(
        const std::function<platform::ShellTarget(const std::string& path)>& target) {
        // Help files have a program of the test's own for a moment.
        const ClassOfHelpFiles ours(L"ordalyn.test");
        const std::string command =
            "cmd.exe /c echo opened> \"" + System().Path("opened.txt") + "\"";
        SetClass(L"ordalyn.test\\shell\\open\\command", win32::ToWide(command));
        System().SetBytes("Read & me.chm", "");
        System().Services().shell.Open(0, target(System().Path("Read & me.chm")));
        for (int poll = 0; poll < kPolls && System().Bytes("opened.txt").value_or("").empty();
             ++poll)
            Sleep(kPollMilliseconds);
        EXPECT_THAT(System().Bytes("opened.txt").value_or(""), testing::StartsWith("opened"));
    }
    platform::Dialogs& Dialogs() { return system_->Services().dialogs; }
    Subject& System() { return *system_; }
    platform::Dialogs::OpenRequest OpenRequest() {
        platform::Dialogs::OpenRequest request;
        request.filter = std::string("All Files (*.*)\0*.*\0", 20);
        request.initialFolder = system_->Folder();
        request.title = "Open";
        request.flags = 0x1088140E;
        request.bufferSize = 768;
        request.recordSize = 88;
        return request;
    }

  private:
    std::unique_ptr<Subject> system_ = MakeWindows();
};

}  // namespace

TEST_F(DialogsOnWindows, TheLibraryTellsItsVersion) {
    EXPECT_GE(Dialogs().LibraryMajorVersion(), 5);
}

TEST_F(DialogsOnWindows, ACancelledFileDialogAnswersNothing) {
    const Presser cancel(IDCANCEL);
    EXPECT_EQ(Dialogs().OpenFile(OpenRequest()), std::nullopt);
}

TEST_F(DialogsOnWindows, AConfirmedFileDialogAnswersTheFullPath) {
    System().SetBytes("wincmd.ini", "");
    for (const std::size_t recordSize : {76U, 88U}) {
        auto request = OpenRequest();
        request.recordSize = recordSize;
        request.fileName = "wincmd.ini";
        const Presser confirm(IDOK);
        EXPECT_EQ(Dialogs().OpenFile(request), System().Path("wincmd.ini")) << recordSize;
    }
}

TEST_F(DialogsOnWindows, ASaveDialogAnswersAPathThatNeedNotExist) {
    auto request = OpenRequest();
    request.filter = std::string("Text\0*.txt\0Values\0*.csv\0", 24);
    request.fileName = "rows";
    {
        const Presser confirm(IDOK);
        const auto answer = Dialogs().SaveFile(request);
        ASSERT_TRUE(answer.has_value());
        EXPECT_EQ(answer->path, System().Path("rows.txt"));
        EXPECT_EQ(answer->filter, 0);
    }
    const Presser cancel(IDCANCEL);
    EXPECT_FALSE(Dialogs().SaveFile(request).has_value());
}

TEST_F(DialogsOnWindows, AColourDialogAnswersItsInitialColourWhenConfirmed) {
    platform::Dialogs::ColorRequest request;
    request.initial = 0x00804020;
    request.flags = 385;
    std::uint32_t custom[16] = {0x00112233};
    {
        const Presser confirm(IDOK);
        EXPECT_EQ(Dialogs().ChooseColor(request, custom), 0x00804020U);
    }
    EXPECT_EQ(custom[0], 0x00112233U);
    const Presser cancel(IDCANCEL);
    EXPECT_EQ(Dialogs().ChooseColor(request, custom), std::nullopt);
}

TEST_F(DialogsOnWindows, AFontDialogAnswersWhatItWasGivenWhenConfirmed) {
    const platform::Dialogs::FontRequest request = FontRequest();
    {
        const Presser confirm(IDOK);
        const auto answer = Dialogs().ChooseFont(request);
        ASSERT_TRUE(answer.has_value());
        EXPECT_EQ(answer->name, request.name);
        EXPECT_EQ(answer->tenthsOfPoints, 100);
        EXPECT_EQ(answer->weight, 700);
        EXPECT_TRUE(answer->italic);
        EXPECT_TRUE(answer->underline);
        EXPECT_FALSE(answer->strikethrough);
    }
    const Presser cancel(IDCANCEL);
    EXPECT_FALSE(Dialogs().ChooseFont(request).has_value());
}

TEST_F(DialogsOnWindows, AFontDialogAnswersStrikethroughAndCharacterSet) {
    platform::Dialogs::FontRequest request = FontRequest();
    request.strikethrough = true;
    request.characterSet = RUSSIAN_CHARSET;
    const Presser confirm(IDOK);
    const auto answer = Dialogs().ChooseFont(request);
    ASSERT_TRUE(answer.has_value());
    EXPECT_TRUE(answer->strikethrough);
    EXPECT_EQ(answer->characterSet, RUSSIAN_CHARSET);
}

TEST_F(DialogsOnWindows, TheAnswerHasRoomForALongPath) {
    constexpr std::size_t kLongest = 250;
    const std::string extension = ".ini";
    const std::string folder = System().Path("");
    ASSERT_LT(folder.size(), kLongest - extension.size());
    const std::string name =
        std::string(kLongest - extension.size() - folder.size(), 'x') + extension;
    System().SetBytes(name, "");
    auto request = OpenRequest();
    request.fileName = name;
    const Presser confirm(IDOK);
    EXPECT_EQ(Dialogs().OpenFile(request), folder + name);
}

TEST_F(DialogsOnWindows, EachLiesAboveItsOwner) {
    const OwnerWindow owner;
    {
        const Presser cancel(IDCANCEL);
        auto request = OpenRequest();
        request.owner = owner.Handle();
        Dialogs().OpenFile(request);
        EXPECT_EQ(cancel.Owner(), owner.Window());
    }
    {
        const Presser cancel(IDCANCEL);
        std::uint32_t custom[16] = {};
        Dialogs().ChooseColor({.owner = owner.Handle(), .initial = 0, .flags = 385}, custom);
        EXPECT_EQ(cancel.Owner(), owner.Window());
    }
    const Presser cancel(IDCANCEL);
    platform::Dialogs::FontRequest request = FontRequest();
    request.owner = owner.Handle();
    Dialogs().ChooseFont(request);
    EXPECT_EQ(cancel.Owner(), owner.Window());
}

TEST_F(DialogsOnWindows, TheShellOpensADocumentWithItsProgram) {
    ExpectOpenedWithItsProgram(
        [](const std::string& path) { return platform::ShellTarget::HelpFile(path); });
}

TEST_F(DialogsOnWindows, WithoutTheViewerAPageOfTheHelpOpensTheHelp) {
    const NoHelpViewer away;
    ExpectOpenedWithItsProgram(
        [](const std::string& path) { return platform::ShellTarget::HelpPage(path, "find"); });
}

TEST_F(DialogsOnWindows, WhatTheShellCannotOpenIsNoError) {
    const Presser confirm(IDOK);
    EXPECT_NO_THROW(System().Services().shell.Open(
        0, platform::ShellTarget::HelpFile(System().Path("none.chm"))));
    EXPECT_FALSE(confirm.SawDialog());
}

}  // namespace ordalyn::contract
