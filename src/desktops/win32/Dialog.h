// The native window of a form. It reports to the form what the user does.
#pragma once

#include <windows.h>

#include <chrono>
#include <optional>
#include <vector>

#include "desktops/win32/Barrier.h"
#include "desktops/win32/ContentPane.h"
#include "desktops/win32/Handles.h"
#include "desktops/win32/Keys.h"
#include "desktops/win32/WindowClasses.h"
#include "forms/FormGate.h"
#include "forms/FormWindow.h"

namespace orx::win32 {

class Dialog final : public FormGate {
 public:
  /// Makes the window, not shown.
  explicit Dialog(Form& form);

  /// The dialog that a window belongs to, null for windows of others.
  static Dialog* Containing(HWND window);

  HWND Window() const { return mWindow; }
  ContentPane& Content() { return mContent; }
  HFONT Face() const { return mFont.get(); }

  /// Hands a key message to the form. True when it is dealt with.
  bool ReportKey(const MSG& message);
  /// Changes a key message that a host pumps into one which brings the key here when it is dispatched.
  void Defer(MSG& message);
  /// Gives the focus to the control that has it in the form, when the window is the active one.
  void FocusActive();

  /// Puts the window at the form's place; sizes are those of the content pane.
  void UpdatePlace();
  void UpdateCaption();
  /// Modal windows put all other windows of the thread out of reach until they are hidden.
  void Show(ShowMode mode, HWND owner);
  void Hide();
  /// Shows a text while the mouse rests on the window; an empty one takes it away.
  void ToolTip(HWND tool, const std::string& text);
  /// Has the form show what it keeps back, once, after that time.
  void CallShowUpdates(std::chrono::milliseconds after);
  /// Has the platform drag the lower edge until the mouse button is released.
  void DragBottomEdge();
  /// Cuts the window off from its form and destroys it as soon as no message of it is dealt with.
  void Retire();

 private:
  ~Dialog();
  void LetGo() override { delete this; }

  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  friend class WindowClasses;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void WatchActivation(bool isActive);
  void Destroyed();
  /// Hands a window that `owner` owns on to the owner of that.
  static BOOL CALLBACK ReleaseFrom(HWND window, LPARAM owner);
  bool NoticeFocus();
  void Sized();
  void Moved();
  bool ShowPointer();
  void ReportMouse();
  /// Where the height alone can be changed, only the lower edge takes hold of the mouse.
  LRESULT HitTest(WPARAM wParam, LPARAM lParam) const;
  void LimitSize(MINMAXINFO& limits) const;
  void Redeliver();
  DWORD Style() const;

  /// First, so that it goes last: the classes are unregistered after the window is destroyed.
  WindowClasses mClasses;
  GdiObject<HFONT> mFont;
  HWND mWindow = nullptr;
  ContentPane mContent;
  HWND mToolTips = nullptr;
  HWND mActiveBefore = nullptr;
  HWND mLastFocus = nullptr;
  std::optional<Barrier> mBarrier;
  std::optional<KeyHook> mHook;
  std::vector<MSG> mDeferred;
  bool mDestroyed = false;
};

}  // namespace orx::win32
