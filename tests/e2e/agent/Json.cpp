#include "Json.h"

namespace ordalyn::e2e {

namespace {

class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}

    Json Whole() {
        Json value = Value();
        SkipBlanks();
        if (at_ != text_.size())
            Fail("text after the value");
        return value;
    }

  private:
    [[noreturn]] void Fail(const char* what) const {
        throw std::runtime_error("request, position " + std::to_string(at_) + ": " + what);
    }
    void SkipBlanks() {
        while (at_ < text_.size() && static_cast<unsigned char>(text_[at_]) <= ' ')
            ++at_;
    }
    bool Take(char expected) {
        SkipBlanks();
        if (at_ >= text_.size() || text_[at_] != expected)
            return false;
        ++at_;
        return true;
    }
    void Need(char expected) {
        if (!Take(expected))
            Fail("punctuation expected");
    }
    bool TakeWord(std::string_view word) {
        if (text_.substr(at_, word.size()) != word)
            return false;
        at_ += word.size();
        return true;
    }

    Json Value() {
        SkipBlanks();
        if (at_ >= text_.size())
            Fail("value expected");
        if (text_[at_] == '"')
            return String();
        if (Take('{'))
            return Members();
        if (Take('['))
            return Elements();
        if (TakeWord("true"))
            return true;
        if (TakeWord("false"))
            return false;
        if (TakeWord("null"))
            return nullptr;
        return Number();
    }

    Json Members() {
        Json::Object members;
        if (Take('}'))
            return members;
        do {
            SkipBlanks();
            std::string name = String();
            Need(':');
            members[std::move(name)] = Value();
        } while (Take(','));
        Need('}');
        return members;
    }

    Json Elements() {
        Json::Array elements;
        if (Take(']'))
            return elements;
        do
            elements.push_back(Value());
        while (Take(','));
        Need(']');
        return elements;
    }

    Json Number() {
        const std::size_t start = at_;
        if (text_[at_] == '-')
            ++at_;
        while (at_ < text_.size() && text_[at_] >= '0' && text_[at_] <= '9')
            ++at_;
        if (at_ == start)
            Fail("whole number expected");
        return static_cast<std::int64_t>(std::stoll(std::string(text_.substr(start, at_ - start))));
    }

    unsigned Hex4() {
        if (text_.size() - at_ < 4)
            Fail("four hexadecimal digits expected");
        const unsigned code =
            static_cast<unsigned>(std::stoul(std::string(text_.substr(at_, 4)), nullptr, 16));
        at_ += 4;
        return code;
    }

    static void AppendUtf8(std::string& text, unsigned code) {
        auto put = [&](unsigned byte) { text += static_cast<char>(byte); };
        if (code < 0x80) {
            put(code);
        } else if (code < 0x800) {
            put(0xC0 | (code >> 6));
            put(0x80 | (code & 0x3F));
        } else if (code < 0x10000) {
            put(0xE0 | (code >> 12));
            put(0x80 | ((code >> 6) & 0x3F));
            put(0x80 | (code & 0x3F));
        } else {
            put(0xF0 | (code >> 18));
            put(0x80 | ((code >> 12) & 0x3F));
            put(0x80 | ((code >> 6) & 0x3F));
            put(0x80 | (code & 0x3F));
        }
    }

    std::string String() {
        Need('"');
        std::string text;
        while (at_ < text_.size() && text_[at_] != '"') {
            if (text_[at_] != '\\') {
                text += text_[at_++];
                continue;
            }
            if (++at_ >= text_.size())
                Fail("text ends in an escape");
            const char escape = text_[at_++];
            switch (escape) {
                case 'n':
                    text += '\n';
                    break;
                case 'r':
                    text += '\r';
                    break;
                case 't':
                    text += '\t';
                    break;
                case 'b':
                    text += '\b';
                    break;
                case 'f':
                    text += '\f';
                    break;
                case 'u': {
                    unsigned code = Hex4();
                    if (code >= 0xD800 && code < 0xDC00 && TakeWord("\\u"))
                        code = 0x10000 + ((code - 0xD800) << 10) + (Hex4() - 0xDC00);
                    AppendUtf8(text, code);
                    break;
                }
                default:
                    text += escape;
            }
        }
        Need('"');
        return text;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

void DumpString(std::string& out, const std::string& text) {
    static const char kDigits[] = "0123456789abcdef";
    out += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte == '"' || byte == '\\') {
            out += '\\';
            out += c;
        } else if (byte < 0x20) {
            out += "\\u00";
            out += kDigits[byte >> 4];
            out += kDigits[byte & 15];
        } else {
            out += c;
        }
    }
    out += '"';
}

}  // namespace

Json Json::Parse(std::string_view text) {
    return Reader(text).Whole();
}

std::string Json::Dump() const {
    std::string out;
    if (std::holds_alternative<std::monostate>(value_))
        return "null";
    if (const auto* flag = std::get_if<bool>(&value_))
        return *flag ? "true" : "false";
    if (const auto* number = std::get_if<std::int64_t>(&value_))
        return std::to_string(*number);
    if (const auto* text = std::get_if<std::string>(&value_)) {
        DumpString(out, *text);
        return out;
    }
    const char* separator = "";
    if (const auto* array = std::get_if<Array>(&value_)) {
        out += '[';
        for (const Json& element : *array) {
            out += separator;
            out += element.Dump();
            separator = ",";
        }
        return out + ']';
    }
    out += '{';
    for (const auto& [name, value] : std::get<Object>(value_)) {
        out += separator;
        DumpString(out, name);
        out += ':';
        out += value.Dump();
        separator = ",";
    }
    return out + '}';
}

bool Json::Has(std::string_view member) const {
    const auto* object = std::get_if<Object>(&value_);
    return object && object->find(member) != object->end();
}

const Json& Json::Member(std::string_view name) const {
    const auto* object = std::get_if<Object>(&value_);
    if (object) {
        const auto found = object->find(name);
        if (found != object->end())
            return found->second;
    }
    throw std::runtime_error("request has no \"" + std::string(name) + '"');
}

std::int64_t Json::Number(std::string_view member) const {
    const Json& found = Member(member);
    if (const auto* flag = std::get_if<bool>(&found.value_))
        return *flag ? 1 : 0;
    if (const auto* number = std::get_if<std::int64_t>(&found.value_))
        return *number;
    throw std::runtime_error('"' + std::string(member) + "\" is not a number");
}

std::int64_t Json::Number(std::string_view member, std::int64_t otherwise) const {
    return Has(member) ? Number(member) : otherwise;
}

const std::string& Json::String(std::string_view member) const {
    if (const auto* text = std::get_if<std::string>(&Member(member).value_))
        return *text;
    throw std::runtime_error('"' + std::string(member) + "\" is not a text");
}

const Json::Array& Json::List(std::string_view member) const {
    if (const auto* array = std::get_if<Array>(&Member(member).value_))
        return *array;
    throw std::runtime_error('"' + std::string(member) + "\" is not a list");
}

}  // namespace ordalyn::e2e
