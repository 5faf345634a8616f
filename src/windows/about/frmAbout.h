// frmAbout: the about box.
#pragma once

#include "platform/Platform.h"
#include "toolkit/Form.h"
#include "windows/common/Texts.h"

namespace ordalyn {

class frmAbout : public toolkit::Form {
  public:
    frmAbout(toolkit::Toolkit& toolkit, platform::Shell& shell, const Texts& texts);
};

}  // namespace ordalyn
