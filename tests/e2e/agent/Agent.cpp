// The library that the launcher loads into the unmodified program: one thread that answers
// requests.
#include "Common.h"

namespace {

DWORD WINAPI AgentThread(LPVOID) {
    ordalyn::e2e::Serve();
    return 0;
}

}  // namespace

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(library);
        HANDLE thread = CreateThread(nullptr, 0, AgentThread, nullptr, 0, nullptr);
        if (!thread)
            return FALSE;
        CloseHandle(thread);
    }
    return TRUE;
}
