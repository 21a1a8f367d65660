// Hosts an ActiveX control in a window of a dialog: created at once, shown while there is a window, closed at the end.
#pragma once

#include <windows.h>

#include <oleidl.h>

#include <functional>

#include "com/ControlSite.h"

namespace orx::com {

/// The system's own container windows do not report a click that brings the focus into the control, have no ambient
/// properties, and register window classes for the whole process.
class HostedControl final : private ISiteOwner {
 public:
  /// Creates an in-process control and gives it a site. Throws RunTimeError, naming the step that failed.
  explicit HostedControl(const CLSID& control);
  ~HostedControl();
  HostedControl(const HostedControl&) = delete;
  HostedControl& operator=(const HostedControl&) = delete;

  IUnknown& Object() const { return *mControl.Get(); }

  /// Shows the control over the whole client area of the window. Throws RunTimeError when the control does not come up;
  /// it keeps the window all the same, until Close.
  void Open(HWND area);
  /// Takes the control out of its window, which is about to be destroyed. The control lives on and may be opened again.
  void Close() noexcept;
  /// Fits the control to its window after a change of size.
  void Fit() noexcept;

  /// Moves the focus into the control: back to where it was when only another window had it meanwhile, and to the last
  /// field when Shift+Tab led here.
  void EnterFocus() noexcept;
  /// The focus has moved to another control of the dialog.
  void LeaveFocus() noexcept;
  /// As NativeArea::FilterKey.
  bool FilterKey(MSG& message) noexcept;

  /// Called when a click, or the control itself, has moved the focus into the control.
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
