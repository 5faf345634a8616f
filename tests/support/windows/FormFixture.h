// The settings room over a system in memory, and forms in memory that are shown by it.
#pragma once

#include "support/settings/SettingsFixture.h"
#include "support/toolkit/MemoryToolkit.h"
#include "windows/common/FormLanguage.h"

namespace ordalyn::test {

class FormFixture : public SettingsFixture {
  protected:
    MemoryToolkit toolkit;
    FormLanguage language{settings, strings};
};

}  // namespace ordalyn::test
