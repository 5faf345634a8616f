#include "platform/CommandLine.h"

#include "base/Text.h"

namespace ordalyn::platform {

std::string_view BehindProgramName(std::string_view commandLine) {
    bool quoted = false;
    std::size_t at = 0;
    for (; at < commandLine.size(); ++at) {
        const char c = commandLine[at];
        if (c == '"')
            quoted = !quoted;
        if (!quoted && (c == ' ' || c == '\t'))
            break;
    }
    commandLine.remove_prefix(at);
    while (!commandLine.empty() && commandLine.front() == '\t')
        commandLine.remove_prefix(1);
    return TrimBlanks(commandLine);
}

}  // namespace ordalyn::platform
