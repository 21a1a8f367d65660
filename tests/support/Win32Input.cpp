#include "tests/support/Win32Input.h"

#include <gtest/gtest.h>

#include <cstring>

namespace orx::test {

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

LONG HeightOf(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  return client.bottom;
}

void Activate(HWND window) {
  const HWND root = GetAncestor(window, GA_ROOT);
  if (GetActiveWindow() != root && IsWindowEnabled(root)) SetActiveWindow(root);
}

HWND WindowAt(HWND outer, POINT place) {
  const HWND inner = ChildWindowFromPointEx(outer, place, CWP_SKIPINVISIBLE);
  if (!inner || inner == outer) return outer;
  MapWindowPoints(outer, inner, &place, 1);
  return WindowAt(inner, place);
}

bool IsReallyEnabled(HWND window) {
  for (HWND at = window; at; at = GetAncestor(at, GA_PARENT)) {
    if (!IsWindowEnabled(at)) return false;
    if (GetAncestor(at, GA_ROOT) == at) return true;
  }
  return true;
}

void Hold(int key, bool down) {
  BYTE keys[256] = {};
  GetKeyboardState(keys);
  keys[key] = down ? 0x80 : 0;
  SetKeyboardState(keys);
}

void PutOnClipboard(HWND owner, const std::wstring& text) {
  ASSERT_TRUE(OpenClipboard(owner));
  EmptyClipboard();
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  // The clipboard owns the memory from then on.
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  std::memcpy(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
}

}  // namespace orx::test
