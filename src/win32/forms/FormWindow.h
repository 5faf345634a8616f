// Forms: top-level windows. A form remembers the focus while another window is active, keeps its
// bounds as they were set as long as the pixels are the same, and reports what the system changes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/Form.h"
#include "win32/common/Handles.h"
#include "win32/controls/Window.h"
#include "win32/forms/FormMenus.h"

namespace ordalyn::win32 {

class FormsBlocked;

class FormWindow : public Peer<toolkit::FormPeer>, public FormHost {
  public:
    FormWindow(Desktop& desktop, toolkit::Form& form, const toolkit::FormStyle& style);
    ~FormWindow() override;

    toolkit::Form& Form() const { return form_; }
    HWND FormHandle() const override { return handle(); }
    bool Resizable() const override { return style_.resizable; }
    void FlushMenus() { menus_.Flush(handle()); }

    toolkit::Rect CurrentBounds();  // outer bounds now
    // The resolution that a form with these outer bounds has. `itself`, when there is one, is asked
    // before the other forms.
    static Scale ScaleOfPlace(const Desktop& desktop, const toolkit::Rect& outer,
                              const FormWindow* itself = nullptr);

    // Focus and keys. The cues are those that the system hides from users of the mouse.
    void ShowKeyboardCues(WORD cues);
    void RememberFocus(HWND window) override { focus_ = window; }
    void ControlIsPressed() override { pressedFromOutside_ = GetActiveWindow() != handle(); }
    void FocusWasLost() override;
    void FocusFirstTabStop();
    void ShowDefaultButton(CommandButtonWindow* button) override;
    void SetToolTipOf(HWND window, std::string_view text) override;

    // ControlPeer
    toolkit::Rect Place(const toolkit::Rect& wanted) override;
    void SetContainer(toolkit::ControlPeer&) override {}
    void SetCaption(std::string_view caption) override;
    void SetVisible(bool visible) override;
    toolkit::Rect SetFont(const toolkit::Font& font) override;
    void SetBorder(toolkit::BorderStyle, toolkit::Appearance) override {}
    void SetReadingOrder(bool rightToLeft, toolkit::Alignment alignment) override;
    void TakeFocus() override;
    // MenuPeer
    void RebuildMenus() override;
    void UpdateMenuItem(toolkit::MenuItem& item) override;
    void PopUp(toolkit::MenuItem& item, const toolkit::Rect* below) override;
    // FormPeer
    toolkit::Size ClientSize() override;
    toolkit::Rect OuterFor(const toolkit::Size& client) override;
    void Show(toolkit::FormPeer* owner) override;
    void RunModal(toolkit::FormPeer* owner) override;
    void EndModal() override;
    void SetWindowState(toolkit::WindowState state) override;
    toolkit::WindowState CurrentWindowState() override;
    toolkit::Rect WorkArea() override;
    void ShortenCaptionFrom(std::size_t start) override { pathInCaption_ = start; }
    std::uintptr_t Handle() override { return reinterpret_cast<std::uintptr_t>(handle()); }
    void SetDefaultButton(toolkit::ControlPeer* button) override;
    void ShowKeyboardCues() override { ShowKeyboardCues(UISF_HIDEFOCUS | UISF_HIDEACCEL); }
    void Close() override;

    // Window
    toolkit::Rect ShowRescaled() override { return SetFont(form_.Font()); }

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    struct ModalRun {
        FormsBlocked* blocked;
        bool ended = false;
    };
    // Where a form is made before anything places it.
    struct Birthplace {
        Scale scale;
        POINT corner;
    };
    static Look LookOf(const Desktop& desktop, const toolkit::FormStyle& style);
    static Birthplace BirthplaceOf(const Desktop& desktop);
    static const FormWindow* FormInFront(const Desktop& desktop);
    bool CanBeSeen() const;
    void FlushMenusLater();
    // Dialogs and tool windows have none.
    void ShowIcons();
    // The form comes to a screen of another resolution; the controls follow with ShowRescaledAll.
    void TakeScale(const Scale& scale);
    void ShowRescaledAll();
    void ResolutionChanged(const Scale& now, const RECT& proposed);
    void KeepTwips(const toolkit::Rect& before);
    RECT WindowRectFor(const toolkit::Rect& outer);
    toolkit::Rect TwipsOf(const RECT& window);
    toolkit::Rect TwipsOf(const RECT& window, const toolkit::Rect& known, const RECT& knownWindow);
    toolkit::Rect OuterOf(const RECT& window);
    void PlaceWhenNormal(const RECT& window);
    void LimitSize(MINMAXINFO& limits) const;
    void ReportBounds();
    int RoomForCaption() const;
    void FitCaption();
    std::optional<LRESULT> CaptionAsked(UINT message, WPARAM wParam, LPARAM lParam);
    void ActivationChanged(bool active, bool minimised);
    void RestoreFocus();
    void TakeDroppedFiles(DroppedFiles dropped);
    void AskForHelpOnMessage();
    void SystemColorsChanged(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT CommandChosen(UINT message, WPARAM wParam, LPARAM lParam);

    toolkit::Form& form_;
    toolkit::FormStyle style_;
    FormMenus menus_;
    // Where the form was put last, and the window rectangle that this gave.
    toolkit::Rect placed_;
    RECT placedWindow_ = {};
    bool placing_ = false;
    bool following_ = false;  // to another resolution
    bool rescaled_ = false;   // since the form was last told of its bounds
    Icon icons_[2];
    std::string caption_;
    std::size_t pathInCaption_ = std::string::npos;  // where one begins that can be shortened
    std::wstring captionOnScreen_;
    bool paintingFrame_ = false;
    bool closing_ = false;
    toolkit::WindowState stateWhenShown_ = toolkit::WindowState::Normal;
    HWND focus_ = nullptr;  // what had the focus, or is to get it
    bool activationPosted_ = false;
    bool menusPosted_ = false;
    bool pressedFromOutside_ = false;  // on a control, while another window was the active one
    bool helpWanted_ = false;
    CommandButtonWindow* defaultButton_ = nullptr;
    HWND toolTips_ = nullptr;  // owned by the form's window, goes with it
    ModalRun* modal_ = nullptr;
};

}  // namespace ordalyn::win32
