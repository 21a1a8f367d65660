#include "desktops/qt/FontDialog.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QPixmap>
#include <QPushButton>

#include "desktops/qt/CanvasPainter.h"
#include "desktops/qt/Colors.h"
#include "desktops/qt/PlatformDialog.h"
#include "desktops/qt/Text.h"
#include "forms/Requests.h"

namespace orx::qt {
namespace {

/// What differs from the font that the dialog was given; the rest keeps its exact value.
void TakeChanges(const QFont& given, const QFont& chosen, Font& face) {
  if (chosen.family() != given.family()) face.Name = FromQt(chosen.family());
  if (chosen.pointSizeF() != given.pointSizeF()) face.Size = chosen.pointSizeF();
  face.Bold = chosen.bold();
  face.Italic = chosen.italic();
  face.Underline = chosen.underline();
  face.Strikethrough = chosen.strikeOut();
}

}  // namespace

ColoredFontDialog::ColoredFontDialog() {
  setOption(QFontDialog::DontUseNativeDialog);
  mButton = findChild<QDialogButtonBox*>()->addButton(tr("&Color..."), QDialogButtonBox::ActionRole);
  connect(mButton, &QPushButton::clicked, this, [this] { AskForColor(); });
}

void ColoredFontDialog::ChosenColor(orx::Color value) {
  mColor = value;
  QPixmap swatch(16, 16);
  swatch.fill(ToQt(value));
  mButton->setIcon(swatch);
}

void ColoredFontDialog::AskForColor() {
  const QColor chosen = QColorDialog::getColor(ToQt(mColor), this);
  if (chosen.isValid()) ChosenColor(FromQt(chosen));
}

bool RunFontDialog(FontRequest& request, const std::function<void()>& running) {
  ColoredFontDialog dialog;
  dialog.setCurrentFont(FontOf(request.Chosen.Face, QApplication::font()));
  dialog.ChosenColor(request.Chosen.Color);
  // The dialog may not know that font, and then starts from another one.
  const QFont given = dialog.currentFont();
  if (!RunPlatformDialog(dialog, request.OwnerHandle, running)) return false;
  TakeChanges(given, dialog.currentFont(), request.Chosen.Face);
  request.Chosen.Color = dialog.ChosenColor();
  return true;
}

ColoredFontDialog* OpenFontDialog() {
  return dynamic_cast<ColoredFontDialog*>(QApplication::activeModalWidget());
}

}  // namespace orx::qt
