#include "log/LogLine.h"

#include "base/Errors.h"
#include "base/Text.h"

namespace ordalyn {

std::string CommentSource(std::string_view line) {
    return "; " + std::string(line.substr(1));
}

namespace {

bool HasTimeText(std::string_view source) {
    const std::size_t blank = FirstBlank(source);
    return blank != 0 && blank != source.size();
}

}  // namespace

std::string_view TimeText(std::string_view source) {
    return HasTimeText(source) ? WithoutLastCharacter(source.substr(0, FirstBlank(source)))
                               : std::string_view();
}

std::string_view OperationText(std::string_view source) {
    return HasTimeText(source) ? source.substr(FirstBlank(source) + 1) : source;
}

}  // namespace ordalyn
