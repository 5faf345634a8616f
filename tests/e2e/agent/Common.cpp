#include "Common.h"

namespace ordalyn::e2e {

namespace {
constexpr UINT kAnswerMilliseconds = 5000;
}

std::string ToUtf8(std::wstring_view text) {
    if (text.empty())
        return {};
    const int length = static_cast<int>(text.size());
    const int needed =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), needed, nullptr, nullptr);
    return utf8;
}

std::wstring ToWide(std::string_view text) {
    if (text.empty())
        return {};
    const int length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), needed);
    return wide;
}

LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR result = 0;
    SetLastError(0);
    if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kAnswerMilliseconds,
                             &result)) {
        const DWORD error = GetLastError();
        throw std::runtime_error(error == 0 || error == ERROR_TIMEOUT
                                     ? "the program does not answer"
                                     : "message not delivered, error " + std::to_string(error));
    }
    return static_cast<LRESULT>(result);
}

HWND WindowOf(const Json& request, std::string_view member) {
    const auto window = reinterpret_cast<HWND>(static_cast<std::intptr_t>(request.Number(member)));
    if (!IsWindow(window))
        throw std::runtime_error("the window is gone");
    return window;
}

Json RectJson(const RECT& rect) {
    return Json::Array{rect.left, rect.top, rect.right, rect.bottom};
}

RECT ToScreen(HWND window, RECT client) {
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
    return client;
}

std::string ClassOf(HWND window) {
    wchar_t name[256] = L"";
    GetClassNameW(window, name, 256);
    return ToUtf8(name);
}

std::string TextOf(HWND window) {
    const auto length = static_cast<std::size_t>(Send(window, WM_GETTEXTLENGTH));
    std::wstring text(length + 1, L'\0');
    const auto copied =
        static_cast<std::size_t>(SendPointer(window, WM_GETTEXT, text.size(), text.data()));
    text.resize(copied);
    return ToUtf8(text);
}

}  // namespace ordalyn::e2e
