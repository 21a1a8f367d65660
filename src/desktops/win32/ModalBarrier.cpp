#include "desktops/win32/ModalBarrier.h"

#include <utility>

namespace orx::win32 {

thread_local ModalBarrier* ModalBarrier::theNewest = nullptr;

ModalBarrier::ModalBarrier(HWND front, HWND owner) : mFront(front), mOlder(std::exchange(theNewest, this)) {
  EnumThreadWindows(GetCurrentThreadId(), &ModalBarrier::Disable, reinterpret_cast<LPARAM>(this));
  if (owner) Disable(owner, reinterpret_cast<LPARAM>(this));
}

ModalBarrier::~ModalBarrier() {
  ModalBarrier* newer = nullptr;
  ModalBarrier** link = &theNewest;
  while (*link != this) {
    newer = *link;
    link = &newer->mOlder;
  }
  *link = mOlder;
  if (newer) {
    newer->mDisabled.insert(newer->mDisabled.end(), mDisabled.begin(), mDisabled.end());
    return;
  }
  for (const HWND window : mDisabled)
    if (IsWindow(window)) EnableWindow(window, TRUE);
}

BOOL CALLBACK ModalBarrier::Disable(HWND window, LPARAM barrier) {
  auto& self = *reinterpret_cast<ModalBarrier*>(barrier);
  if (window == self.mFront || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  EnableWindow(window, FALSE);
  self.mDisabled.push_back(window);
  return TRUE;
}

}  // namespace orx::win32
