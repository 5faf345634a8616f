// A fixture with the sample form.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "SampleForm.h"

namespace ordalyn::test {

class SampleTest : public testing::Test {
  protected:
    template <typename T>
    T& Get(std::string_view name, int index = -1) {
        return form.Get<T>(name, index);
    }
    const Shown& On(const toolkit::Control& control) { return MemoryToolkit::Of(control); }

    MemoryToolkit kit;
    toolkit::Form form{kit, kSampleDesign};
};

}  // namespace ordalyn::test
