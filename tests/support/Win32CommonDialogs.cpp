#include "tests/support/Win32CommonDialogs.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <colordlg.h>
#include <dlgs.h>

#include "desktops/win32/PlatformDialog.h"
#include "desktops/win32/Text.h"

namespace orx::test {
namespace {

using win32::Widened;

/// Selects an entry of a list of the dialog for fonts, as by the mouse.
void SelectEntry(HWND dialog, int list, int index) {
  const HWND box = GetDlgItem(dialog, list);
  SendMessageW(box, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(list, CBN_SELCHANGE), reinterpret_cast<LPARAM>(box));
}

void SelectFont(HWND dialog, int list, const std::string& text) {
  const std::wstring wanted = Widened(text);
  const LRESULT index = SendMessageW(GetDlgItem(dialog, list), CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(wanted.c_str()));
  EXPECT_NE(CB_ERR, index) << text;
  SelectEntry(dialog, list, static_cast<int>(index));
}

void Tick(HWND dialog, int box, bool isTicked) {
  const HWND window = GetDlgItem(dialog, box);
  if ((SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED) != isTicked) SendMessageW(window, BM_CLICK, 0, 0);
}

void SelectColor(HWND dialog, COLORREF color) {
  const HWND box = GetDlgItem(dialog, cmb4);
  const LRESULT count = SendMessageW(box, CB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i)
    if (static_cast<COLORREF>(SendMessageW(box, CB_GETITEMDATA, static_cast<WPARAM>(i), 0)) == color)
      return SelectEntry(dialog, cmb4, static_cast<int>(i));
  ADD_FAILURE() << "no colour " << color;
}

struct Search {
  int Id;
  HWND Found;
};
BOOL CALLBACK SeeControl(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<Search*>(data);
  if (GetDlgCtrlID(window) == search.Id) search.Found = window;
  return !search.Found;
}

/// The control of a dialog of the platform, however deep it stands.
HWND Inside(HWND dialog, int id) {
  Search search = {id, nullptr};
  EnumChildWindows(dialog, &SeeControl, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

void Enter(HWND field, const std::string& text) {
  SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Widened(text).c_str()));
}

void PickFilter(HWND box, int index) {
  SendMessageW(box, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  for (const int code : {CBN_SELENDOK, CBN_SELCHANGE})
    SendMessageW(GetParent(box), WM_COMMAND, MAKEWPARAM(cmb1, code), reinterpret_cast<LPARAM>(box));
}

}  // namespace

void PickFilesInDialog(const Picked& files) {
  const HWND dialog = win32::OpenPlatformDialog();
  if (!dialog) return;
  if (files.Filter != 0) PickFilter(Inside(dialog, cmb1), files.Filter - 1);
  const HWND field = Inside(dialog, cmb13) ? Inside(dialog, cmb13) : Inside(dialog, edt1);
  if (files.Names.size() == 1) {
    Enter(field, files.Folder + "\\" + files.Names.front());
  } else {
    Enter(field, files.Folder);
    SendMessageW(dialog, WM_COMMAND, IDOK, 0);
    std::string names;
    for (const std::string& name : files.Names) names += "\"" + name + "\" ";
    Enter(field, names);
  }
  PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

void PickColorInDialog(Color color) {
  const HWND dialog = win32::OpenPlatformDialog();
  if (!dialog) return;
  for (const auto& [id, part] : {std::pair{COLOR_RED, color.Red}, {COLOR_GREEN, color.Green}, {COLOR_BLUE, color.Blue}})
    Enter(GetDlgItem(dialog, id), std::to_string(part));
  PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

void PickFontInDialog(const ColoredFont& font) {
  const HWND dialog = win32::OpenPlatformDialog();
  if (!dialog) return;
  SelectFont(dialog, cmb1, font.Face.Name);
  SelectEntry(dialog, cmb2, (font.Face.Bold ? 1 : 0) * 2 + (font.Face.Italic ? 1 : 0));
  SelectFont(dialog, cmb3, std::to_string(static_cast<int>(font.Face.Size)));
  Tick(dialog, chx1, font.Face.Strikethrough);
  Tick(dialog, chx2, font.Face.Underline);
  SelectColor(dialog, RGB(font.Color.Red, font.Color.Green, font.Color.Blue));
  PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

void CancelDialog() {
  if (const HWND dialog = win32::OpenPlatformDialog()) PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

}  // namespace orx::test
