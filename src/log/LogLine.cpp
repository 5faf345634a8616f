#include "log/LogLine.h"

#include "base/Errors.h"
#include "base/Text.h"

namespace ordalyn {

std::string CommentSource(std::string_view line) {
    return "; " + std::string(line.substr(1));
}

std::string_view TimeText(std::string_view source) {
    if (!HasTimeText(source))
        throw MalformedText("An entry of the log has no time");
    return WithoutLastCharacter(source.substr(0, FirstBlank(source)));
}

std::string_view OperationText(std::string_view source) {
    const std::size_t blank = FirstBlank(source);
    return blank == source.size() ? source : source.substr(blank + 1);
}

}  // namespace ordalyn
