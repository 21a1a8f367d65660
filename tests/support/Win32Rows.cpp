#include "tests/support/Win32Rows.h"

#include <windows.h>

#include <commctrl.h>

#include "desktops/win32/Text.h"

namespace orx::test {

std::string RowText(HWND list, int position) {
  wchar_t text[260] = {};
  LVITEMW item = {};
  item.pszText = text;
  item.cchTextMax = static_cast<int>(std::size(text));
  SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&item));
  return win32::Narrowed(text);
}

int RowWith(HWND list, LPARAM state) {
  return static_cast<int>(SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), state));
}

std::set<int> SelectedRows(HWND list) {
  std::set<int> rows;
  for (LRESULT row = -1; (row = SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0;)
    rows.insert(static_cast<int>(row));
  return rows;
}

bool SeesRowAt(HWND list, int position) {
  RECT place = {LVIR_BOUNDS, 0, 0, 0};
  if (position < 0 ||
      !SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&place)))
    return false;
  RECT client = {};
  GetClientRect(list, &client);
  return place.top >= 0 && place.bottom <= client.bottom;
}

std::string ShownTab(HWND tabs) {
  wchar_t text[200] = {};
  TCITEMW item = {};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  item.cchTextMax = static_cast<int>(std::size(text));
  SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(SendMessageW(tabs, TCM_GETCURSEL, 0, 0)),
               reinterpret_cast<LPARAM>(&item));
  return win32::Narrowed(text);
}

}  // namespace orx::test
