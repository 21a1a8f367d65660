// The part of a dialog that holds its controls, arranged as forms/Arrangement.h works it out: the body, which scrolls
// where the screen is too small for the form, and the pinned controls below it.
#pragma once

#include <windows.h>

#include <optional>

#include "desktops/win32/Subclass.h"
#include "forms/Arrangement.h"

namespace orx::win32 {

class ContentPane {
 public:
  explicit ContentPane(const Form& form) : mForm(form), mArrangement(Current()) {}
  ContentPane(const ContentPane&) = delete;
  ContentPane& operator=(const ContentPane&) = delete;

  /// Makes the window of the body in the dialog's window.
  void Open(HWND dialog);
  /// The window in which a control that stands directly in the form is to be made.
  HWND HomeOf(const Control& control) const;
  /// The place of any control in its parent, in pixels.
  RECT PlaceOf(const Control& control) const;

  /// The client size of the window: the shown part of the form and the scroll bar beside it.
  SIZE WindowSize() const;
  /// What of that size is the scroll bar.
  int ExtraWidth() const { return Current().ExtraWidth; }
  /// All controls have their windows: from now on Arrange does its work.
  void Complete() { mIsComplete = true; }
  /// The form has let its window go, controls and all.
  void Abandon() { mIsComplete = false; }
  /// Sets the body and the pinned controls to the form's present sizes.
  void Arrange();
  /// Scrolls until the window can be seen.
  void Reveal(HWND window);
  /// Turns of the mouse wheel, in the platform's unit.
  void Wheel(int delta);

 private:
  static LRESULT CALLBACK PaneProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                   DWORD_PTR pane);
  Arrangement Current() const;
  int StepPixels() const;
  void ShowRange(int bar, const ScrollRange& range) const;
  void ScrollBy(int bar, UINT code);
  void ScrollTo(Point position);

  const Form& mForm;
  HWND mDialog = nullptr;
  HWND mPane = nullptr;
  Arrangement mArrangement;
  /// How far the body is scrolled, in pixels.
  Point mPosition;
  std::optional<Subclass> mSubclass;
  bool mIsComplete = false;
};

}  // namespace orx::win32
