#include "platform/ShellTarget.h"

#include <algorithm>

#include "base/Errors.h"
#include "base/FileNames.h"
#include "base/Text.h"

namespace ordalyn::platform {

namespace {

bool IsFullPath(std::string_view path) {
    const bool ofDrive = path.size() > 3 && path[1] == ':' && path[2] == '\\';
    return ofDrive || path.starts_with("\\\\");
}

// One argument of a command line. Programs differ in what a backslash before a quotation mark
// means: for some it takes the mark's meaning away, and what follows would belong to the argument.
// So none stands there: the one that ends a drive's root is left without marks, which it does not
// need.
std::string Argument(std::string_view path) {
    const std::string_view bare = WithoutEndingBackslash(path);
    if (bare.empty() || bare.back() == '\\')
        return std::string(bare.empty() ? path : bare);
    return "\"" + std::string(bare) + "\"";
}

}  // namespace

ShellTarget ShellTarget::HelpFile(std::string_view path) {
    // Before a path that may be longer than the system's ordinary limit.
    constexpr std::string_view kLong = "\\\\?\\";
    const std::string_view plain = path.starts_with(kLong) ? path.substr(kLong.size()) : path;
    if (!IsFullPath(plain) || HasForeignSign(plain) ||
        !EqualsIgnoreCase(GetFileExtension(GetFileName(path)), "chm"))
        throw InvalidPropertyValue("help file");
    return ShellTarget(path);
}

ShellTarget ShellTarget::HelpPage(std::string_view path, std::string_view page) {
    const bool plain = !page.empty() && std::all_of(page.begin(), page.end(),
                                                    [](char c) { return c >= 'a' && c <= 'z'; });
    if (!plain)
        throw InvalidPropertyValue("help page");
    ShellTarget target = HelpFile(path);
    target.deed_ = Deed::ShowPage;
    target.arguments_ = std::string(page) + ".html";
    return target;
}

ShellTarget ShellTarget::FileManager(std::string_view program, std::string_view path) {
    const std::string name = GetFileName(program);
    const bool known =
        EqualsIgnoreCase(name, "TOTALCMD64.EXE") || EqualsIgnoreCase(name, "TOTALCMD.EXE");
    if (!known || !IsFullPath(program) || HasForeignSign(program))
        throw InvalidPropertyValue("file manager");
    if (FormOfPath(path) == PathForm::None || HasForeignSign(path))
        throw InvalidPropertyValue("path for the file manager");
    ShellTarget target(program);
    target.arguments_ = "/O /A /S /L=" + Argument(path);
    return target;
}

ShellTarget ShellTarget::Selected(std::string_view path) {
    const PathForm form = FormOfPath(path);
    if ((form != PathForm::Drive && form != PathForm::Network) || HasForeignSign(path))
        throw InvalidPropertyValue("path for the shell");
    ShellTarget target(WithoutEndingBackslash(path));
    target.deed_ = Deed::Select;
    return target;
}

}  // namespace ordalyn::platform
