// The marks that drawings are made of. Places are in pixels from the upper left corner.
#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "forms/Appearance.h"
#include "forms/Geometry.h"
#include "forms/Image.h"

namespace orx {

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

/// One character of a font by its single-byte code, from 0 to 255, in the middle of its cell. One that would not fit is
/// drawn smaller, so that it leaves a pixel free at the edges.
struct CharacterMark {
  Rect Cell;
  int Code = 0;
  /// A face name that is longer than kLongestFaceName names no font: the character has the one that the painter starts
  /// with.
  Font Face;
  Color Ink;
  bool operator==(const CharacterMark&) const = default;
};

/// One piece of a drawing.
using Mark = std::variant<FillMark, LineMark, TextMark, ImageMark, FocusMark, CharacterMark>;

}  // namespace orx
