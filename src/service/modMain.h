// Small helpers that many dialogs share: focus mark, select-all, help, point in rectangle.
#pragma once

#include <cstdint>
#include <string>

namespace orx {

class Form;
class PictureBox;
class TextBox;

/// The edges of a rectangle in pixels; all four belong to it.
struct PixelEdges {
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Right = 0;
  std::int32_t Bottom = 0;
};

namespace modMain {

/// The help file of the whole library, UTF-8; empty while there is none. One for the process.
const std::string& HelpFile();
void HelpFile(const std::string& value);

/// Draws the focus rectangle `inset` pixels inside the box; a second call at the same place takes it away. Switches the
/// box's automatic redraw on. Nothing is thrown.
void DrawInsetFocusRect(PictureBox& box, std::int32_t inset) noexcept;

/// Pixels between the edge of a box that shows a colour and its focus mark.
inline constexpr std::int32_t kColorBoxInset = 3;

/// Draws a thin line around a box that shows a colour, so that a pale one tells where it ends.
void DrawEdge(PictureBox& box);

/// Selects the whole text. Nothing is thrown.
void SelectAllText(TextBox& box) noexcept;

/// Opens the Help Topics of `helpFile` at the help context number, for the form. Without a help file the user is told
/// that there is none. Errors of the help engine are ignored.
void ShowHelpFinder(Form& form, const std::string& helpFile, std::int32_t helpContextId);

/// True when the point lies in the rectangle or on its edge.
bool PointInRect(std::int16_t x, std::int16_t y, const PixelEdges& rectangle);

}  // namespace modMain
}  // namespace orx
