// The base of all native mirrors: place, visibility, focus, name and the rest that windows of every kind share.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "desktops/win32/Accessible.h"
#include "desktops/win32/Dialog.h"
#include "desktops/win32/Subclass.h"
#include "forms/Control.h"

namespace orx::win32 {

/// Receives the messages of its window before the window does. The window belongs to its parent window and may outlive
/// the peer.
class Peer : public ControlPeer {
 public:
  /// `focus` is the window that takes the focus and the keys for the control; null: `window` itself.
  Peer(Control& control, Dialog& dialog, HWND window, HWND focus = nullptr);
  ~Peer() override;
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  void Update(Aspect aspect) final;
  void TakeFocus() final;

  /// The peer that the window, or one of its parents, belongs to; null when there is none.
  static Peer* Holding(HWND window);
  /// Restores the focus when the dialog becomes the active window; `last` had it before.
  void RestoreFocus(HWND last);

  const Control& Subject() const { return mControl; }
  HWND Window() const { return mWindow; }
  HWND FocusWindow() const { return mFocus; }
  /// True for key messages that the control keeps, whatever they mean to the dialog.
  virtual bool WantsKey(const MSG&) { return false; }
  /// Handles a key message in place of the window that it is for. False when that window is to get it.
  virtual bool UsesKey(const MSG&) { return false; }
  /// True when the control has no use for arrow keys, so that they move the focus.
  virtual bool LeavesArrowKeys() const { return false; }
  /// True when this window holds windows of others, which may take the focus on their own.
  virtual bool HoldsForeignWindows() const { return false; }
  /// True when Enter makes a line break here, unless the form has a use for it.
  virtual bool TakesReturn() const { return false; }

 protected:
  /// Mirrors one aspect. Each kind of control handles its own aspects and leaves the others to this.
  virtual void Mirror(Aspect aspect);
  /// Handles a message of the window or of the focus window. Once the form has been told of something, this object and
  /// the form may be gone; see Dialog::IsRetired.
  virtual LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  /// Called with the code of each notification of the window.
  virtual void OnCommand(int) {}
  virtual LRESULT OnNotify(const NMHDR&) { return 0; }
  /// What SetFocus does; by default the focus window takes the focus.
  virtual void FocusNative() { SetFocus(mFocus); }

  Dialog& Owner() const { return mDialog; }
  void Report(const std::function<void()>& act) const { mDialog.Report(act); }
  /// The width and height of the control's place in pixels.
  SIZE PixelSize() const;
  /// What of the control's text is cut off, as a whole, for a tool tip unless the control has one of its own; empty for
  /// nothing.
  void CutText(const std::string& whole);
  /// Sets the text of a window when it differs.
  static void ShowText(HWND window, const std::string& text);
  /// Asks the form for the focus. False when the field that would lose it keeps it.
  bool FocusIsGranted();

 private:
  static LRESULT CALLBACK SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR peer);
  void FocusCame();
  void MirrorPlace();
  /// Lets the content pane follow a control that stands directly in it.
  void ArrangeContent();
  void MirrorEnabled();
  void MirrorName();
  void MirrorToolTip();
  void Annotate(Spoken what, const std::string& text);
  void KeepFocus() const;

  Control& mControl;
  Dialog& mDialog;
  HWND mWindow;
  HWND mFocus;
  Subclass mSubclass;
  Subclass mFocusSubclass;
  ATOM mName;
  bool mIsAnnotated = false;
  std::string mCutText;
};

/// The peer of a control, null while its form has no window.
inline Peer* PeerOf(const Control& control) {
  return static_cast<Peer*>(control.Peer());
}

}  // namespace orx::win32
