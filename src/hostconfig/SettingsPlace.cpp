#include "hostconfig/SettingsPlace.h"

#include <optional>

#include "base/Attempt.h"
#include "base/Errors.h"

namespace ordalyn {

namespace {

constexpr std::string_view kFileName = "Ordalyn.ini";
// The system's error numbers for what is not there, and for what this user may not read (or cannot,
// as a folder has its name).
constexpr unsigned long kFileNotFound = 2, kPathNotFound = 3, kAccessDenied = 5;

// The variable first: that is what the name means to whoever starts the program with one of their
// own.
std::string UserFolder(platform::Environment& environment) {
    const std::string variable = environment.Variable("APPDATA");
    return variable.empty() ? environment.SpecialFolder("APPDATA") : variable;
}

bool CanNeverBeRead(platform::Files& files, std::string_view path) {
    try {
        files.OpenForReading(path);
    } catch (const FileError& error) {
        return error.Code() == kFileNotFound || error.Code() == kPathNotFound ||
               error.Code() == kAccessDenied;
    }
    return false;
}

// Whether the user's file can be used. A program's file that only cannot be read just now is not
// taken for none: its settings would never be copied afterwards.
bool Begin(platform::Files& files, std::string_view file, std::string_view besideProgram) {
    if (files.Exists(file))
        return true;
    const std::optional<std::string> bytes = platform::ReadAllBytes(files, besideProgram);
    if (!bytes)
        return CanNeverBeRead(files, besideProgram);
    files.Replace(file, *bytes);
    return true;
}

}  // namespace

std::string PlaceOfSettings(const platform::Services& services, std::string_view programFolder) {
    platform::Files& files = services.files;
    std::string besideProgram = std::string(programFolder).append(kFileName);
    if (files.CanWrite(besideProgram))
        return besideProgram;
    const std::string userFolder = UserFolder(services.environment);
    if (userFolder.empty())
        return besideProgram;
    const std::string folder = userFolder + "\\Ordalyn";
    const std::string file = (folder + "\\").append(kFileName);
    bool usable = false;
    Attempt([&] {
        files.MakeFolder(folder);
        usable = files.CanWrite(file) && Begin(files, file, besideProgram);
    });
    return usable ? file : besideProgram;
}

}  // namespace ordalyn
