// The native window of a form. It is the gate through which all that the user does reaches the form, and it stays in
// memory while a message of it is dealt with, even when that closes the form.
#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

#include "desktops/win32/Barrier.h"
#include "desktops/win32/ContentPane.h"
#include "desktops/win32/Handles.h"
#include "desktops/win32/Keys.h"
#include "desktops/win32/WindowClasses.h"
#include "forms/FormWindow.h"

namespace orx::win32 {

class Dialog {
 public:
  /// Makes the window, not shown.
  explicit Dialog(Form& form);
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  /// The dialog that a window belongs to, null for windows of others.
  static Dialog* Containing(HWND window);

  HWND Window() const { return mWindow; }
  Form& Owner() const { return mForm; }
  ContentPane& Content() { return mContent; }
  HFONT Face() const { return mFont.get(); }
  /// True when the form has let the window go: it may not be touched any more.
  bool IsRetired() const { return mRetired; }

  /// Runs `act`, which reports to the form. Does nothing while the program itself moves the windows, nor when the form
  /// is not shown.
  void Report(const std::function<void()>& act);
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

  /// While one lives, what happens to the windows is the program's doing and not reported.
  class Quiet {
   public:
    explicit Quiet(Dialog& dialog) : mDialog(dialog) { ++mDialog.mQuiet; }
    ~Quiet() { --mDialog.mQuiet; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

   private:
    Dialog& mDialog;
  };

  /// Stands for a message of the dialog's windows that is being dealt with.
  class Busy {
   public:
    explicit Busy(Dialog& dialog) : mDialog(dialog) { ++mDialog.mDepth; }
    ~Busy() {
      if (--mDialog.mDepth == 0 && mDialog.mRetired) delete &mDialog;
    }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    Dialog& mDialog;
  };

 private:
  ~Dialog();

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
  Form& mForm;
  GdiObject<HFONT> mFont;
  HWND mWindow = nullptr;
  ContentPane mContent;
  HWND mToolTips = nullptr;
  HWND mActiveBefore = nullptr;
  HWND mLastFocus = nullptr;
  std::optional<Barrier> mBarrier;
  std::optional<KeyHook> mHook;
  std::vector<MSG> mDeferred;
  int mQuiet = 0;
  int mDepth = 0;
  bool mRetired = false;
  bool mDestroyed = false;
};

}  // namespace orx::win32
