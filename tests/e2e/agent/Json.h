// The little of JSON that the agent speaks: one object a line, in and out.
#pragma once

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace ordalyn::e2e {

class Json {
  public:
    using Array = std::vector<Json>;
    // Ordered by name, so that an answer reads the same every time.
    using Object = std::map<std::string, Json, std::less<>>;

    Json() = default;
    Json(std::nullptr_t) {}
    Json(bool value) : value_(value) {}
    Json(std::string value) : value_(std::move(value)) {}
    Json(const char* value) : value_(std::string(value)) {}
    Json(Array value) : value_(std::move(value)) {}
    Json(Object value) : value_(std::move(value)) {}
    // Window handles and styles are whole numbers of many types; all of them fit into 64 bits.
    template <typename Number>
    requires std::is_integral_v<Number> Json(Number value)
        : value_(static_cast<std::int64_t>(value)) {}

    static Json Parse(std::string_view text);
    std::string Dump() const;

    bool IsNull() const { return std::holds_alternative<std::monostate>(value_); }
    // Throws std::runtime_error that names the member when it is missing or of another kind.
    std::int64_t Number(std::string_view member) const;
    std::int64_t Number(std::string_view member, std::int64_t otherwise) const;
    const std::string& String(std::string_view member) const;
    const Array& List(std::string_view member) const;
    bool Has(std::string_view member) const;

    std::int64_t AsNumber() const { return std::get<std::int64_t>(value_); }
    const std::string& AsString() const { return std::get<std::string>(value_); }

  private:
    const Json& Member(std::string_view name) const;
    std::variant<std::monostate, bool, std::int64_t, std::string, Array, Object> value_;
};

}  // namespace ordalyn::e2e
