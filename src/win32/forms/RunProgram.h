// The frame around the whole program: what the process's entry point calls.
#pragma once

#include <functional>

#include "toolkit/Toolkit.h"
#include "win32/common/Win32.h"

namespace ordalyn::win32 {

// Runs the program with the toolkit of Windows and returns the exit code of the process: 0, or
// kProgramFailed when the program could not be started (or ended by an exception later), after a
// message box has said what failed. `instance` holds the icon, see Win32Toolkit.
inline constexpr int kProgramFailed = 1;
int RunProgram(HINSTANCE instance, const std::function<void(toolkit::Toolkit&)>& program) noexcept;

}  // namespace ordalyn::win32
