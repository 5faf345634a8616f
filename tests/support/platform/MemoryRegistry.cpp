#include "support/platform/MemoryRegistry.h"

#include <algorithm>

#include "base/Text.h"

namespace ordalyn::test {

namespace {

std::string KeyPath(std::string_view subKey) {
    while (!subKey.empty() && subKey.back() == '\\')
        subKey.remove_suffix(1);
    return FoldCase(subKey);
}

// The last predefined key exists on old systems only.
bool IsRoot(std::uint32_t root) {
    return root >= 0x80000000 && root <= 0x80000005 && root != 0x80000004;
}

bool IsText(std::uint32_t type) {
    return type == 1 || type == 2 || type == 7;
}

std::size_t SizeInCharacters(const platform::Registry::Value& value) {
    return IsText(value.type) ? Utf8ToUtf16(value.data).size() : value.data.size();
}

}  // namespace

std::optional<MemoryRegistry::Value> MemoryRegistry::Query(std::uint32_t root,
                                                           std::string_view subKey,
                                                           std::string_view name,
                                                           std::size_t size) {
    const auto key = keys_.find({root, KeyPath(subKey)});
    if (key == keys_.end())
        return std::nullopt;
    const auto value = key->second.find(FoldCase(name));
    if (value == key->second.end() || SizeInCharacters(value->second) > size)
        return std::nullopt;
    return value->second;
}

bool MemoryRegistry::Set(std::uint32_t root, std::string_view subKey, std::string_view name,
                         const Value& value) {
    if (!IsRoot(root))
        return false;
    const std::string path = KeyPath(subKey);
    for (std::size_t end = path.find('\\'); end != std::string::npos;
         end = path.find('\\', end + 1))
        keys_.try_emplace({root, path.substr(0, end)});
    Value& stored = keys_[{root, path}][FoldCase(name)] = value;
    if (IsText(stored.type) && !stored.data.empty() && stored.data.back() != '\0')
        stored.data += '\0';
    return true;
}

bool MemoryRegistry::DeleteKey(std::uint32_t root, std::string_view subKey) {
    const std::string path = KeyPath(subKey);
    const bool hasSubKeys = std::any_of(keys_.begin(), keys_.end(), [&](const auto& key) {
        return key.first.first == root && key.first.second.rfind(path + "\\", 0) == 0;
    });
    return !hasSubKeys && keys_.erase({root, path}) > 0;
}

void MemoryRegistry::SetString(std::uint32_t root, std::string_view subKey, std::string_view name,
                               std::string_view text) {
    Set(root, subKey, name, {kString, std::string(text) + '\0'});
}

bool MemoryRegistry::HasKey(std::uint32_t root, std::string_view subKey) const {
    return keys_.count({root, KeyPath(subKey)}) > 0;
}

}  // namespace ordalyn::test
