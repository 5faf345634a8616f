#include "win32/services/Win32Registry.h"

#include <vector>

#include "win32/common/Handles.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

using namespace platform;

namespace {

// The predefined handles are numbers of 32 bits, extended with their sign.
HKEY RootKey(std::uint32_t root) {
    return reinterpret_cast<HKEY>(  // NOLINT(performance-no-int-to-ptr)
        static_cast<LONG_PTR>(static_cast<LONG>(root)));
}

bool IsText(DWORD type) {
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

KeyHandle OpenKey(std::uint32_t root, std::string_view subKey, REGSAM access) {
    HKEY key = nullptr;
    const LSTATUS result = RegOpenKeyExW(RootKey(root), ToWide(subKey).c_str(), 0, access, &key);
    return KeyHandle(result == ERROR_SUCCESS ? key : nullptr);
}

std::optional<Registry::Value> QueryValue(HKEY key, std::string_view name, std::size_t size) {
    std::vector<wchar_t> buffer(size + 1);
    auto* bytes = reinterpret_cast<BYTE*>(buffer.data());
    auto length = static_cast<DWORD>(size * sizeof(wchar_t));
    DWORD type = 0;
    const LSTATUS result =
        RegQueryValueExW(key, ToWide(name).c_str(), nullptr, &type, bytes, &length);
    if (result != ERROR_SUCCESS)
        return std::nullopt;
    if (IsText(type))
        return Registry::Value{type, FromWide({buffer.data(), length / sizeof(wchar_t)})};
    if (length > size)
        return std::nullopt;
    return Registry::Value{type, std::string(bytes, bytes + length)};
}

}  // namespace

std::optional<Registry::Value> Win32Registry::Query(std::uint32_t root, std::string_view subKey,
                                                    std::string_view name, std::size_t size) {
    constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
    for (const REGSAM view : {REGSAM{0}, kOtherView}) {
        const KeyHandle key = OpenKey(root, subKey, KEY_QUERY_VALUE | view);
        if (!key)
            continue;
        if (std::optional<Value> value = QueryValue(key.Get(), name, size))
            return value;
    }
    return std::nullopt;
}

bool Win32Registry::Set(std::uint32_t root, std::string_view subKey, std::string_view name,
                        const Value& value) {
    // Flushing asks for the right to query.
    constexpr REGSAM kAccess = KEY_SET_VALUE | KEY_QUERY_VALUE;
    HKEY created = nullptr;
    if (RegCreateKeyExW(RootKey(root), ToWide(subKey).c_str(), 0, nullptr, 0, kAccess, nullptr,
                        &created, nullptr) != ERROR_SUCCESS)
        return false;
    const KeyHandle key(created);
    std::wstring text = IsText(value.type) ? ToWide(value.data) : std::wstring();
    if (!text.empty() && text.back() != L'\0')
        text += L'\0';
    const void* data = IsText(value.type) ? static_cast<const void*>(text.data())
                                          : static_cast<const void*>(value.data.data());
    const std::size_t length =
        IsText(value.type) ? text.size() * sizeof(wchar_t) : value.data.size();
    const bool stored =
        RegSetValueExW(key.Get(), ToWide(name).c_str(), 0, value.type,
                       static_cast<const BYTE*>(data), static_cast<DWORD>(length)) == ERROR_SUCCESS;
    RegFlushKey(key.Get());
    return stored;
}

bool Win32Registry::DeleteKey(std::uint32_t root, std::string_view subKey) {
    if (subKey.empty())
        return false;  // the root itself
    return RegDeleteKeyW(RootKey(root), ToWide(subKey).c_str()) == ERROR_SUCCESS;
}

}  // namespace ordalyn::win32
