// The dialog for choosing a font and its colour.
#pragma once

#include <QFontDialog>
#include <functional>

#include "forms/Appearance.h"

class QPushButton;

namespace orx {
struct FontRequest;
}  // namespace orx

namespace orx::qt {

/// The toolkit's own dialog, with a button added for the colour.
class ColoredFontDialog final : public QFontDialog {
 public:
  ColoredFontDialog();

  orx::Color ChosenColor() const { return mColor; }
  void ChosenColor(orx::Color value);

 private:
  void AskForColor();

  orx::Color mColor;
  QPushButton* mButton;
};

/// Has the user choose a font as Desktop::ChooseFont says. `running` is called in its modal loop; an exception from it
/// closes the dialog and is passed on.
bool RunFontDialog(FontRequest& request, const std::function<void()>& running);

/// The font dialog that is open, null when there is none.
ColoredFontDialog* OpenFontDialog();

}  // namespace orx::qt
