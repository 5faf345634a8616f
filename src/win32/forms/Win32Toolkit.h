// The toolkit on Windows.
#pragma once

#include "toolkit/Toolkit.h"
#include "win32/common/Resolution.h"
#include "win32/controls/Desktop.h"

namespace ordalyn::win32 {

class Win32Toolkit : public toolkit::Toolkit {
  public:
    // `program` holds the icon (resource 1) of the forms. Outlives all forms.
    explicit Win32Toolkit(HINSTANCE program) : Win32Toolkit(program, Scale(), ScaleOfScreen) {}
    // For tests: another system, and screens that have its resolution or their own.
    Win32Toolkit(HINSTANCE program, const Scale& system);
    Win32Toolkit(HINSTANCE program, const Scale& system, ScaleAt screens);
    Win32Toolkit(const Win32Toolkit&) = delete;
    Win32Toolkit& operator=(const Win32Toolkit&) = delete;

    std::unique_ptr<toolkit::FormPeer> CreateForm(toolkit::Form& form,
                                                  const toolkit::FormStyle& style) override;
    std::unique_ptr<toolkit::LabelPeer> CreateLabel(toolkit::Label& control,
                                                    toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ControlPeer> CreateFrame(toolkit::Control& control,
                                                      toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ControlPeer> CreatePictureBox(
        toolkit::Control& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ControlPeer> CreateCommandButton(
        toolkit::Control& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TogglePeer> CreateCheckBox(toolkit::Toggle& control,
                                                        toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TogglePeer> CreateOptionButton(
        toolkit::Toggle& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TextPeer> CreateTextBox(toolkit::TextBox& control,
                                                     toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ComboBoxPeer> CreateComboBox(toolkit::ComboBox& control, bool editable,
                                                          toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ListViewPeer> CreateListView(toolkit::ListView& control,
                                                          toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::StatusBarPeer> CreateStatusBar(
        toolkit::StatusBar& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ProgressBarPeer> CreateProgressBar(
        toolkit::ProgressBar& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TabStripPeer> CreateTabStrip(toolkit::TabStrip& control,
                                                          toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ToolBarPeer> CreateToolBar(toolkit::ToolBar& control,
                                                        toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TimerPeer> CreateTimer(toolkit::Timer& timer,
                                                    toolkit::FormPeer& form) override;
    std::unique_ptr<toolkit::CanvasPeer> CreateCanvas(toolkit::Canvas& control,
                                                      toolkit::ControlPeer& container) override;

    double TwipsPerPixelX() override { return desktop_.scale.TwipsPerPixelX(); }
    double TwipsPerPixelY() override { return desktop_.scale.TwipsPerPixelY(); }
    toolkit::Rect WorkArea() override;
    std::vector<toolkit::Rect> WorkAreas() override;
    double ScreenTwips(const toolkit::Rect& outer) override;
    toolkit::Size LeastFormSize() override;
    void SetPointer(toolkit::Pointer pointer) override { desktop_.SetCommonPointer(pointer); }
    void Beep() override;
    toolkit::Answer ShowMessage(toolkit::Form* owner, std::string_view text, std::string_view title,
                                toolkit::MessageIcon icon, toolkit::MessageButtons buttons,
                                toolkit::Answer defaultAnswer) override;
    void DoEvents() override;
    void Run() override;
    void Quit() override;

  private:
    Desktop desktop_;
};

}  // namespace ordalyn::win32
