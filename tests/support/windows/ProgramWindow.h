// Tests of the whole program in memory.
#pragma once

#include <gmock/gmock.h>

#include "support/windows/MemoryProgram.h"

namespace ordalyn::test {

class ProgramWindow : public testing::Test, protected MemoryProgram {};

}  // namespace ordalyn::test
