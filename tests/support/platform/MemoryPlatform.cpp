#include "support/platform/MemoryPlatform.h"

namespace ordalyn::test {

MemoryPlatform::MemoryPlatform()
    : ansiProfile(MemoryProfile::Form::Ansi, files, codePages),
      unicodeProfile(MemoryProfile::Form::Unicode, files, codePages),
      services{ansiProfile, unicodeProfile, codePages, files,    environment,
               locale,      shell,          clipboard, registry, dialogs} {}

}  // namespace ordalyn::test
