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

/// The toolkit's own dialog with a button for the colour, which it has not.
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

/// Has the user choose a font as Desktop::ChooseFont says. `running` is called in its modal loop; what it throws
/// closes the dialog and travels.
bool RunFontDialog(FontRequest& request, const std::function<void()>& running);

/// The dialog for fonts that waits for its answer, null when there is none.
ColoredFontDialog* OpenFontDialog();

}  // namespace orx::qt
