#include "desktops/qt/ColorDialog.h"

#include <QApplication>
#include <QColorDialog>

#include "desktops/qt/PlatformDialog.h"
#include "forms/Requests.h"

namespace orx::qt {

bool RunColorDialog(ColorRequest& request, const std::function<void()>& running) {
  QColorDialog dialog;
  if (request.Flags & kStartFromColor)
    dialog.setCurrentColor({request.Color.Red, request.Color.Green, request.Color.Blue});
  if (!RunPlatformDialog(dialog, request.OwnerHandle, running)) return false;
  const QColor chosen = dialog.currentColor();
  const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  request.Color = {part(chosen.red()), part(chosen.green()), part(chosen.blue())};
  return true;
}

QColorDialog* OpenColorDialog() {
  return qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
}

}  // namespace orx::qt
