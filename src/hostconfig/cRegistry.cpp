#include "hostconfig/cRegistry.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "base/Attempt.h"
#include "base/Text.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

constexpr std::size_t kBufferSize = 2048;
constexpr std::uint32_t kNoRoot = 0;

struct Root {
    std::string_view name;
    std::uint32_t handle;
};

constexpr Root kRoots[] = {
    {"HKEY_CLASSES_ROOT", 0x80000000},   {"HKEY_CURRENT_USER", 0x80000001},
    {"HKEY_LOCAL_MACHINE", 0x80000002},  {"HKEY_USERS", 0x80000003},
    {"HKEY_CURRENT_CONFIG", 0x80000005}, {"HKEY_DYN_DATA", 0x80000006},
};

std::string HexDigits(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += kDigits[byte >> 4U];
        text += kDigits[byte & 0xFU];
    }
    return text;
}

// At least three digits. Bytes that a value lacks are the blanks that fill the buffer.
std::string NumberText(std::string_view bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < sizeof number; ++i) {
        const unsigned char byte = i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : ' ';
        number |= static_cast<std::uint32_t>(byte) << (8 * i);
    }
    const std::string text = std::to_string(number);
    return text.size() < 3 ? std::string(3 - text.size(), '0') + text : text;
}

// Types whose data the platform gives as text.
bool IsText(std::uint32_t type) {
    constexpr std::uint32_t kExpandable = 2;
    constexpr std::uint32_t kList = 7;
    return type == cRegistry::REG_SZ || type == kExpandable || type == kList;
}

std::int32_t NumberOf(const cRegistry::NewValue& value) {
    if (const std::int32_t* number = std::get_if<std::int32_t>(&value))
        return *number;
    std::int32_t number = 0;
    Attempt([&] { number = ToLong(std::get<std::string>(value)); });
    return number;
}

std::string BytesOf(std::int32_t number) {
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>((static_cast<std::uint32_t>(number) >> shift) & 0xFFU);
    return bytes;
}

}  // namespace

cRegistry::cRegistry(const platform::Services& services, const mAppCommon& common)
    : registry_(services.registry), codePages_(services.codePages), common_(common) {}

std::string cRegistry::ReadValue(std::string_view strValuePath,
                                 std::string_view strValueName) const {
    const std::optional<platform::Registry::Value> value = registry_.Query(
        RootFromPath(strValuePath), SubKeyFromPath(strValuePath), strValueName, kBufferSize);
    return value ? TextOf(*value) : common_.NoValueMarker();
}

void cRegistry::WriteValue(std::string_view strValuePath, std::string_view strValueName,
                           const NewValue& vntValue, std::uint32_t uValueType) const {
    platform::Registry::Value value{REG_SZ, ""};
    if (uValueType == REG_DWORD) {
        value = {REG_DWORD, BytesOf(NumberOf(vntValue))};
    } else {
        const std::int32_t* number = std::get_if<std::int32_t>(&vntValue);
        value.data = number != nullptr ? std::to_string(*number) : std::get<std::string>(vntValue);
        if (uValueType == REG_SZ)
            value.data += '\0';
    }
    registry_.Set(RootFromPath(strValuePath), SubKeyFromPath(strValuePath), strValueName, value);
}

std::string cRegistry::Deletekey(std::string_view strKeyPath) const {
    registry_.DeleteKey(RootFromPath(strKeyPath), SubKeyFromPath(strKeyPath));
    return {};
}

std::uint32_t cRegistry::RootFromPath(std::string_view path) {
    const std::string_view name = path.substr(0, path.find('\\'));
    const Root* root = std::find_if(std::begin(kRoots), std::end(kRoots),
                                    [&](const Root& r) { return EqualsIgnoreCase(r.name, name); });
    return root == std::end(kRoots) ? kNoRoot : root->handle;
}

std::string_view cRegistry::SubKeyFromPath(std::string_view path) {
    const std::size_t backslash = path.find('\\');
    return backslash == std::string_view::npos ? std::string_view() : path.substr(backslash + 1);
}

std::string cRegistry::TextOf(const platform::Registry::Value& value) const {
    const std::string_view data = value.data;
    if (value.type == REG_BINARY)
        return HexDigits(data);
    if (IsText(value.type))
        return std::string(WithoutLastCharacter(data));
    const std::size_t length = data.empty() ? 0 : data.size() - 1;
    if (value.type == REG_DWORD)
        return NumberText(data).substr(0, length);
    return codePages_.ToUtf8(data.substr(0, length), platform::CodePages::kSystem);
}

}  // namespace ordalyn
