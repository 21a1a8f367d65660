#include "desktops/win32/Pointers.h"

namespace orx::win32 {

HCURSOR CursorOf(Pointer pointer) {
  switch (pointer) {
    case Pointer::Hourglass:
      return LoadCursorW(nullptr, IDC_WAIT);
    case Pointer::SizeNS:
      return LoadCursorW(nullptr, IDC_SIZENS);
    case Pointer::Default:
      break;
  }
  return nullptr;
}

}  // namespace orx::win32
