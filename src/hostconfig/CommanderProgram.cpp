#include "hostconfig/CommanderProgram.h"

#include <string_view>

#include "base/FileNames.h"
#include "base/Text.h"

namespace ordalyn {

namespace {

// The system tells each of its processes in a variable which processor it is for, and one of 32
// bits in another one which the system itself is for when that is not the same.
bool Runs64BitPrograms(platform::Environment& environment) {
    return environment.Variable("PROCESSOR_ARCHITECTURE").find("64") != std::string::npos ||
           !environment.Variable("PROCESSOR_ARCHITEW6432").empty();
}

}  // namespace

std::string FindCommanderProgram(const mAppCommon& common, const platform::Services& services) {
    const std::string& found = common.CommanderFolder();
    if (found.empty() || common.IsNoValue(found))
        return "";
    const std::string folder = mAppCommon::AddBackslash(common.ExpandPath(found));
    // A relative one counts from wherever the program was started: nobody knows what lies there.
    if (FormOfPath(folder) == PathForm::None || HasForeignSign(folder))
        return "";
    for (const std::string_view name : {"TOTALCMD64.EXE", "TOTALCMD.EXE"}) {
        if (name == "TOTALCMD64.EXE" && !Runs64BitPrograms(services.environment))
            continue;
        std::string program = folder + std::string(name);
        if (services.files.Exists(program))
            return program;
    }
    return "";
}

}  // namespace ordalyn
