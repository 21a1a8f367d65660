// The mirror of all lists whose rows stay in their control.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "desktops/win32/Peer.h"
#include "desktops/win32/Peers.h"
#include "forms/RowList.h"
#include "forms/RowMeasures.h"

namespace orx::win32 {

/// A list view that reads only what it paints. It shows rows and scrolls; mouse and keys are handled in the control.
class RowsPeer : public Peer {
 public:
  RowsPeer(Control& control, RowList& rows, Dialog& dialog, HWND window);

 protected:
  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  LRESULT OnNotify(const NMHDR& notice) override;

  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  /// Makes the view read all rows again.
  void MirrorRows();
  /// Shows a row as selected or not, and as the one with the focus; -1: all of them.
  void MirrorState(int position, UINT state, UINT mask) const;
  void Reveal(int position) const;
  /// Makes the one column as wide as the view, or as the widest row that came into view.
  void FillWidth() const;

 private:
  void Press(POINT at, bool isSecond);
  void PressKey(int virtualKey);
  void Type(wchar_t unit);
  void NativeSelected(int position, bool isSelected);
  void GiveText(LVITEMW& item) const;
  std::wstring WideTextAt(int position) const;
  LRESULT Draw(const NMLVCUSTOMDRAW& draw);
  void DrawRow(HDC context, int position);
  void DrawMark(HDC context, const RECT& place, int position, int ink) const;

  RowList& mRows;
  RowMeasures mMeasures;
  int mWidest = 0;
};

/// Makes the window of such a list; `style` comes on top of the styles that all of them have.
HWND MakeRowsWindow(const WindowSite& site, DWORD style);

}  // namespace orx::win32
