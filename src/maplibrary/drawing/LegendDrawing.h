// What the legends of a map have in common when they are drawn: a title above rows, in one font.
#pragma once

#include "forms/Canvas.h"
#include "maplibrary/drawing/MapLettering.h"
#include "maplibrary/model/Legend.h"

namespace orx::maplibrary {

inline constexpr int kLegendPadding = 8;
inline constexpr int kLegendSpace = 6;
inline constexpr Color kLegendEdge = {120, 120, 120};

/// Whole pixels; a text of endless length is as wide as any picture.
int Ceiled(double length);

/// A line around a place.
void DrawBox(Canvas& canvas, const Rect& place, Color pen);

/// Measures and draws one legend; what it is made for must live as long.
class LegendDrawing {
 public:
  LegendDrawing(const Legend& legend, Canvas& canvas, Lettering& lettering);
  virtual ~LegendDrawing() = default;

  /// Nothing is there to explain.
  virtual bool IsEmpty() const = 0;
  /// In pixels.
  Size Measure() const;
  void Draw(const Rect& place);

 protected:
  virtual Size MeasureBody() const = 0;
  virtual void DrawBody(const Point& start) = 0;

  /// Draws a text from `start`, the upper left of its row. Without a frame it stands on the map itself and needs a
  /// halo.
  void DrawText(const Point& start, const std::string& text, const Font& font);
  void DrawCentered(const PixelPoint& center, const std::string& text, const Font& font, Color pen, double rotation);
  int TitleHeight() const { return mLegend.Title().empty() ? 0 : mRow + kLegendSpace / 2; }

  const Legend& mLegend;
  Canvas& mCanvas;
  Lettering& mLettering;
  Font mFont;
  Font mTitleFont;
  /// The height of a line in pixels.
  int mRow = 0;
};

}  // namespace orx::maplibrary
