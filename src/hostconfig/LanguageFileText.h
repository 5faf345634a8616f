// LanguageFileText: a language file of the file manager, to be read line by line. One without a
// byte order mark is UTF-8 when all of it is and it has characters beyond ASCII; else it is in the
// code page that its own line "codepage=" names, and in the system code page when it names none. A
// Greek file is read as Greek on a German system.
#pragma once

#include <memory>
#include <string_view>

#include "platform/Platform.h"

namespace ordalyn {

// The file's text, with a mark that says what it is in. Throws FileError.
std::unique_ptr<platform::ReadableFile> OpenLanguageFile(platform::Files& files,
                                                         platform::CodePages& codePages,
                                                         std::string_view path);

}  // namespace ordalyn
