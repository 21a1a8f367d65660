// The native window of a form. It reports to the form what the user does.
#pragma once

#include <windows.h>

#include <chrono>
#include <optional>
#include <vector>

#include "desktops/win32/ContentPane.h"
#include "desktops/win32/Handles.h"
#include "desktops/win32/Keys.h"
#include "desktops/win32/ModalBarrier.h"
#include "desktops/win32/ToolTips.h"
#include "desktops/win32/WindowClasses.h"
#include "forms/FormGate.h"
#include "forms/FormWindow.h"

namespace orx::win32 {

class Dialog final : public FormGate {
 public:
  /// Makes the window, not shown and without its content pane. Throws std::runtime_error when the platform refuses it.
  explicit Dialog(Form& form);

  /// The dialog that a window belongs to, null for windows that are not ours.
  static Dialog* Containing(HWND window);

  HWND Window() const { return mWindow; }
  ContentPane& Content() { return mContent; }
  HFONT Face() const { return mFont.get(); }

  /// Hands a key message to the form. True when it is dealt with.
  bool ReportKey(const MSG& message);
  /// Turns a key message in the host's message loop into one that brings the key here when it is dispatched.
  void Defer(MSG& message);
  /// Gives the focus to the control that has it in the form, when the window is the active one.
  void FocusActive();

  /// Puts the window at the form's place; sizes are those of the content pane.
  void UpdatePlace();
  void UpdateCaption();
  /// A modal window keeps the user from all other windows of the thread until it is hidden.
  void Show(ShowMode mode, HWND owner);
  void Hide();
  /// Sets the text that is shown while the mouse rests on the window; an empty one removes it.
  void ToolTip(HWND tool, const std::string& text);
  /// Has the form show, once and after that time, the changes that it holds back.
  void CallShowUpdates(std::chrono::milliseconds after);
  /// Has the platform drag the lower edge until the mouse button is released.
  void DragBottomEdge();
  /// Cuts the dialog off from its form and destroys it as soon as none of its messages is being handled.
  void Retire();

 private:
  ~Dialog();
  void LetGo() override { delete this; }

  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  friend class WindowClasses;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void WatchActivation(bool isActive);
  void Destroyed();
  /// Passes a window that `owner` owns on to the owner's own owner.
  static BOOL CALLBACK ReleaseFrom(HWND window, LPARAM owner);
  bool NoticeFocus();
  void ColorsChanged(UINT message, WPARAM wParam, LPARAM lParam);
  static BOOL CALLBACK PassOn(HWND child, LPARAM message);
  void Sized();
  void Moved();
  bool ShowPointer(HWND over, UINT message);
  void ReportMouse();
  /// Where only the height can be changed, only the lower edge can be dragged.
  LRESULT HitTest(WPARAM wParam, LPARAM lParam) const;
  void LimitSize(MINMAXINFO& limits) const;
  void Redeliver();
  DWORD Style() const;

  /// The first member, so that it is destroyed last: classes are unregistered only after the window is gone.
  WindowClasses mClasses;
  GdiObject<HFONT> mFont;
  HWND mWindow = nullptr;
  ContentPane mContent;
  ToolTips mToolTips;
  HWND mActiveBefore = nullptr;
  HWND mLastFocus = nullptr;
  std::optional<ModalBarrier> mBarrier;
  std::optional<KeyHook> mHook;
  std::vector<MSG> mDeferred;
  bool mDestroyed = false;
};

}  // namespace orx::win32
