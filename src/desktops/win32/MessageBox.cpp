#include "desktops/win32/MessageBox.h"

#include "desktops/win32/PlatformDialog.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

UINT IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Critical:
      return MB_ICONERROR;
    case MessageIcon::Question:
      return MB_ICONQUESTION;
    case MessageIcon::Exclamation:
      return MB_ICONWARNING;
    case MessageIcon::Information:
      return MB_ICONINFORMATION;
    case MessageIcon::None:
      break;
  }
  return 0;
}

}  // namespace

void RunMessageBox(const Message& message, HWND owner, const std::function<void()>& running) {
  const UINT kind = MB_OK | IconOf(message.Icon) | (owner ? MB_APPLMODAL : MB_TASKMODAL) | MB_SETFOREGROUND;
  RunPlatformDialog(owner, running, IDOK,
                    [&] { MessageBoxW(owner, Widened(message.Text).c_str(), Widened(message.Title).c_str(), kind); });
}

}  // namespace orx::win32
