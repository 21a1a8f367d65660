// The mirror of all lists whose rows stay in their control.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "desktops/win32/Peer.h"

namespace orx::win32 {

/// A list view that asks for what it paints. It shows rows and scrolls; mouse and keys are the control's business. Rows
/// are told by their position from 0.
class RowsPeer : public Peer {
 public:
  RowsPeer(Control& control, Dialog& dialog, HWND window);

 protected:
  virtual int Count() const = 0;
  virtual const std::string& TextAt(int position) const = 0;
  virtual bool IsSelected(int position) const = 0;
  /// The row that carries the focus mark.
  virtual int FocusedPosition() const = 0;
  /// The user has pressed the mouse on a row, and whether that is the second press right after the first.
  virtual void Pressed(int position, POINT at, bool twice) = 0;
  virtual void KeyPressed(int key, int pageRows) = 0;
  virtual void Typed(char32_t character) = 0;
  /// Assistive software has selected a row, or taken it out of the selection.
  virtual void NativeSelected(int position, bool isSelected) = 0;
  /// The pixels before the text of a row, and what stands there.
  virtual int IndentOf(int) const { return 0; }
  virtual void DrawMark(HDC, const RECT&, int, int) const {}
  /// Whether a row that has no room is reached by scrolling; else its end is left out.
  virtual bool ScrollsAcross() const { return false; }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  LRESULT OnNotify(const NMHDR& notice) override;

  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  int Pixels(int twips) const;
  /// Has the view read all rows anew.
  void MirrorRows();
  /// Shows a row as selected or not, and as the one with the focus; -1: all of them.
  void MirrorState(int position, UINT state, UINT mask) const;
  void Reveal(int position) const;
  /// Makes the one column as wide as the view, or as the widest row that came into view.
  void FillWidth() const;

 private:
  void Press(POINT at, bool twice);
  void GiveText(LVITEMW& item) const;
  std::wstring WideTextAt(int position) const;
  LRESULT Draw(const NMLVCUSTOMDRAW& draw);
  void DrawRow(HDC context, int position);

  int mWidest = 0;
};

}  // namespace orx::win32
