#include "desktops/qt/ColorDialog.h"

#include <QApplication>
#include <QColorDialog>

#include "desktops/qt/Colors.h"
#include "desktops/qt/PlatformDialog.h"
#include "forms/Requests.h"

namespace orx::qt {

bool RunColorDialog(ColorRequest& request, const std::function<void()>& running) {
  QColorDialog dialog;
  if (request.Flags & kStartFromColor) dialog.setCurrentColor(ToQt(request.Color));
  if (!RunPlatformDialog(dialog, request.OwnerHandle, running)) return false;
  request.Color = FromQt(dialog.currentColor());
  return true;
}

QColorDialog* OpenColorDialog() {
  return qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
}

}  // namespace orx::qt
