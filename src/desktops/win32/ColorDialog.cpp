#include "desktops/win32/ColorDialog.h"

#include <windows.h>

#include <commdlg.h>

#include <array>

#include "desktops/win32/Owners.h"
#include "desktops/win32/PlatformDialog.h"
#include "forms/ProcessWide.h"
#include "forms/Requests.h"

namespace orx::win32 {
namespace {

using Colors = std::array<COLORREF, 16>;

/// The custom colours that the user has mixed; white at first.
ProcessWide<Colors>& OwnColors() {
  static ProcessWide<Colors> colors([] {
    Colors white;
    white.fill(RGB(255, 255, 255));
    return white;
  }());
  return colors;
}

}  // namespace

bool RunColorDialog(ColorRequest& request, const std::function<void()>& running) {
  CHOOSECOLORW native = {};
  native.lStructSize = sizeof(native);
  native.hwndOwner = ModalOwner(request.OwnerHandle);
  native.rgbResult = RGB(request.Color.Red, request.Color.Green, request.Color.Blue);
  Colors colors = OwnColors().Get();
  native.lpCustColors = colors.data();
  native.Flags = request.Flags;
  bool chosen = false;
  RunPlatformDialog(native.hwndOwner, running, IDCANCEL, [&] { chosen = ChooseColorW(&native) != FALSE; });
  // The user may have mixed colours and chosen none.
  OwnColors().Set(colors);
  if (chosen) request.Color = {GetRValue(native.rgbResult), GetGValue(native.rgbResult), GetBValue(native.rgbResult)};
  return chosen;
}

}  // namespace orx::win32
