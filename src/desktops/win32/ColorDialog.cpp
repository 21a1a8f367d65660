#include "desktops/win32/ColorDialog.h"

#include <windows.h>

#include <commdlg.h>

#include <algorithm>
#include <array>

#include "desktops/win32/Owners.h"
#include "desktops/win32/PlatformDialog.h"
#include "forms/ColorRequest.h"

namespace orx::win32 {
namespace {

/// The custom colours that the user has mixed; white at first.
std::array<COLORREF, 16>& OwnColors() {
  static std::array<COLORREF, 16> colors = [] {
    std::array<COLORREF, 16> white;
    std::fill(white.begin(), white.end(), RGB(255, 255, 255));
    return white;
  }();
  return colors;
}

}  // namespace

bool RunColorDialog(ColorRequest& request, const std::function<void()>& running) {
  CHOOSECOLORW native = {};
  native.lStructSize = sizeof(native);
  native.hwndOwner = ModalOwner(request.OwnerHandle);
  native.rgbResult = RGB(request.Color.Red, request.Color.Green, request.Color.Blue);
  native.lpCustColors = OwnColors().data();
  native.Flags = request.Flags;
  bool chosen = false;
  RunPlatformDialog(native.hwndOwner, running, IDCANCEL, [&] { chosen = ChooseColorW(&native) != FALSE; });
  if (chosen) request.Color = {GetRValue(native.rgbResult), GetGValue(native.rgbResult), GetBValue(native.rgbResult)};
  return chosen;
}

}  // namespace orx::win32
