// What the controls of a dialog stand on. While all of the form fits on the screen it is a plain area; when the form is
// higher than its window, the pinned controls stay at the bottom and the others scroll above them.
#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "desktops/win32/Subclass.h"

namespace orx {
class Control;
class Form;
}  // namespace orx

namespace orx::win32 {

class Ground {
 public:
  explicit Ground(const Form& form) : mForm(form) {}
  Ground(const Ground&) = delete;
  Ground& operator=(const Ground&) = delete;

  /// Makes the scrolled area in the dialog's window.
  void Open(HWND dialog);
  /// The window in which a control that stands directly in the form is to be made.
  HWND HomeOf(const Control& control) const;
  /// Takes note of the window of such a control, so that Arrange can see to it.
  void Add(const Control& control, HWND window) { mStanding.push_back({&control, window}); }
  /// The place of any control in its parent, in pixels.
  RECT PlaceOf(const Control& control) const;

  /// The client size of the window: the shown part of the form and the scroll bar beside it.
  SIZE WindowSize() const;
  /// What of that size is the scroll bar.
  int ExtraWidth() const;
  /// All controls have been added: from now on Arrange does its work.
  void Complete() { mIsComplete = true; }
  /// The form has let its window go, controls and all.
  void Abandon();
  /// Sets the scrolled area and the pinned controls to the form's present sizes.
  void Arrange();
  /// Scrolls until the window can be seen.
  void Reveal(HWND window);
  /// Turns of the mouse wheel, in the platform's unit.
  void Wheel(int delta);

 private:
  struct Standing {
    const orx::Control* Control;
    HWND Window;
  };

  static LRESULT CALLBACK PaneProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                   DWORD_PTR ground);
  int Pixels(int twips) const;
  SIZE Missing() const;
  /// The upper edge of the pinned controls while nothing scrolls.
  int PinnedTop() const;
  SIZE BodySize() const;
  void SetBar(int bar, int whole, int seen);
  void SetBars(SIZE pane);
  void ScrollBy(int bar, UINT code);
  void ScrollTo(POINT offset);

  const Form& mForm;
  HWND mDialog = nullptr;
  HWND mPane = nullptr;
  POINT mOffset = {};
  std::vector<Standing> mStanding;
  std::optional<Subclass> mSubclass;
  bool mIsComplete = false;
};

}  // namespace orx::win32
