// Commands about the clipboard, from a window and a thread of the agent's own, so that the program
// meets it like any other program's.
#include "Common.h"

namespace ordalyn::e2e {

namespace {

// Several tries: the clipboard belongs to whoever has it open at the moment.
class OpenClipboardScope {
  public:
    OpenClipboardScope() {
        static HWND owner = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                            nullptr, nullptr);
        for (int i = 0; i < 100; ++i) {
            if (OpenClipboard(owner))
                return;
            Sleep(20);
        }
        throw std::runtime_error("the clipboard does not open");
    }
    ~OpenClipboardScope() { CloseClipboard(); }
    OpenClipboardScope(const OpenClipboardScope&) = delete;
    OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
};

Json ClipboardText(const Json&) {
    OpenClipboardScope open;
    HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (!data)
        return nullptr;
    const auto* text = static_cast<const wchar_t*>(GlobalLock(data));
    Json answer = ToUtf8(text ? text : L"");
    GlobalUnlock(data);
    return answer;
}

Json SetClipboardText(const Json& request) {
    const std::wstring text = ToWide(request.String("text"));
    OpenClipboardScope open;
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    if (!memory)
        throw std::runtime_error("no memory");
    auto* copy = static_cast<wchar_t*>(GlobalLock(memory));
    text.copy(copy, text.size());
    copy[text.size()] = L'\0';
    GlobalUnlock(memory);
    return SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
}

DWORD WINAPI HoldForAWhile(LPVOID milliseconds) {
    HWND owner =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    if (OpenClipboard(owner)) {
        Sleep(static_cast<DWORD>(reinterpret_cast<std::uintptr_t>(milliseconds)));
        CloseClipboard();
    }
    DestroyWindow(owner);
    return 0;
}

// Keeps the clipboard open for a time, from yet another thread; answers when it is open.
Json HoldClipboard(const Json& request) {
    const auto milliseconds = static_cast<std::uintptr_t>(request.Number("milliseconds"));
    HANDLE thread =
        CreateThread(nullptr, 0, HoldForAWhile, reinterpret_cast<LPVOID>(milliseconds), 0, nullptr);
    if (!thread)
        throw std::runtime_error("no thread");
    CloseHandle(thread);
    for (int i = 0; i < 200; ++i) {
        if (GetOpenClipboardWindow())
            return true;
        Sleep(5);
    }
    return false;
}

}  // namespace

void AddClipboardCommands(Commands& commands) {
    commands["clipboard"] = ClipboardText;
    commands["setClipboard"] = SetClipboardText;
    commands["holdClipboard"] = HoldClipboard;
    commands["clipboardSequence"] = [](const Json&) -> Json {
        return GetClipboardSequenceNumber();
    };
}

}  // namespace ordalyn::e2e
