// A control of somebody else's in a window of a dialog: made at once, shown while there is a window, closed at the end.
#pragma once

#include <windows.h>

#include <oleidl.h>

#include <functional>

#include "com/ControlSite.h"

namespace orx::com {

/// The system's own container windows tell nobody when a click brings the focus into the control, know no ambient
/// properties, and register window classes for the whole process. Hence this one.
class HostedControl final : private ISiteOwner {
 public:
  /// Makes an in-process control and puts it on a site. Throws RunTimeError with the step that failed.
  explicit HostedControl(const CLSID& control);
  ~HostedControl();
  HostedControl(const HostedControl&) = delete;
  HostedControl& operator=(const HostedControl&) = delete;

  IUnknown& Object() const { return *mControl.Get(); }

  /// Shows the control all over the client area of the window. Throws RunTimeError when the control does not come up;
  /// the window is the control's all the same, until Close.
  void Open(HWND area);
  /// Takes the control out of its window, which is about to go. The control lives on and may be opened again.
  void Close() noexcept;
  /// The window was sized: fits the control to it.
  void Fit() noexcept;

  /// Brings the focus into the control: to where it was when only the dialog was left since; from behind when Shift+Tab
  /// has led here.
  void EnterFocus() noexcept;
  /// The focus has left the control for another of the dialog.
  void LeaveFocus() noexcept;
  /// As NativeArea::FilterKey.
  bool FilterKey(MSG& message) noexcept;

  /// Told when a click or the control itself has brought the focus there.
  std::function<void()> FocusCameByItself;

 private:
  HWND Area() const override { return mArea; }
  void FocusCame() override;
  void PlaceAsked() override { Fit(); }
  HRESULT Do(LONG verb, MSG* message) noexcept;

  ComPtr<ControlSite> mSite;
  ComPtr<IOleObject> mControl;
  HWND mArea = nullptr;
  HWND mLastFocus = nullptr;
  bool mEntering = false;
};

}  // namespace orx::com
