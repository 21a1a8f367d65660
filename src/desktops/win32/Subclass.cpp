#include "desktops/win32/Subclass.h"

namespace orx::win32 {
namespace {

/// Only version 6 of the common controls exports these functions by name, and a program need not use that version;
/// their ordinals are the same in all versions.
template <class Function>
Function Numbered(WORD ordinal) {
  static const HMODULE library = LoadLibraryW(L"comctl32.dll");
  return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(library, MAKEINTRESOURCEA(ordinal))));
}

}  // namespace

Subclass::Subclass(HWND window, SUBCLASSPROC proc, void* self) : mWindow(window), mProc(proc) {
  static const auto set = Numbered<decltype(&SetWindowSubclass)>(410);
  if (mWindow) set(mWindow, mProc, 0, reinterpret_cast<DWORD_PTR>(self));
}

Subclass::~Subclass() {
  static const auto remove = Numbered<decltype(&RemoveWindowSubclass)>(412);
  if (mWindow) remove(mWindow, mProc, 0);
}

LRESULT Subclass::CallNext(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  static const auto call = Numbered<decltype(&DefSubclassProc)>(413);
  return call(window, message, wParam, lParam);
}

void* Subclass::SelfOf(HWND window, SUBCLASSPROC proc) {
  static const auto get = Numbered<decltype(&GetWindowSubclass)>(411);
  DWORD_PTR self = 0;
  return get(window, proc, 0, &self) ? reinterpret_cast<void*>(self) : nullptr;
}

}  // namespace orx::win32
