#include "pages/Preview.h"

#include <algorithm>

#include "forms/Form.h"
#include "forms/PictureBox.h"

namespace orx::pages {
namespace {

constexpr double kTwipsPerPoint = 20;
/// How much of the picture's height a line of text may fill.
constexpr double kFill = 0.6;

}  // namespace

void DrawPreview(PictureBox& picture, const std::string& text, Font font, Color color, double rotation) {
  picture.Drawing().Clear();
  if (!text.empty()) {
    const Size size = picture.PixelSize();
    font.Size = std::clamp(font.Size, kMinimumSize, kFill * picture.Place().Height / kTwipsPerPoint);
    picture.Drawing().Draw(TextMark{{size.Width / 2, size.Height / 2}, text, font, color, rotation});
  }
  picture.Refresh();
}

}  // namespace orx::pages
