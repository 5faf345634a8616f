// frmProgress: the small window that shows how far the reading of logs has come.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "toolkit/Form.h"
#include "windows/common/Texts.h"

namespace ordalyn {

class frmProgress : public toolkit::Form {
  public:
    // `cancelled` is run when the user presses Cancel; nothing else happens then.
    frmProgress(toolkit::Toolkit& toolkit, const Texts& texts, std::function<void()> cancelled);

    // The compact form shows the bar alone; the tall one a file's name and the Cancel button too.
    void MakeCompact();
    void MakeTall(std::string_view fileName);

    toolkit::ProgressBar& ProgressBar1;
    toolkit::Label& lblFileName;
    toolkit::CommandButton& cmdCancel;

    // Outer heights of the two forms, twips.
    static constexpr toolkit::Twips kCompactHeight = 870;
    static constexpr toolkit::Twips kTallHeight = 1425;

  private:
    void SetOuterHeight(toolkit::Twips height);
    void LayOut();
};

}  // namespace ordalyn
