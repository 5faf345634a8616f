// What programs that speak the screen are told about a window.
#include "Common.h"

#include <initguid.h>
#include <oleacc.h>

namespace ordalyn::e2e {

namespace {

// The label right before it among the windows of its container, which names a control that shows no
// text of its own.
std::string LabelBefore(HWND window) {
    HWND before = GetWindow(window, GW_HWNDPREV);
    return before != nullptr && ClassOf(before) == "Static" ? TextOf(before) : std::string();
}

// What the system's own object for the window says. Wine has one that knows most classes by their
// text alone.
Json Accessible(const Json& request) {
    HWND window = WindowOf(request);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    Json::Object answer{{"label", LabelBefore(window)}, {"name", ""}, {"role", 0}, {"state", 0}};
    IAccessible* object = nullptr;
    if (SUCCEEDED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                             IID_IAccessible, reinterpret_cast<void**>(&object))) &&
        object != nullptr) {
        VARIANT self{};
        self.vt = VT_I4;
        self.lVal = CHILDID_SELF;
        BSTR name = nullptr;
        if (object->get_accName(self, &name) == S_OK && name != nullptr)
            answer["name"] = ToUtf8(name);
        SysFreeString(name);
        VARIANT role{};
        if (object->get_accRole(self, &role) == S_OK && role.vt == VT_I4)
            answer["role"] = role.lVal;
        VARIANT state{};
        if (object->get_accState(self, &state) == S_OK && state.vt == VT_I4)
            answer["state"] = state.lVal;
        object->Release();
    }
    CoUninitialize();
    return answer;
}

}  // namespace

void AddAccessibleCommands(Commands& commands) {
    commands["accessible"] = Accessible;
}

}  // namespace ordalyn::e2e
