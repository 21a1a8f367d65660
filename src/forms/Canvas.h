// Drawings. A picture keeps what was drawn as a list of marks, and a desktop paints the list whenever the screen needs
// it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "forms/Appearance.h"
#include "forms/Geometry.h"

namespace orx {

/// A raster of opaque or transparent pixels, row by row from the top; 4 bytes each in the order red, green, blue, alpha
/// (alpha not premultiplied).
struct Image {
  int Width = 0;
  int Height = 0;
  std::vector<std::uint8_t> Pixels;
};

/// A filled rectangle.
struct FillMark {
  Rect Place;
  Color Fill;
  bool operator==(const FillMark&) const = default;
};

/// Straight lines from point to point, `Width` pixels wide.
struct LineMark {
  std::vector<Point> Points;
  Color Pen;
  int Width = 1;
  bool operator==(const LineMark&) const = default;
};

/// A line of text centred on a point, turned counter-clockwise by `Rotation` degrees.
struct TextMark {
  Point Center;
  std::string Text;
  Font Face;
  Color Pen;
  double Rotation = 0;
  bool operator==(const TextMark&) const = default;
};

/// An image stretched over a rectangle. The list shares the pixels.
struct ImageMark {
  Rect Place;
  std::shared_ptr<const Image> Picture;
  bool operator==(const ImageMark&) const = default;
};

/// The dotted rectangle that shows the focus.
struct FocusMark {
  Rect Place;
  bool operator==(const FocusMark&) const = default;
};

/// One character of a font by its single-byte code, from 0 to 255, in the cell behind it.
struct CharacterMark {
  /// The upper left corner of the character.
  Point Place;
  int Code = 0;
  /// A face name that is longer than kLongestFaceName names no font: the character has the one that the painter starts
  /// with.
  Font Face;
  Color Ink;
  /// Filled before the character is drawn; a cell without width is not.
  Rect Cell = {};
  Color Ground = {};
  bool operator==(const CharacterMark&) const = default;
};

/// One piece of a drawing.
using Mark = std::variant<FillMark, LineMark, TextMark, ImageMark, FocusMark, CharacterMark>;

/// What was drawn, oldest mark first. Places are in pixels from the upper left corner.
class Canvas {
 public:
  /// All marks, oldest first; Draw adds one, Clear removes them all.
  const std::vector<Mark>& Marks() const { return mMarks; }
  void Clear() { mMarks.clear(); }
  void Draw(Mark mark);
  /// Draws the focus rectangle, or takes it away again when it stands at that place already.
  void ToggleFocus(const Rect& place);
  /// Draws a character on top, in place of the one that was drawn at that place before.
  void Redraw(const CharacterMark& character);

 private:
  std::vector<Mark> mMarks;
};

}  // namespace orx
