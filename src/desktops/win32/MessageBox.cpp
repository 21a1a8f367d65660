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

MessageAnswer RunMessageBox(const Message& message, HWND owner, const std::function<void()>& running) {
  const bool isQuestion = message.Buttons == MessageButtons::YesNo;
  const UINT kind =
      (isQuestion ? MB_YESNO : MB_OK) | IconOf(message.Icon) | (owner ? MB_APPLMODAL : MB_TASKMODAL) | MB_SETFOREGROUND;
  int pressed = 0;
  RunPlatformDialog(owner, running, isQuestion ? IDNO : IDOK, [&] {
    pressed = MessageBoxW(owner, Widened(message.Text).c_str(), Widened(message.Title).c_str(), kind);
  });
  return pressed == IDYES ? MessageAnswer::Yes : message.Harmless();
}

}  // namespace orx::win32
